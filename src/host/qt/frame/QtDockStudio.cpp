// The frame of the main window: commands, bars, panes and documents under one arrangement.
#include "host/qt/frame/QtDockStudio.h"

#include "host/Failure.h"
#include "host/Paths.h"
#include "host/qt/customize/CustomizeDialog.h"
#include "host/qt/frame/StartPage.h"
#include "host/qt/system/Painting.h"
#include "host/qt/system/QtText.h"

#include <QApplication>
#include <QCursor>
#include <algorithm>

QtDockStudio::QtDockStudio()
    : menus_(table_,
             [this] {
                 std::vector<std::string> captions;
                 for (DocumentWindow* window : area_->Windows())
                     captions.push_back(static_cast<QtDocumentWindow*>(window)->Caption());
                 return captions;
             }),
      area_(new QtDocumentArea), filter_(window_, table_) {
    window_.setCentralWidget(area_);
    window_.mayClose = [this] {
        EndCustomizing();
        bool cancel = false;
        if (events_) events_->DS_QueryUnload(cancel);
        return !cancel;
    };
    window_.resized = [this] {
        Settle();
        if (events_) events_->DS_Resize();
    };
    settle_.setSingleShot(true);
    QObject::connect(&settle_, &QTimer::timeout, &window_, [this] { RestoreSizes(); });
    QObject::connect(area_, &QtDocumentArea::Changed, &window_, [this] { ShowTitle(); });
    window_.fillBarMenu = [this](QMenu& menu) { FillBarMenu(menu); };
    window_.dropped = [this](const std::vector<std::string>& paths) {
        if (events_) events_->DS_FilesDropped(paths);
    };
    paneOwner_.shown = [this](const std::string& pane, bool shown) {
        if (events_) events_->DS_PaneShown(pane, shown);
    };
    paneOwner_.dragged = [this](const std::string& pane, bool begins) {
        if (events_) events_->DS_PaneDragged(pane, begins);
    };
    paneOwner_.leave = window_.leave = [this] { FocusDocuments(); };
    QObject::connect(qApp, &QApplication::focusChanged, &window_, [this] { NoteFocus(); });
    paneOwner_.strips = {{Qt::LeftDockWidgetArea, new EdgeStrip(Qt::LeftToolBarArea, window_)},
                         {Qt::RightDockWidgetArea, new EdgeStrip(Qt::RightToolBarArea, window_)},
                         {Qt::TopDockWidgetArea, new EdgeStrip(Qt::TopToolBarArea, window_)},
                         {Qt::BottomDockWidgetArea, new EdgeStrip(Qt::BottomToolBarArea, window_)}};
}

QtDockStudio::~QtDockStudio() {
    QtDockStudio::SetEvents(nullptr);
    settle_.stop();
    delete customizing_;
    area_->disconnect(&window_);
    QObject::disconnect(qApp, nullptr, &window_, nullptr);
    window_.leave = paneOwner_.leave = [] {};
    window_.mayClose = nullptr;
    window_.resized = nullptr;
    // The documents go first, while the window that holds their pages is still whole.
    delete window_.takeCentralWidget();
    bars_.clear();
    panes_.clear();
}

void QtDockStudio::SetEvents(DockStudioEvents* events) {
    events_ = events;
    table_.events = events;
    area_->events = events;
}

DockCommand* QtDockStudio::FindCommand(const std::string& name) { return table_.Find(name); }

DockCommand& QtDockStudio::AddCommand(const std::string& name, const std::string& caption,
                                      const std::string& category, bool isPopup) {
    if (table_.Find(name)) throw Failure(FailureDuplicateKey, "The command \"" + name + "\" exists already");
    LayoutCommand record{.name = name};
    record.kind = isPopup ? CommandKind::Popup : CommandKind::Item;
    record.caption = caption;
    record.category = category;
    QtCommand& command = table_.Add(std::move(record));
    if (isPopup) menus_.Prepare(command);
    return command;
}

std::vector<DockCommand*> QtDockStudio::Commands() {
    std::vector<DockCommand*> all;
    for (const auto& command : table_.All()) all.push_back(command.get());
    return all;
}

QtBar* QtDockStudio::Bar(const std::string& name) {
    for (const auto& bar : bars_)
        if (bar->Name() == name) return bar.get();
    return nullptr;
}

QtPane* QtDockStudio::Pane(const std::string& name) {
    for (const auto& pane : panes_)
        if (pane->Name() == name) return pane.get();
    return nullptr;
}

// A bar's entries, or those of the pop-up of that name; null where there is neither.
LayoutEntries* QtDockStudio::EntriesOf(const std::string& bar) {
    if (QtBar* found = Bar(bar)) return &found->Entries();
    QtCommand* command = table_.Find(bar);
    return command && command->Menu() ? &command->Entries() : nullptr;
}

void QtDockStudio::EntriesChanged(const std::string& bar) {
    if (QtBar* found = Bar(bar))
        found->Rebuild();
    else if (QtCommand* command = table_.Find(bar))
        menus_.Fill(*command);
}

int QtDockStudio::IndexInBar(const std::string& bar, const std::string& command) {
    const LayoutEntries* entries = EntriesOf(bar);
    if (!entries) return -1;
    const auto at = std::find_if(entries->begin(), entries->end(),
                                 [&](const LayoutEntry& entry) { return entry.command == command; });
    return at == entries->end() ? -1 : static_cast<int>(at - entries->begin());
}

void QtDockStudio::InsertIntoBar(const std::string& bar, const std::string& command, int index,
                                 bool beginGroup) {
    LayoutEntries* entries = EntriesOf(bar);
    if (!entries || !table_.Find(command)) return;
    const auto size = static_cast<int>(entries->size());
    const int at = index < 0 || index > size ? size : index;
    entries->insert(entries->begin() + at, LayoutEntry{command, beginGroup});
    EntriesChanged(bar);
}

void QtDockStudio::RemoveFromBar(const std::string& bar, const std::string& command) {
    LayoutEntries* entries = EntriesOf(bar);
    if (!entries) return;
    std::erase_if(*entries, [&](const LayoutEntry& entry) { return entry.command == command; });
    EntriesChanged(bar);
}

DockBar* QtDockStudio::FindBar(const std::string& name) { return Bar(name); }
DockPane* QtDockStudio::FindPane(const std::string& name) { return Pane(name); }

void QtDockStudio::AddPane(const LayoutPane& record) {
    panes_.push_back(std::make_unique<QtPane>(record, window_, paneOwner_));
}

void QtDockStudio::AttachPane(const std::string& name, const std::string& caption, const std::string& icon,
                              Form& form, bool addNew) {
    if (!Pane(name)) {
        if (!addNew) return;
        AddPane({.name = name, .caption = caption, .icon = icon});
    }
    Pane(name)->Attach(form, caption, icon);
}

void QtDockStudio::ShowPopup(const std::string& name) {
    QtCommand* popup = table_.Find(name);
    if (popup && popup->Menu()) popup->Menu()->popup(area_->menuPlace.value_or(QCursor::pos()));
}

void QtDockStudio::FillPopup(const std::string& name, const std::vector<std::string>& commands) {
    if (!table_.Find(name)) AddCommand(name, name, "Built-In Menus", true);
    LayoutEntries* entries = EntriesOf(name);
    if (!entries) return;
    entries->clear();
    bool beginGroup = false;
    for (const std::string& command : commands) {
        if (command == "-")
            beginGroup = true;
        else
            entries->push_back({command, std::exchange(beginGroup, false)});
    }
    EntriesChanged(name);
}

DocumentWindow& QtDockStudio::AddDocumentWindow(const std::string& key, const std::string& caption,
                                                Form* form) {
    return area_->Add(key, caption, form);
}
DocumentWindow* QtDockStudio::FindDocumentWindow(const std::string& key) { return area_->Find(key); }
DocumentWindow* QtDockStudio::ActiveDocumentWindow() { return area_->Active(); }
std::vector<DocumentWindow*> QtDockStudio::DocumentWindows() { return area_->Windows(); }
void QtDockStudio::DropDocumentWindow(DocumentWindow& window) { area_->Drop(window); }
void QtDockStudio::NextTab(int step) { area_->NextTab(step); }
void QtDockStudio::NewTabGroup(bool vertical) { area_->NewTabGroup(vertical); }
void QtDockStudio::MoveToTabGroup(int step) { area_->MoveToGroup(step); }
std::string QtDockStudio::WindowsText() { return DocumentsToLine(area_->Record()); }
void QtDockStudio::SetWindowsText(const std::string& text) { area_->Restore(DocumentsFromLine(text), true); }

void QtDockStudio::SuspendRepaint(bool suspend) {
    // Within a stop of somebody else's the painting stays stopped.
    if (suspend && suspended_++ == 0) {
        painted_ = window_.updatesEnabled();
        SetPainting(window_, false);
    } else if (!suspend && --suspended_ == 0) {
        SetPainting(window_, painted_);
    }
}

// Task lists and screen readers know a window by its title.
void QtDockStudio::ShowTitle() {
    const QtDocumentWindow* active = area_->Active();
    const QString program = Shown(ProgramName);
    window_.setWindowTitle(active ? Shown(active->Caption()) + " - " + program : program);
}

// What a right click on a bar or on the edge of a pane offers: which of them are shown.
void QtDockStudio::FillBarMenu(QMenu& menu) {
    for (const auto& bar : bars_) {
        if (!bar->ToolBar()) continue;
        QAction* action = menu.addAction(Shown(bar->Record().caption));
        action->setCheckable(true);
        action->setChecked(bar->Visible());
        QObject::connect(action, &QAction::triggered, &window_,
                         [bar = bar.get()](bool shown) { bar->SetVisible(shown); });
    }
    menu.addSeparator();
    for (const auto& pane : panes_) {
        QAction* action = menu.addAction(Shown(pane->Caption()));
        action->setCheckable(true);
        action->setChecked(pane->Present());
        QObject::connect(action, &QAction::triggered, pane.get(), &QtPane::SetPresent);
    }
    menu.addSeparator();
    QObject::connect(menu.addAction(QObject::tr("&Customize…")), &QAction::triggered, &window_,
                     [this] { Customize(); });
}
