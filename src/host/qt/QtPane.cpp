// A dock pane: a place round the documents that hosts one form.
#include "host/qt/QtPane.h"

#include "host/qt/QtText.h"

#include <QAction>
#include <QIcon>
#include <utility>

namespace {

constexpr std::pair<const char*, Qt::DockWidgetArea> AreaNames[] = {
    {"left", Qt::LeftDockWidgetArea},
    {"right", Qt::RightDockWidgetArea},
    {"top", Qt::TopDockWidgetArea},
    {"bottom", Qt::BottomDockWidgetArea},
};

Qt::DockWidgetArea AreaOf(const std::string& name) {
    for (const auto& [text, area] : AreaNames)
        if (name == text) return area;
    return Qt::BottomDockWidgetArea;
}

}

QtPane::QtPane(const LayoutPane& record, QMainWindow& window, std::function<void(bool)> shown)
    : window_(window), dock_(new QDockWidget(&window)) {
    dock_->setObjectName("pane-" + Shown(record.name));
    // The toggle action follows the pane itself, not whether another tab lies over it.
    QObject::connect(dock_->toggleViewAction(), &QAction::toggled, dock_, std::move(shown));
    Replace(record);
}

QtPane::~QtPane() { dock_->deleteLater(); }

void QtPane::Replace(const LayoutPane& record) {
    record_ = record;
    dock_->setWindowTitle(Shown(record.caption));
    window_.addDockWidget(AreaOf(record.area), dock_);
    dock_->setVisible(record.visible);
}

void QtPane::Attach(Form& form, const std::string& caption, const std::string& icon) {
    auto* widget = static_cast<QWidget*>(form.NativeWidget());
    record_.caption = caption;
    record_.icon = icon;
    dock_->setWindowTitle(Shown(caption));
    dock_->setWindowIcon(QIcon::fromTheme(Shown(icon)));
    if (dock_->widget() != widget) dock_->setWidget(widget);
}

bool QtPane::Visible() const {
    if (dock_->isHidden()) return false;
    // Behind another tab it counts as not visible, so that a toggle brings it to the front.
    return !window_.isVisible() || !dock_->visibleRegion().isEmpty();
}

void QtPane::Show() {
    dock_->show();
    dock_->raise();
    if (dock_->widget()) dock_->widget()->setFocus(Qt::OtherFocusReason);
}

void QtPane::Hide() { dock_->hide(); }

LayoutPane QtPane::Record() const {
    LayoutPane record = record_;
    record.visible = !dock_->isHidden();
    for (const auto& [text, area] : AreaNames)
        if (window_.dockWidgetArea(dock_) == area) record.area = text;
    return record;
}
