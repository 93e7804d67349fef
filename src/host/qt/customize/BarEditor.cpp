// While the user customises: takes over the pointer on the bars of the main window.
#include "host/qt/customize/BarEditor.h"

#include "host/Outside.h"
#include "host/qt/system/QtText.h"

#include <QApplication>
#include <QDrag>
#include <QDragMoveEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QToolBar>
#include <algorithm>

namespace {
constexpr int LineWidth = 2;
}

BarEditor::BarEditor(CustomizeTarget& target) : target_(target) {
    for (const CommandPlace& place : target_.Places())
        if (QWidget* bar = target_.WidgetOf(place.name)) bar->setAcceptDrops(true);
    qApp->installEventFilter(this);
}

BarEditor::~BarEditor() {
    delete line_;
    for (const CommandPlace& place : target_.Places())
        if (QWidget* bar = target_.WidgetOf(place.name)) bar->setAcceptDrops(false);
}

// Returns the name of the bar that a widget is or belongs to, and the bar itself; empty for any other widget.
std::string BarEditor::PlaceOf(QObject* watched, QWidget*& bar) const {
    for (QObject* at = watched; at; at = at->parent()) {
        if (!qobject_cast<QToolBar*>(at) && !qobject_cast<QMenuBar*>(at)) continue;
        bar = static_cast<QWidget*>(at);
        for (const CommandPlace& place : target_.Places())
            if (target_.WidgetOf(place.name) == bar) return place.name;
    }
    return {};
}

QRect BarEditor::RectOf(QWidget* bar, const LayoutEntry& entry) const {
    const QtCommand* command = target_.Table().Find(entry.command);
    if (!command || !bar) return {};
    if (auto* menus = qobject_cast<QMenuBar*>(bar)) return menus->actionGeometry(command->Action());
    auto* tools = static_cast<QToolBar*>(bar);
    for (QAction* action : tools->actions()) {
        QWidget* widget = tools->widgetForAction(action);
        const bool own =
            action == command->Action() || (widget && widget->property("command") == Shown(entry.command));
        if (own && widget && widget->isVisible()) return widget->geometry();
    }
    return {};
}

int BarEditor::EntryAt(const std::string& place, QWidget* bar, const QPoint& at) const {
    const LayoutEntries& entries = *target_.EntriesOf(place);
    for (std::size_t index = 0; index < entries.size(); ++index)
        if (RectOf(bar, entries[index]).contains(at)) return static_cast<int>(index);
    return -1;
}

BarEditor::Spot BarEditor::SpotAt(const std::string& place, QWidget* bar, const QPoint& at) const {
    const LayoutEntries& entries = *target_.EntriesOf(place);
    auto* tools = qobject_cast<QToolBar*>(bar);
    const bool upright = tools && tools->orientation() == Qt::Vertical;
    Spot spot{place, static_cast<int>(entries.size()), {}, bar};
    QRect last;
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const QRect rect = RectOf(bar, entries[index]);
        if (rect.isEmpty()) continue;
        if (upright ? at.y() < rect.center().y() : at.x() < rect.center().x()) {
            spot.index = static_cast<int>(index);
            spot.line = upright ? QRect(rect.left(), rect.top(), rect.width(), LineWidth)
                                : QRect(rect.left(), rect.top(), LineWidth, rect.height());
            return spot;
        }
        last = rect;
    }
    if (last.isEmpty()) last = bar->rect().adjusted(LineWidth, LineWidth, -LineWidth, -LineWidth);
    spot.line = upright ? QRect(last.left(), last.bottom(), last.width(), LineWidth)
                        : QRect(last.right(), last.top(), LineWidth, last.height());
    return spot;
}

bool BarEditor::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop: break;
    default: return false;
    }
    QWidget* bar = nullptr;
    const std::string place = PlaceOf(watched, bar);
    if (!bar || place.empty()) return false;
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop: return Drop(place, bar, *event);
    case QEvent::ContextMenu: return true;
    default: {
        // The handle of a tool bar still moves it.
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const bool onHandle = watched == bar && qobject_cast<QToolBar*>(bar) &&
                              EntryAt(place, bar, mouse->position().toPoint()) < 0;
        return !onHandle && Mouse(place, bar, *event);
    }
    }
}

bool BarEditor::Mouse(const std::string& place, QWidget* bar, QEvent& event) {
    const auto& mouse = static_cast<QMouseEvent&>(event);
    const QPoint global = mouse.globalPosition().toPoint();
    if (event.type() == QEvent::MouseButtonPress) {
        press_ = global;
        const int index = EntryAt(place, bar, bar->mapFromGlobal(global));
        if (mouse.button() == Qt::RightButton && index >= 0) ShowMenu(place, index, global);
    }
    if (event.type() == QEvent::MouseMove && mouse.buttons() == Qt::LeftButton &&
        (global - press_).manhattanLength() > QApplication::startDragDistance()) {
        const int index = EntryAt(place, bar, bar->mapFromGlobal(press_));
        if (index >= 0) DragEntry(place, index, bar);
    }
    return event.type() != QEvent::MouseMove || mouse.buttons() != Qt::NoButton;
}

// An entry dragged to another place moves there; dropped outside every place, it is removed.
void BarEditor::DragEntry(const std::string& place, int index, QWidget* bar) {
    const LayoutEntry entry = (*target_.EntriesOf(place))[static_cast<std::size_t>(index)];
    const QtCommand* command = target_.Table().Find(entry.command);
    auto* data = new QMimeData;
    data->setData(CommandMime, QByteArray::fromStdString(entry.command));
    auto* drag = new QDrag(bar);
    drag->setMimeData(data);
    if (command) drag->setPixmap(command->Action()->icon().pixmap(QSize(22, 22), bar->devicePixelRatio()));
    fromPlace_ = place;
    dropped_ = false;
    const NestedLoop loop;
    const Qt::DropAction action = drag->exec(Qt::MoveAction | Qt::CopyAction, Qt::MoveAction);
    fromPlace_.clear();
    if (dropped_ || action != Qt::IgnoreAction) return;
    std::erase_if(*target_.EntriesOf(place),
                  [&](const LayoutEntry& other) { return other.command == entry.command; });
    target_.EntriesChanged(place);
    emit EntriesChanged();
}

bool BarEditor::Drop(const std::string& place, QWidget* bar, QEvent& event) {
    if (event.type() == QEvent::DragLeave) {
        if (line_) line_->hide();
        return true;
    }
    auto& drop = static_cast<QDropEvent&>(event);
    if (!drop.mimeData()->hasFormat(CommandMime)) return false;
    const Spot spot = SpotAt(place, bar, bar->mapFromGlobal(QCursor::pos()));
    if (event.type() == QEvent::Drop) {
        if (line_) line_->hide();
        dropped_ = true;
        drop.acceptProposedAction();
        Insert(spot, drop.mimeData()->data(CommandMime).toStdString());
        return true;
    }
    if (!line_ || line_->parent() != bar) {
        delete line_;
        line_ = new QWidget(bar);
        line_->setAutoFillBackground(true);
        line_->setBackgroundRole(QPalette::Highlight);
        line_->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    line_->setGeometry(spot.line);
    line_->show();
    line_->raise();
    drop.acceptProposedAction();
    return true;
}

void BarEditor::Insert(const Spot& spot, const std::string& command) {
    std::string place = spot.place;
    int index = spot.index;
    const QtCommand* dropped = target_.Table().Find(command);
    if (!dropped) return;
    if (qobject_cast<QMenuBar*>(spot.bar) && !dropped->Menu()) {
        // An entry other than a menu goes into the menu on whose title it is dropped.
        const int title = EntryAt(place, spot.bar, spot.bar->mapFromGlobal(QCursor::pos()));
        if (title < 0) return;
        place = (*target_.EntriesOf(place))[static_cast<std::size_t>(title)].command;
        index = INT_MAX;
    }
    LayoutEntries* entries = target_.EntriesOf(place);
    if (!entries || place == command) return;
    LayoutEntry entry{command, false};
    const auto known = std::find_if(entries->begin(), entries->end(),
                                    [&](const LayoutEntry& other) { return other.command == command; });
    if (known != entries->end()) {
        entry = *known;
        if (known - entries->begin() < index) --index;
        entries->erase(known);
    }
    index = std::clamp(index, 0, static_cast<int>(entries->size()));
    entries->insert(entries->begin() + index, entry);
    if (!fromPlace_.empty() && fromPlace_ != place) {
        std::erase_if(*target_.EntriesOf(fromPlace_),
                      [&](const LayoutEntry& other) { return other.command == command; });
        target_.EntriesChanged(fromPlace_);
    }
    target_.EntriesChanged(place);
    emit EntriesChanged();
}

void BarEditor::ShowMenu(const std::string& place, int index, const QPoint& global) {
    QMenu menu;
    QAction* remove = menu.addAction(tr("&Remove"));
    QAction* group = menu.addAction(tr("Begins a &group"));
    LayoutEntry& entry = (*target_.EntriesOf(place))[static_cast<std::size_t>(index)];
    group->setCheckable(true);
    group->setChecked(entry.beginGroup);
    group->setEnabled(index > 0);
    const QAction* chosen = menu.exec(global);
    LayoutEntries* entries = target_.EntriesOf(place);
    if (!chosen || !entries || index >= static_cast<int>(entries->size())) return;
    if (chosen == remove)
        entries->erase(entries->begin() + index);
    else
        (*entries)[static_cast<std::size_t>(index)].beginGroup = group->isChecked();
    target_.EntriesChanged(place);
    emit EntriesChanged();
}

#include "moc_BarEditor.cpp"
