// The main window itself: asks its owner before it closes, and accepts dropped files.
#include "host/qt/frame/StudioWindow.h"

#include "host/Paths.h"
#include "host/qt/system/QtText.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QStyle>

StudioWindow::StudioWindow() {
    setWindowTitle(Shown(ProgramName));
    setAcceptDrops(true);
    setDockNestingEnabled(true);
    setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
    const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize);
    setIconSize({icon + icon / 4, icon + icon / 4});
}

void StudioWindow::closeEvent(QCloseEvent* event) {
    if (mayClose && !mayClose()) return event->ignore();
    event->accept();
    QApplication::quit();
}

void StudioWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (resized) resized();
}

void StudioWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && resized) resized();
}

void StudioWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape || event->modifiers() != Qt::NoModifier || !leave)
        return QMainWindow::keyPressEvent(event);
    leave();
}

QMenu* StudioWindow::createPopupMenu() {
    auto* menu = new QMenu(this);
    if (fillBarMenu) fillBarMenu(*menu);
    return menu;
}

void StudioWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void StudioWindow::dropEvent(QDropEvent* event) {
    std::vector<std::string> paths;
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile()) paths.push_back(PathBytes(url.toLocalFile()));
    event->acceptProposedAction();
    if (dropped && !paths.empty()) dropped(paths);
}

#include "moc_StudioWindow.cpp"
