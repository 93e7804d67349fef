// The main window itself: asks its owner before it closes, and accepts dropped files.
#pragma once

#include <QMainWindow>
#include <functional>
#include <string>
#include <vector>

class StudioWindow : public QMainWindow {
    Q_OBJECT

public:
    StudioWindow();

    std::function<bool()> mayClose;
    std::function<void()> resized;
    std::function<void(const std::vector<std::string>& paths)> dropped;
    std::function<void(QMenu& menu)> fillBarMenu;
    std::function<void()> leave; // Escape, which nothing inside took

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    // In the place of the toolkit's own, which knows nothing of panes at the edge.
    QMenu* createPopupMenu() override;
};
