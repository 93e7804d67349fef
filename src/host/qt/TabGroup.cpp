// One group of tabs in the document area.
#include "host/qt/TabGroup.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QTabBar>

TabGroup::TabGroup(QWidget* parent) : QTabWidget(parent) {
    setDocumentMode(true);
    setMovable(true);
    setTabsClosable(true);
    setElideMode(Qt::ElideMiddle);
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
