// The arrangement as a whole: loading, saving, and the place of the window.
#include "host/Failure.h"
#include "host/qt/QtDockStudio.h"
#include "host/qt/QtFiles.h"
#include "host/qt/QtText.h"
#include "host/qt/StartPage.h"

#include <QMenuBar>

namespace {

constexpr int TwipsPerPixel = 15;
enum : int { Normal = 0, Minimised = 1, Maximised = 2 };

}

void QtDockStudio::LoadLayout(const std::string& path) {
    Layout layout = ParseLayout(QtFiles().Read(path));
    AddWhatIsNew(Present(), layout);
    Apply(layout);
}

Layout QtDockStudio::Present() {
    Layout layout;
    for (const auto& command : table_.All()) layout.commands.push_back(command->Record());
    for (const auto& bar : bars_) layout.bars.push_back(bar->Record());
    for (const auto& pane : panes_) layout.panes.push_back(pane->Record());
    layout.start = start_;
    return layout;
}

void QtDockStudio::Apply(const Layout& layout) {
    window_.setUpdatesEnabled(false);
    bars_.clear();
    window_.menuBar()->clear();
    table_.Replace(layout.commands);
    for (const auto& command : table_.All())
        if (command->Menu()) menus_.Prepare(*command);
    for (const LayoutBar& record : layout.bars)
        bars_.push_back(std::make_unique<QtBar>(record, window_, table_));
    for (const LayoutPane& record : layout.panes) {
        if (QtPane* pane = Pane(record.name))
            pane->Replace(record);
        else
            AddPane(record);
    }
    start_ = layout.start;
    area_->SetStartPage(new StartPage(start_, table_));
    if (!layout.windowState.empty())
        window_.restoreState(QByteArray::fromBase64(QByteArray::fromStdString(layout.windowState)));
    window_.setUpdatesEnabled(suspended_ <= 0);
}

void QtDockStudio::SaveLayout(const std::string& path) {
    Layout layout = Present();
    layout.windowState = window_.saveState().toBase64().toStdString();
    QtFiles files;
    if (const auto separator = path.find_last_of('/'); separator != path.npos && separator > 0)
        files.MakeFolders(path.substr(0, separator));
    files.Write(path, WriteLayout(layout));
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
