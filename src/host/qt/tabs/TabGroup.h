// One group of tabs in the document area, and its bar: tabs are dragged within it, and out of it.
#pragma once

#include <QMenu>
#include <QTabBar>
#include <QTabWidget>

class DocumentTabBar : public QTabBar {
    Q_OBJECT

public:
    explicit DocumentTabBar(QWidget* parent = nullptr);
    // Marks its front tab as that of the active document.
    void SetActive(bool active);

signals:
    void CloseAsked(int index);
    void ContextAsked(int index, const QPoint& global);
    // A tab was dragged out of the bar: the pointer's position, and where it was released.
    void DraggedOut(int index, const QPoint& global);
    void DroppedOut(int index, const QPoint& global);
    void DragCancelled();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void LeaveBar(const QMouseEvent& event);
    void EndDrag();

    int pressed_ = -1;
    bool dragging_ = false;
    bool active_ = false;
};

class TabGroup : public QTabWidget {
    Q_OBJECT

public:
    explicit TabGroup(QWidget* parent = nullptr);
    void SetActive(bool active);

signals:
    void CloseAsked(QWidget* page);
    void TabDoubleClicked(QWidget* page);
    void TabContextAsked(QWidget* page, const QPoint& global);
    void DraggedOut(QWidget* page, const QPoint& global);
    void DroppedOut(QWidget* page, const QPoint& global);
    void DragCancelled();
    // The menu of open documents is about to be shown.
    void ListAsked(QMenu* menu);

protected:
    void tabInserted(int index) override;

private:
    void AddListButton();

    DocumentTabBar* bar_;
};
