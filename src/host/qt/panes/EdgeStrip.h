// A strip of tabs along one edge of the main window, one for each pane that is rolled away there.
#pragma once

#include <QMainWindow>
#include <QToolBar>
#include <QToolButton>

// A tab of the strip; vertical on the left and right edge.
class EdgeTab : public QToolButton {
    Q_OBJECT

public:
    EdgeTab(Qt::ToolBarArea edge, const QString& caption, const QIcon& icon, QWidget* parent);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void Hovered(); // the pointer came over it

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool Upright() const { return edge_ == Qt::LeftToolBarArea || edge_ == Qt::RightToolBarArea; }

    Qt::ToolBarArea edge_;
};

class EdgeStrip : public QToolBar {
public:
    // Adds itself to the window; it is there only while it has tabs.
    EdgeStrip(Qt::ToolBarArea edge, QMainWindow& window);

    Qt::ToolBarArea Edge() const { return edge_; }
    EdgeTab* AddTab(const QString& caption, const QIcon& icon);
    void RemoveTab(EdgeTab* tab);
    void FocusFirstTab();
    // Shows or hides the strip by whether a tab is shown, also after the window's record was restored.
    void ShowIfNeeded();

private:
    Qt::ToolBarArea edge_;
};
