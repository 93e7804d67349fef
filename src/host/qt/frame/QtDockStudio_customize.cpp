// The frame while the user customises it.
#include "host/qt/customize/CustomizeDialog.h"
#include "host/qt/frame/QtDockStudio.h"
#include "host/qt/system/QtText.h"

#include <QMenuBar>
#include <algorithm>

namespace {
constexpr const char* OwnBar = "own-"; // begins the name of a bar that the user made
}

void QtDockStudio::Customize() {
    // A closed one may still wait to be deleted.
    if (customizing_ && customizing_->isVisible()) {
        customizing_->raise();
        return customizing_->activateWindow();
    }
    before_ = Present();
    if (events_) events_->DS_Customization(true);
    customizing_ = new CustomizeDialog(*this, &window_);
    customizing_->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(customizing_, &QDialog::finished, &window_, [this] {
        if (events_) events_->DS_Customization(false);
    });
    customizing_->show();
}

void QtDockStudio::EndCustomizing() {
    if (customizing_) customizing_->close();
}

std::vector<CommandPlace> QtDockStudio::Places() {
    std::vector<CommandPlace> places;
    for (const auto& bar : bars_) {
        const LayoutBar record = bar->Record();
        if (record.kind == BarKind::Status) continue;
        places.push_back({.name = record.name,
                          .caption = record.caption.empty() ? Shown(record.name) : Shown(record.caption),
                          .kind = record.kind,
                          .ownBar = record.name.starts_with(OwnBar)});
    }
    for (const auto& command : table_.All())
        if (command->Menu())
            places.push_back({.name = command->Name(), .caption = command->PlainCaption(), .popup = true});
    return places;
}

std::string QtDockStudio::AddBar(const QString& caption) {
    int number = 1;
    while (Bar(OwnBar + std::to_string(number))) ++number;
    const LayoutBar record{.name = OwnBar + std::to_string(number), .caption = Typed(caption)};
    bars_.push_back(std::make_unique<QtBar>(record, window_, table_));
    bars_.back()->ToolBar()->setAcceptDrops(true);
    return record.name;
}

void QtDockStudio::RemoveBar(const std::string& name) {
    std::erase_if(bars_, [&](const auto& bar) { return bar->Name() == name; });
}

const LayoutCommand* QtDockStudio::Factory(const std::string& command) const {
    const auto at = std::find_if(factory_.commands.begin(), factory_.commands.end(),
                                 [&](const LayoutCommand& record) { return record.name == command; });
    return at == factory_.commands.end() ? nullptr : &*at;
}

void QtDockStudio::Revert() {
    Apply(before_);
    // What the owner does to the arrangement at the begin is part of customising, not of what is put back.
    if (events_) {
        events_->DS_Customization(false);
        events_->DS_Customization(true);
    }
}

QWidget* QtDockStudio::WidgetOf(const std::string& place) {
    const QtBar* bar = Bar(place);
    if (!bar) return nullptr;
    return bar->Kind() == BarKind::Menu ? window_.menuBar() : static_cast<QWidget*>(bar->ToolBar());
}
