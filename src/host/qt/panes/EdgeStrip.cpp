// A strip of tabs along one edge of the main window.
#include "host/qt/panes/EdgeStrip.h"

#include <QAction>
#include <QKeyEvent>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace {

const char* NameOf(Qt::ToolBarArea edge) {
    switch (edge) {
    case Qt::LeftToolBarArea: return "edge-left";
    case Qt::RightToolBarArea: return "edge-right";
    case Qt::TopToolBarArea: return "edge-top";
    default: return "edge-bottom";
    }
}

}

EdgeTab::EdgeTab(Qt::ToolBarArea edge, const QString& caption, const QIcon& icon, QWidget* parent)
    : QToolButton(parent), edge_(edge) {
    setText(caption);
    setIcon(icon);
    setAccessibleName(caption);
    setToolTip(caption);
    setAutoRaise(true);
    setCheckable(true);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setFocusPolicy(Qt::TabFocus);
}

QSize EdgeTab::sizeHint() const {
    const QSize size = QToolButton::sizeHint();
    return Upright() ? size.transposed() : size;
}

void EdgeTab::paintEvent(QPaintEvent* event) {
    if (!Upright()) return QToolButton::paintEvent(event);
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.rect = QRect(QPoint(), size().transposed());
    // Both sides read as a book's back does in this direction: left upwards, right downwards.
    if (edge_ == Qt::LeftToolBarArea) {
        painter.translate(0, height());
        painter.rotate(-90);
    } else {
        painter.translate(width(), 0);
        painter.rotate(90);
    }
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
}

void EdgeTab::enterEvent(QEnterEvent* event) {
    QToolButton::enterEvent(event);
    emit Hovered();
}

void EdgeTab::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
    QToolButton::keyPressEvent(event);
}

EdgeStrip::EdgeStrip(Qt::ToolBarArea edge, QMainWindow& window) : edge_(edge) {
    setObjectName(NameOf(edge));
    setWindowTitle(tr("Panes at the edge"));
    setAccessibleName(windowTitle());
    setMovable(false);
    setFloatable(false);
    setAllowedAreas(edge);
    setContextMenuPolicy(Qt::PreventContextMenu);
    const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize);
    setIconSize({icon, icon});
    if (edge == Qt::TopToolBarArea) window.addToolBarBreak(edge);
    window.addToolBar(edge, this);
    hide();
}

EdgeTab* EdgeStrip::AddTab(const QString& caption, const QIcon& icon) {
    auto* tab = new EdgeTab(edge_, caption, icon, this);
    tab->setIconSize(iconSize());
    addWidget(tab);
    ShowIfNeeded();
    return tab;
}

void EdgeStrip::RemoveTab(EdgeTab* tab) {
    for (QAction* action : actions()) {
        if (widgetForAction(action) != tab) continue;
        removeAction(action);
        // The action owns the tab, which may be the one that was clicked.
        action->deleteLater();
    }
    ShowIfNeeded();
}

void EdgeStrip::FocusFirstTab() {
    if (actions().isEmpty()) return;
    window()->activateWindow();
    widgetForAction(actions().first())->setFocus(Qt::TabFocusReason);
}

void EdgeStrip::ShowIfNeeded() { setVisible(!actions().isEmpty()); }

#include "moc_EdgeStrip.cpp"
