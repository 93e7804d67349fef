// The title bar of a pane: its caption, and buttons that roll it away to the edge and close it.
#pragma once

#include <QLabel>
#include <QToolButton>
#include <QWidget>

class PaneTitle : public QWidget {
    Q_OBJECT

public:
    explicit PaneTitle(QWidget* parent = nullptr);
    ~PaneTitle() override;

    void SetCaption(const QString& caption);
    // Whether the pane is rolled away, for which the first button then brings it back.
    void SetAutoHidden(bool autoHidden);

signals:
    void AutoHideAsked();
    void CloseAsked();
    void MenuAsked(const QPoint& global);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QToolButton* MakeButton(const QString& name);
    void ShowIcons();

    QLabel* caption_;
    QToolButton* pin_;
    QToolButton* close_;
    bool autoHidden_ = false;
    bool active_ = false; // the focus is in the pane
};
