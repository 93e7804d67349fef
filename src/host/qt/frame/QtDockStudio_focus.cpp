// The ways of the keyboard through the window: from part to part, and back to the text.
#include "host/qt/frame/QtDockStudio.h"

#include <QApplication>
#include <QMenuBar>
#include <algorithm>

namespace {

// Tab reaches the boxes of a tool bar but not its buttons, whose commands are in menus.
std::vector<QWidget*> BoxesOf(const QToolBar& bar) {
    std::vector<QWidget*> boxes;
    for (QAction* action : bar.actions()) {
        QWidget* widget = bar.widgetForAction(action);
        if (widget && widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus))
            boxes.push_back(widget);
    }
    return boxes;
}

void Focus(QWidget& widget) {
    widget.window()->activateWindow();
    widget.setFocus(Qt::TabFocusReason);
}

}

void QtDockStudio::FocusDocuments() {
    if (QApplication::activeWindow() != &window_) window_.activateWindow();
    area_->FocusActive();
}

// In the order in which they are looked at: the text, the panes round it, edges, panes that float, bars.
std::vector<QtDockStudio::Stop> QtDockStudio::Stops() {
    const auto focused = [](const QWidget& widget) {
        const QWidget* focus = QApplication::focusWidget();
        return focus && (focus == &widget || widget.isAncestorOf(focus));
    };
    std::vector<Stop> stops{{focused(*area_), [this] { FocusDocuments(); }}};
    const auto addPanes = [&](bool floating) {
        for (const auto& pane : panes_)
            if (pane->Present() && !pane->AutoHidden() && pane->Floating() == floating)
                stops.push_back({pane->HasFocus(), [pane = pane.get()] { pane->Show(); }});
    };
    addPanes(false);
    for (const auto& [side, strip] : paneOwner_.strips) {
        if (strip->isHidden()) continue;
        bool here = focused(*strip);
        for (const auto& pane : panes_)
            here = here || (pane->AutoHidden() && pane->Area() == side && pane->HasFocus());
        stops.push_back({here, [strip = strip] { strip->FocusFirstTab(); }});
    }
    addPanes(true);
    for (const auto& bar : bars_) {
        if (!bar->ToolBar() || !bar->Visible()) continue;
        for (QWidget* box : BoxesOf(*bar->ToolBar()))
            stops.push_back({focused(*box), [box] { Focus(*box); }});
    }
    return stops;
}

void QtDockStudio::NextPane(int step) {
    const std::vector<Stop> stops = Stops();
    const auto at = std::find_if(stops.begin(), stops.end(), [](const Stop& stop) { return stop.here; });
    const auto count = static_cast<int>(stops.size());
    const int from = at == stops.end() ? (step > 0 ? -1 : 0) : static_cast<int>(at - stops.begin());
    stops[static_cast<std::size_t>((from + step + count) % count)].go();
}

DockPane* QtDockStudio::CurrentPane() {
    if (QtPane* last = Pane(lastPane_); last && last->Present()) return last;
    const auto any =
        std::find_if(panes_.begin(), panes_.end(), [](const auto& pane) { return pane->Present(); });
    return any == panes_.end() ? nullptr : any->get();
}

void QtDockStudio::OpenMenuBar() {
    QMenuBar& bar = *window_.menuBar();
    for (QAction* action : bar.actions())
        if (action->isVisible() && action->isEnabled()) return bar.setActiveAction(action);
}

// Commands of panes mean the one that was worked in last, also while a menu or the text has the focus.
void QtDockStudio::NoteFocus() {
    for (const auto& pane : panes_)
        if (pane->HasFocus()) lastPane_ = pane->Name();
}
