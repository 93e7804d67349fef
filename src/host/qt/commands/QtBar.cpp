// A tool bar, the menu bar or the status bar, built from its entries.
#include "host/qt/commands/QtBar.h"

#include "host/qt/commands/CommandWidgets.h"
#include "host/qt/system/QtText.h"

#include <QMenuBar>
#include <QStatusBar>
#include <QToolButton>

QtBar::QtBar(LayoutBar record, QMainWindow& window, CommandTable& table)
    : record_(std::move(record)), window_(window), table_(table) {
    if (record_.kind == BarKind::Tool) {
        toolBar_ = new QToolBar(Shown(record_.caption), &window_);
        // The name is how the window's record of places knows the bar.
        toolBar_->setObjectName("bar-" + Shown(record_.name));
        window_.addToolBar(toolBar_);
        // The toolkit's button for what the window is too narrow for.
        if (auto* more = toolBar_->findChild<QToolButton*>("qt_toolbar_ext_button"))
            more->setAccessibleName(QObject::tr("More of %1").arg(Shown(record_.caption)));
    }
    Replace(std::move(record_));
}

void QtBar::Replace(LayoutBar record) {
    record_ = std::move(record);
    if (toolBar_) toolBar_->setWindowTitle(Shown(record_.caption));
    Rebuild();
    if (record_.kind != BarKind::Menu) Native()->setVisible(record_.visible);
}

QtBar::~QtBar() {
    if (toolBar_) {
        window_.removeToolBar(toolBar_);
        // Without a name, so that no record of places finds it any more.
        toolBar_->setObjectName({});
        toolBar_->deleteLater();
    }
    for (const auto& widget : statusWidgets_) {
        if (!widget) continue;
        window_.statusBar()->removeWidget(widget);
        widget->deleteLater();
    }
}

QWidget* QtBar::Native() const {
    switch (record_.kind) {
    case BarKind::Menu: return window_.menuBar();
    case BarKind::Status: return window_.statusBar();
    case BarKind::Tool: break;
    }
    return toolBar_;
}

bool QtBar::Visible() const { return !Native()->isHidden(); }

void QtBar::SetVisible(bool visible) { Native()->setVisible(visible); }

void QtBar::FocusFirstControl() {
    for (QWidget* widget : Native()->findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || !widget->isEnabled()) continue;
        widget->setFocus(Qt::ShortcutFocusReason);
        return;
    }
}

void QtBar::Rebuild() {
    switch (record_.kind) {
    case BarKind::Menu: return FillMenuBar();
    case BarKind::Tool: return FillToolBar();
    case BarKind::Status: return FillStatusBar();
    }
}

void QtBar::FillMenuBar() {
    window_.menuBar()->clear();
    for (const LayoutEntry& entry : record_.entries)
        if (const QtCommand* command = table_.Find(entry.command))
            window_.menuBar()->addAction(command->Action());
}

void QtBar::FillToolBar() {
    toolBar_->clear();
    for (const auto& action : ownActions_)
        if (action) action->deleteLater();
    ownActions_.clear();
    for (const LayoutEntry& entry : record_.entries) {
        QtCommand* command = table_.Find(entry.command);
        if (!command) continue;
        // One connection for each entry, however often the bar is built.
        QObject::disconnect(command, &QtCommand::StateChanged, toolBar_, nullptr);
        QObject::connect(command, &QtCommand::StateChanged, toolBar_,
                         [bar = toolBar_.data()] { ShowSeparators(*bar); });
        if (entry.beginGroup) ownActions_.emplace_back(toolBar_->addSeparator());
        const CommandKind kind = command->Record().kind;
        if (kind == CommandKind::Combo || kind == CommandKind::EditCombo) {
            ownActions_.emplace_back(toolBar_->addWidget(new CommandCombo(*command, table_, toolBar_)));
            continue;
        }
        toolBar_->addAction(command->Action());
        auto* button = qobject_cast<QToolButton*>(toolBar_->widgetForAction(command->Action()));
        if (button && kind == CommandKind::Popup) button->setPopupMode(QToolButton::InstantPopup);
        if (button) button->setAccessibleName(command->PlainCaption());
    }
    ShowSeparators(*toolBar_);
}

// A separator is shown only between two visible entries.
void QtBar::ShowSeparators(QToolBar& bar) {
    QAction* waiting = nullptr;
    bool any = false;
    for (QAction* action : bar.actions()) {
        if (action->isSeparator()) {
            action->setVisible(false);
            waiting = any ? action : nullptr;
        } else if (action->isVisible()) {
            if (waiting) waiting->setVisible(true);
            waiting = nullptr;
            any = true;
        }
    }
}

void QtBar::FillStatusBar() {
    QStatusBar& bar = *window_.statusBar();
    for (const auto& widget : statusWidgets_)
        if (widget) {
            bar.removeWidget(widget);
            widget->deleteLater();
        }
    statusWidgets_.clear();
    for (const LayoutEntry& entry : record_.entries) {
        QtCommand* command = table_.Find(entry.command);
        if (!command) continue;
        QWidget* widget = MakeStatusWidget(*command, &bar);
        // The first pane gets the remaining room; the others are at the right end.
        if (statusWidgets_.empty())
            bar.addWidget(widget, 1);
        else
            bar.addPermanentWidget(widget);
        widget->setVisible(command->Visible());
        statusWidgets_.emplace_back(widget);
    }
}

LayoutBar QtBar::Record() const {
    LayoutBar record = record_;
    record.visible = Visible();
    return record;
}
