// A dock pane: a place round the documents that hosts one form. It is docked, floats, or is rolled away to
// the edge of the window.
#pragma once

#include "host/DockStudio.h"
#include "host/qt/layout/Layout.h"
#include "host/qt/panes/EdgeStrip.h"
#include "host/qt/panes/PaneTitle.h"
#include "host/qt/panes/RolledPane.h"

#include <QDockWidget>
#include <QMainWindow>
#include <functional>
#include <map>
#include <memory>

// What a pane reports, and what it needs of the window.
struct PaneOwner {
    std::function<void(const std::string& pane, bool shown)> shown;
    std::function<void(const std::string& pane, bool begins)> dragged;
    std::function<void()> leave;                     // gives the focus to the documents
    std::map<Qt::DockWidgetArea, EdgeStrip*> strips; // one for each side
};

class QtPane : public QObject, public DockPane {
public:
    QtPane(const LayoutPane& record, QMainWindow& window, const PaneOwner& owner);
    ~QtPane() override;

    bool Visible() const override;
    bool AutoHidden() const override { return autoHidden_; }
    void SetAutoHidden(bool autoHidden) override;
    void Show() override;
    void Hide() override;
    bool HasFocus() const override;
    bool Floating() const override { return !rolled_ && dock_->isFloating(); }
    void SetFloating(bool floating) override;
    void Enlarge(int steps) override;

    void Replace(const LayoutPane& record);
    void Attach(Form& form, const std::string& caption, const std::string& icon);
    const std::string& Name() const { return record_.name; }
    const std::string& Caption() const { return record_.caption; }
    // True if the pane is open, even under another tab or rolled away.
    bool Present() const { return rolled_ || !dock_->isHidden(); }
    // Shown or hidden as a check mark says.
    void SetPresent(bool present) { present ? Show() : Hide(); }
    Qt::DockWidgetArea Area() const;
    LayoutPane Record() const;
    // Gives it the extent of its record, and puts it as a tab onto another: for an arrangement without a
    // record of the window's own.
    void TakeExtent();
    void TabOnto(QtPane& first);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void RollAway(int extent);
    void RollBack();
    void Float();
    void MoveTo(Qt::DockWidgetArea area);
    void ShowMenu(const QPoint& global);
    void ConnectTitle(PaneTitle& title);
    int Extent() const;
    bool Upright() const;

    LayoutPane record_;
    QMainWindow& window_;
    const PaneOwner& owner_;
    QDockWidget* dock_;
    PaneTitle* title_;
    std::unique_ptr<RolledPane> rolled_; // while it is rolled away and not closed
    bool autoHidden_ = false;
    bool arranging_ = false; // shown and hidden by a change of its state, not by the user
    bool dragging_ = false;
    QPoint press_;
};
