// A pane that is rolled away to an edge of the window: a tab in the strip there, and a frame that slides out
// over the documents on a click, when the pointer rests on the tab, or by a command.
#pragma once

#include "host/qt/panes/EdgeStrip.h"
#include "host/qt/panes/PaneTitle.h"

#include <QFrame>
#include <QPointer>
#include <QPropertyAnimation>
#include <QTimer>
#include <functional>

class RolledPane : public QFrame {
    Q_OBJECT

public:
    // `extent`: pixels that it takes of the window. The content is given back by TakeContent.
    // `leave` gives the focus to the documents.
    RolledPane(EdgeStrip& strip, QMainWindow& window, const QString& caption, const QIcon& icon, int extent,
               std::function<void()> leave);
    ~RolledPane() override;

    // Takes it out of sight and deletes it when that is safe: the click that leads here may be its own.
    void Retire();
    void SetContent(QWidget* content);
    QWidget* TakeContent();
    void SetCaption(const QString& caption);
    void SlideOut(bool focus);
    void SlideIn();
    bool Out() const { return out_; }
    int Extent() const { return extent_; }
    void SetExtent(int extent);
    Qt::ToolBarArea Edge() const { return strip_->Edge(); }
    PaneTitle& Title() { return *title_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void BuildFrame();
    bool Upright() const { return Edge() == Qt::LeftToolBarArea || Edge() == Qt::RightToolBarArea; }
    QRect PlaceOut() const;
    QPoint PlaceIn() const;
    void Slide(const QPoint& from, const QPoint& to);
    void CheckLeft();
    void Grip(const QMouseEvent& event);
    bool HasFocus() const;

    QPointer<EdgeStrip> strip_;
    QMainWindow& window_;
    EdgeTab* tab_;
    PaneTitle* title_;
    QWidget* body_; // holds title and content
    QWidget* grip_; // the inner edge, at which it is drawn wider
    QPointer<QWidget> content_;
    QTimer hover_, left_;
    QPropertyAnimation slide_;
    int extent_;
    std::function<void()> leave_;
    bool out_ = false;
};
