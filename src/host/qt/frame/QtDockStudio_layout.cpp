// The arrangement as a whole: loading, saving, and the place of the window.
#include "host/Failure.h"
#include "host/Twips.h"
#include "host/qt/frame/QtDockStudio.h"
#include "host/qt/frame/StartPage.h"
#include "host/qt/system/Painting.h"
#include "host/qt/system/QtFiles.h"
#include "host/qt/system/QtText.h"

#include <QMenuBar>
#include <algorithm>

namespace {

enum : int { Normal = 0, Minimised = 1, Maximised = 2 };

}

void QtDockStudio::LoadLayout(const std::string& path) {
    // Set before the file is read: if that fails the text comes from elsewhere, and a later file must not
    // replace it.
    if (factoryPath_.empty()) factoryPath_ = path;
    Layout layout = ParseLayout(QtFiles().Read(path));
    EndCustomizing();
    if (path == factoryPath_)
        factory_ = layout;
    else
        AddWhatIsNew(factory_, layout);
    Apply(layout);
}

void QtDockStudio::LoadFactoryText(const std::string& text) {
    factory_ = ParseLayout(text);
    Apply(factory_);
}

Layout QtDockStudio::Present() {
    Layout layout;
    for (const auto& command : table_.All()) layout.commands.push_back(command->Record());
    for (const auto& bar : bars_) layout.bars.push_back(bar->Record());
    for (const auto& pane : panes_) layout.panes.push_back(pane->Record());
    layout.start = start_;
    layout.offered = PlacedCommands(factory_);
    layout.documents = area_->Record();
    layout.windowState = window_.saveState().toBase64().toStdString();
    return layout;
}

void QtDockStudio::Apply(const Layout& layout) {
    // If painting was already stopped, the code that stopped it also resumes it.
    const bool paints = window_.updatesEnabled();
    SetPainting(window_, false);
    window_.menuBar()->clear();
    table_.Replace(layout.commands);
    for (const auto& command : table_.All())
        if (command->Menu()) menus_.Prepare(*command);
    ApplyBars(layout.bars);
    ApplyPanes(layout.panes);
    start_ = layout.start;
    area_->SetStartPage(new StartPage(start_, table_));
    windowState_ = QByteArray::fromBase64(QByteArray::fromStdString(layout.windowState));
    documents_ = layout.documents;
    settling_.start();
    if (!documents_.area.parts.empty()) area_->Restore(documents_, false);
    RestoreSizes();
    SetPainting(window_, paints);
}

// A bar that is there already keeps its object: the click that loads a layout may come from it.
void QtDockStudio::ApplyBars(const std::vector<LayoutBar>& records) {
    std::vector<std::unique_ptr<QtBar>> old = std::move(bars_);
    bars_.clear();
    for (const LayoutBar& record : records) {
        const auto at = std::find_if(old.begin(), old.end(), [&](const auto& bar) {
            return bar && bar->Name() == record.name && bar->Kind() == record.kind;
        });
        if (at == old.end()) {
            bars_.push_back(std::make_unique<QtBar>(record, window_, table_));
        } else {
            (*at)->Replace(record);
            bars_.push_back(std::move(*at));
        }
    }
    // Each at its place in the file's order; a record of places then moves what the user has moved.
    for (const auto& bar : bars_)
        if (bar->ToolBar()) {
            const bool visible = bar->Visible();
            window_.addToolBar(bar->ToolBar());
            bar->SetVisible(visible);
        }
    window_.addToolBarBreak();
    window_.addToolBar(paneOwner_.strips.at(Qt::TopDockWidgetArea));
}

void QtDockStudio::ApplyPanes(const std::vector<LayoutPane>& records) {
    for (const LayoutPane& record : records) {
        if (QtPane* pane = Pane(record.name))
            pane->Replace(record);
        else
            AddPane(record);
    }
    for (const LayoutPane& record : records) {
        Pane(record.name)->TakeExtent();
        if (QtPane* first = Pane(record.tabbedWith)) Pane(record.name)->TabOnto(*first);
    }
}

void QtDockStudio::RestoreSizes() {
    // A hidden window that will be maximised only remembers the record, and a second one takes its parts
    // away.
    const bool ready = window_.isVisible() || !window_.isMaximized();
    if (!windowState_.isEmpty() && ready) window_.restoreState(windowState_);
    for (const auto& [side, strip] : paneOwner_.strips) strip->ShowIfNeeded();
    area_->RestoreSizes(documents_);
}

// The desktop resizes the window some time after the request, and each resize scales panes and groups. For a
// moment the loaded sizes are therefore restored after each resize, once the toolkit has finished it.
void QtDockStudio::Settle() {
    constexpr int Milliseconds = 1500;
    if (settling_.isValid() && settling_.elapsed() < Milliseconds) settle_.start();
}

void QtDockStudio::SaveLayout(const std::string& path) {
    EndCustomizing();
    QtFiles files;
    if (const auto separator = path.find_last_of('/'); separator != path.npos && separator > 0)
        files.MakeFolders(path.substr(0, separator));
    files.Write(path, WriteLayout(Present()));
}

WindowPlace QtDockStudio::Place() {
    WindowPlace place;
    const QRect frame = window_.isMaximized() ? window_.normalGeometry() : window_.geometry();
    const QPoint corner = window_.isMaximized() ? frame.topLeft() : window_.pos();
    place.top = corner.y() * TwipsPerPixel;
    place.left = corner.x() * TwipsPerPixel;
    place.width = frame.width() * TwipsPerPixel;
    place.height = frame.height() * TwipsPerPixel;
    place.state = window_.isMinimized() ? Minimised : window_.isMaximized() ? Maximised : Normal;
    return place;
}

void QtDockStudio::SetPlace(const WindowPlace& place) {
    // Some desktops ignore the normal size set on a maximised window.
    if (place.state == Normal && window_.isVisible() && window_.isMaximized()) window_.showNormal();
    const WindowPlace now = Place();
    // A maximised window that is moved falls back to its normal size on some desktops.
    if (place.left != now.left || place.top != now.top)
        window_.move(place.left / TwipsPerPixel, place.top / TwipsPerPixel);
    if (place.width != now.width || place.height != now.height)
        window_.resize(place.width / TwipsPerPixel, place.height / TwipsPerPixel);
    wantedState_ = place.state;
    if (window_.isVisible() && place.state != now.state) ShowWindow();
}

void QtDockStudio::ShowWindow() {
    // Otherwise the first box of a tool bar would have the focus of a window without documents.
    if (!area_->Active()) area_->setFocus(Qt::OtherFocusReason);
    if (!window_.isVisible() && settling_.isValid()) settling_.start();
    switch (wantedState_) {
    case Maximised: return window_.showMaximized();
    case Minimised: return window_.showMinimized();
    default: return window_.showNormal();
    }
}

void QtDockStudio::BringToFront() {
    window_.raise();
    window_.activateWindow();
}

void QtDockStudio::CloseWindow() { window_.close(); }
