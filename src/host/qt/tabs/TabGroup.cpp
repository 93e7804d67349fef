// One group of tabs in the document area, and its bar.
#include "host/qt/tabs/TabGroup.h"

#include "host/qt/tabs/TabAccessibility.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

namespace {
constexpr QSize CloseIcon(12, 12);
constexpr QSize CloseButton(18, 18);
constexpr int ActiveLine = 2;     // pixels
constexpr int LeaveDistance = 12; // pixels beyond the bar at which a tab comes off
}

DocumentTabBar::DocumentTabBar(QWidget* parent) : QTabBar(parent) {
    InstallTabAccessibility(); // before anything asks for this bar's accessible object
    setExpanding(false);
    setAccessibleName(tr("Open documents"));
}

void DocumentTabBar::SetActive(bool active) {
    if (active == active_) return;
    active_ = active;
    update();
}

// Of several groups only one has the document that commands act on.
void DocumentTabBar::paintEvent(QPaintEvent* event) {
    QTabBar::paintEvent(event);
    if (!active_ || currentIndex() < 0) return;
    QRect line = tabRect(currentIndex());
    line.setHeight(ActiveLine);
    QPainter(this).fillRect(line, palette().color(QPalette::Highlight));
}

void DocumentTabBar::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton ? tabAt(event->position().toPoint()) : -1;
    QTabBar::mousePressEvent(event);
    // The press has brought this tab to the front, and a drag within the bar moves it along.
    if (pressed_ >= 0) pressed_ = currentIndex();
}

void DocumentTabBar::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (dragging_) {
        emit DraggedOut(currentIndex(), event->globalPosition().toPoint());
        return;
    }
    const QRect near = rect().adjusted(-LeaveDistance, -LeaveDistance, LeaveDistance, LeaveDistance);
    if (pressed_ >= 0 && event->buttons() == Qt::LeftButton && !near.contains(at)) return LeaveBar(*event);
    QTabBar::mouseMoveEvent(event);
}

// Ends the bar's own drag first, as if the button were released.
void DocumentTabBar::LeaveBar(const QMouseEvent& event) {
    QMouseEvent release(QEvent::MouseButtonRelease, event.position(), event.globalPosition(), Qt::LeftButton,
                        Qt::NoButton, event.modifiers());
    QTabBar::mouseReleaseEvent(&release);
    dragging_ = true;
    grabKeyboard();
    emit DraggedOut(currentIndex(), event.globalPosition().toPoint());
}

void DocumentTabBar::EndDrag() {
    dragging_ = false;
    pressed_ = -1;
    releaseKeyboard();
}

void DocumentTabBar::mouseReleaseEvent(QMouseEvent* event) {
    const int index = tabAt(event->position().toPoint());
    if (dragging_ && event->button() == Qt::LeftButton) {
        EndDrag();
        emit DroppedOut(currentIndex(), event->globalPosition().toPoint());
        return;
    }
    pressed_ = -1;
    if (event->button() == Qt::MiddleButton && index >= 0) {
        emit CloseAsked(index);
        return;
    }
    QTabBar::mouseReleaseEvent(event);
}

void DocumentTabBar::keyPressEvent(QKeyEvent* event) {
    if (!dragging_) return QTabBar::keyPressEvent(event);
    if (event->key() != Qt::Key_Escape) return;
    EndDrag();
    emit DragCancelled();
}

void DocumentTabBar::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const int index = byKey ? currentIndex() : tabAt(event->pos());
    if (index < 0) return;
    emit ContextAsked(index, byKey ? mapToGlobal(tabRect(index).bottomLeft()) : event->globalPos());
}

void TabGroup::SetActive(bool active) { bar_->SetActive(active); }

TabGroup::TabGroup(QWidget* parent) : QTabWidget(parent), bar_(new DocumentTabBar) {
    DocumentTabBar* bar = bar_;
    setTabBar(bar);
    setDocumentMode(true);
    setMovable(true);
    // A bar that is full scrolls: cut names would all look alike.
    setElideMode(Qt::ElideNone);
    setUsesScrollButtons(true);
    AddListButton();
    connect(bar, &DocumentTabBar::CloseAsked, this, [this](int index) { emit CloseAsked(widget(index)); });
    connect(bar, &DocumentTabBar::ContextAsked, this,
            [this](int index, const QPoint& at) { emit TabContextAsked(widget(index), at); });
    connect(bar, &DocumentTabBar::DraggedOut, this,
            [this](int index, const QPoint& at) { emit DraggedOut(widget(index), at); });
    connect(bar, &DocumentTabBar::DroppedOut, this,
            [this](int index, const QPoint& at) { emit DroppedOut(widget(index), at); });
    connect(bar, &DocumentTabBar::DragCancelled, this, &TabGroup::DragCancelled);
    connect(this, &QTabWidget::tabBarDoubleClicked, this, [this](int index) {
        if (index >= 0) emit TabDoubleClicked(widget(index));
    });
}

void TabGroup::AddListButton() {
    auto* button = new QToolButton(this);
    button->setAutoRaise(true);
    button->setArrowType(Qt::DownArrow);
    button->setFocusPolicy(Qt::TabFocus);
    button->setToolTip(tr("List of open documents"));
    button->setAccessibleName(tr("List of open documents"));
    connect(button, &QToolButton::clicked, this, [this, button] {
        QMenu menu(button);
        emit ListAsked(&menu);
        const QPoint corner(button->width() - menu.sizeHint().width(), button->height());
        menu.exec(button->mapToGlobal(corner));
    });
    setCornerWidget(button);
}

// The style's own close button is drawn in a warning red; this one stays in the background.
void TabGroup::tabInserted(int index) {
    QWidget* page = widget(index);
    auto* button = new QToolButton(tabBar());
    button->setAutoRaise(true);
    button->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    button->setIconSize(CloseIcon);
    button->setFixedSize(CloseButton);
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolTip(tr("Close"));
    button->setAccessibleName(tr("Close"));
    connect(button, &QToolButton::clicked, this, [this, page] { emit CloseAsked(page); });
    tabBar()->setTabButton(index, QTabBar::RightSide, button);
    QTabWidget::tabInserted(index);
}

#include "moc_TabGroup.cpp"
