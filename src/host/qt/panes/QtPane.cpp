// A dock pane: a place round the documents that hosts one form.
#include "host/qt/panes/QtPane.h"

#include "host/qt/system/QtText.h"

#include <QAction>
#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <utility>

namespace {

constexpr std::pair<const char*, Qt::DockWidgetArea> AreaNames[] = {
    {"left", Qt::LeftDockWidgetArea},
    {"right", Qt::RightDockWidgetArea},
    {"top", Qt::TopDockWidgetArea},
    {"bottom", Qt::BottomDockWidgetArea},
};
constexpr int UsualExtent = 280;
constexpr int Step = 32; // pixels by which a key makes a pane larger

Qt::DockWidgetArea AreaOf(const std::string& name) {
    for (const auto& [text, area] : AreaNames)
        if (name == text) return area;
    return Qt::BottomDockWidgetArea;
}

}

QtPane::QtPane(const LayoutPane& record, QMainWindow& window, const PaneOwner& owner)
    : window_(window), owner_(owner), dock_(new QDockWidget(&window)), title_(new PaneTitle(dock_)) {
    dock_->setObjectName("pane-" + Shown(record.name));
    dock_->setTitleBarWidget(title_);
    ConnectTitle(*title_);
    dock_->installEventFilter(this);
    // The toggle action follows the pane itself, not whether another tab lies over it.
    connect(dock_->toggleViewAction(), &QAction::toggled, this, [this](bool shown) {
        if (!arranging_) owner_.shown(Name(), shown);
    });
    Replace(record);
}

QtPane::~QtPane() {
    // The form's owner has the content; the window must not delete it.
    QWidget* content = rolled_ ? rolled_->TakeContent() : dock_->widget();
    dock_->setWidget(nullptr);
    if (content) content->setParent(nullptr);
    rolled_.reset();
    dock_->deleteLater();
}

void QtPane::ConnectTitle(PaneTitle& title) {
    connect(&title, &PaneTitle::AutoHideAsked, this, [this] { SetAutoHidden(!autoHidden_); });
    connect(&title, &PaneTitle::CloseAsked, this, &QtPane::Hide);
    connect(&title, &PaneTitle::MenuAsked, this, &QtPane::ShowMenu);
}

void QtPane::Replace(const LayoutPane& record) {
    const QScopedValueRollback<bool> guard(arranging_, true);
    const bool was = Present();
    RollBack();
    record_ = record;
    dock_->setWindowTitle(Shown(record.caption));
    title_->SetCaption(Shown(record.caption));
    window_.addDockWidget(AreaOf(record.area), dock_);
    autoHidden_ = record.autoHidden;
    dock_->setVisible(record.visible && !autoHidden_);
    if (record.visible && autoHidden_) RollAway(record.extent);
    if (Present() != was) owner_.shown(Name(), Present());
}

void QtPane::Attach(Form& form, const std::string& caption, const std::string& icon) {
    auto* widget = static_cast<QWidget*>(form.NativeWidget());
    record_.caption = caption;
    record_.icon = icon;
    dock_->setWindowTitle(Shown(caption));
    dock_->setWindowIcon(QIcon::fromTheme(Shown(icon)));
    title_->SetCaption(Shown(caption));
    if (widget->accessibleName().isEmpty()) widget->setAccessibleName(Shown(caption));
    if (rolled_) {
        if (rolled_->isAncestorOf(widget)) return;
        rolled_->TakeContent();
        rolled_->SetContent(widget);
    } else if (dock_->widget() != widget) {
        dock_->setWidget(widget);
    }
}

Qt::DockWidgetArea QtPane::Area() const {
    const Qt::DockWidgetArea area = window_.dockWidgetArea(dock_);
    return area == Qt::NoDockWidgetArea ? AreaOf(record_.area) : area;
}

bool QtPane::Upright() const { return Area() == Qt::LeftDockWidgetArea || Area() == Qt::RightDockWidgetArea; }

int QtPane::Extent() const {
    if (rolled_) return rolled_->Extent();
    if (dock_->isHidden() || dock_->isFloating()) return record_.extent;
    return Upright() ? dock_->width() : dock_->height();
}

bool QtPane::HasFocus() const {
    const QWidget* focus = QApplication::focusWidget();
    return focus && (dock_->isAncestorOf(focus) || (rolled_ && rolled_->isAncestorOf(focus)));
}

void QtPane::SetFloating(bool floating) { floating ? Float() : MoveTo(Area()); }

void QtPane::Enlarge(int steps) {
    const int more = steps * Step;
    if (rolled_) return rolled_->SetExtent(rolled_->Extent() + more);
    if (dock_->isFloating()) return dock_->resize(dock_->size() + QSize(more, more));
    window_.resizeDocks({dock_}, {Extent() + more}, Upright() ? Qt::Horizontal : Qt::Vertical);
}

void QtPane::SetAutoHidden(bool autoHidden) {
    if (autoHidden == autoHidden_) return;
    const QScopedValueRollback<bool> guard(arranging_, true);
    const bool present = Present();
    record_.extent = Extent();
    autoHidden_ = autoHidden;
    if (autoHidden && HasFocus()) owner_.leave();
    if (!autoHidden) {
        RollBack();
        if (present) Show();
    } else if (present) {
        if (dock_->isFloating()) dock_->setFloating(false);
        RollAway(record_.extent);
    }
}

void QtPane::RollAway(int extent) {
    const auto strip = owner_.strips.find(Area());
    if (strip == owner_.strips.end()) return;
    QWidget* content = dock_->widget();
    dock_->setWidget(nullptr);
    dock_->hide();
    rolled_ = std::make_unique<RolledPane>(*strip->second, window_, Shown(record_.caption),
                                           QIcon::fromTheme(Shown(record_.icon)),
                                           extent > 0 ? extent : UsualExtent, owner_.leave);
    rolled_->SetContent(content);
    ConnectTitle(rolled_->Title());
}

void QtPane::RollBack() {
    if (!rolled_) return;
    QWidget* content = rolled_->TakeContent();
    if (content) dock_->setWidget(content);
    rolled_.release()->Retire();
}

bool QtPane::Visible() const {
    if (rolled_) return true;
    if (dock_->isHidden()) return false;
    // A pane hidden by another tab counts as invisible, so that a toggle brings it to the front.
    return !window_.isVisible() || !dock_->visibleRegion().isEmpty();
}

void QtPane::Show() {
    if (autoHidden_) {
        if (!rolled_) {
            RollAway(record_.extent);
            owner_.shown(Name(), true);
        }
        return rolled_->SlideOut(true);
    }
    dock_->show();
    dock_->raise();
    if (dock_->isFloating()) dock_->activateWindow();
    if (dock_->widget()) dock_->widget()->setFocus(Qt::OtherFocusReason);
}

void QtPane::Hide() {
    // The toolkit would give the focus to whatever comes next.
    if (HasFocus()) owner_.leave();
    if (!rolled_) return dock_->hide();
    record_.extent = Extent();
    const QScopedValueRollback<bool> guard(arranging_, true);
    RollBack();
    dock_->hide();
    owner_.shown(Name(), false);
}

void QtPane::TakeExtent() {
    if (record_.extent <= 0 || rolled_) return;
    window_.resizeDocks({dock_}, {record_.extent}, Upright() ? Qt::Horizontal : Qt::Vertical);
}

void QtPane::TabOnto(QtPane& first) {
    if (rolled_ || first.rolled_ || Area() != first.Area()) return;
    window_.tabifyDockWidget(first.dock_, dock_);
    first.dock_->raise();
}

void QtPane::MoveTo(Qt::DockWidgetArea area) {
    if (HasFocus()) owner_.leave();
    SetAutoHidden(false);
    dock_->setFloating(false);
    window_.addDockWidget(area, dock_);
    Show();
}

// A floating pane appears in the middle of the window: at its docked place it would look docked.
void QtPane::Float() {
    // On its way it would give the focus to the pane that comes next.
    if (HasFocus()) owner_.leave();
    SetAutoHidden(false);
    dock_->setFloating(true);
    const QSize half = window_.size() / 2;
    dock_->resize(dock_->size().boundedTo(half).expandedTo(half / 2));
    dock_->move(window_.mapToGlobal(window_.rect().center()) - dock_->rect().center());
    Show();
}

void QtPane::ShowMenu(const QPoint& global) {
    QMenu menu;
    const std::pair<QString, Qt::DockWidgetArea> sides[] = {{tr("Dock &Left"), Qt::LeftDockWidgetArea},
                                                            {tr("Dock &Right"), Qt::RightDockWidgetArea},
                                                            {tr("Dock &Top"), Qt::TopDockWidgetArea},
                                                            {tr("Dock &Bottom"), Qt::BottomDockWidgetArea}};
    for (const auto& [text, area] : sides) {
        QAction* action = menu.addAction(text);
        connect(action, &QAction::triggered, this, [this, side = area] { MoveTo(side); });
    }
    menu.addSeparator();
    QAction* floats = menu.addAction(tr("&Float"));
    floats->setEnabled(!dock_->isFloating());
    connect(floats, &QAction::triggered, this, &QtPane::Float);
    QAction* hides = menu.addAction(tr("&Auto-Hide"));
    hides->setCheckable(true);
    hides->setChecked(autoHidden_);
    connect(hides, &QAction::triggered, this, &QtPane::SetAutoHidden);
    connect(menu.addAction(tr("&Close")), &QAction::triggered, this, &QtPane::Hide);
    menu.exec(global);
}

// The toolkit does not report a pane being dragged: the drag begins once the pressed title has moved.
bool QtPane::eventFilter(QObject* watched, QEvent* event) {
    // With a title of its own the toolkit leaves a floating pane without its frame.
    if (watched == dock_ && event->type() == QEvent::Paint && dock_->isFloating()) {
        QPainter painter(dock_);
        painter.setPen(dock_->palette().color(QPalette::Mid));
        painter.drawRect(dock_->rect().adjusted(0, 0, -1, -1));
    }
    if (watched == dock_ && event->type() == QEvent::KeyPress && dock_->isFloating() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        owner_.leave();
        return true;
    }
    if (watched == dock_ && event->type() == QEvent::MouseButtonPress)
        press_ = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
    if (watched == dock_ && event->type() == QEvent::MouseMove && !dragging_) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const QPoint way = mouse->globalPosition().toPoint() - press_;
        if (mouse->buttons() == Qt::LeftButton && way.manhattanLength() > QApplication::startDragDistance())
            owner_.dragged(Name(), dragging_ = true);
    }
    if (watched == dock_ && event->type() == QEvent::MouseButtonRelease && dragging_)
        owner_.dragged(Name(), dragging_ = false);
    return QObject::eventFilter(watched, event);
}

LayoutPane QtPane::Record() const {
    LayoutPane record = record_;
    record.visible = Present();
    record.autoHidden = autoHidden_;
    record.extent = Extent();
    for (const auto& [text, area] : AreaNames)
        if (Area() == area) record.area = text;
    return record;
}
