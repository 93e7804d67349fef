// One group of tabs in the document area.
#include "host/qt/TabGroup.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QTabBar>
#include <QToolButton>

namespace {
constexpr QSize CloseIcon(12, 12);
constexpr QSize CloseButton(18, 18);
}

TabGroup::TabGroup(QWidget* parent) : QTabWidget(parent) {
    setDocumentMode(true);
    setMovable(true);
    // A bar that is full scrolls: cut names would all look alike.
    setElideMode(Qt::ElideNone);
    setUsesScrollButtons(true);
    tabBar()->setExpanding(false);
    tabBar()->setAccessibleName(tr("Open documents"));
    tabBar()->installEventFilter(this);
    connect(this, &QTabWidget::tabCloseRequested, this,
            [this](int index) { emit CloseAsked(widget(index)); });
    connect(this, &QTabWidget::tabBarDoubleClicked, this, [this](int index) {
        if (index >= 0) emit TabDoubleClicked(widget(index));
    });
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

bool TabGroup::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const int index = tabBar()->tabAt(mouse->position().toPoint());
        if (mouse->button() == Qt::MiddleButton && index >= 0) {
            emit CloseAsked(widget(index));
            return true;
        }
    }
    if (event->type() == QEvent::ContextMenu) {
        const auto* context = static_cast<QContextMenuEvent*>(event);
        const int index = tabBar()->tabAt(context->pos());
        if (index >= 0) emit TabContextAsked(widget(index), context->globalPos());
        return true;
    }
    return QTabWidget::eventFilter(watched, event);
}

#include "moc_TabGroup.cpp"
