// The title bar of a pane.
#include "host/qt/panes/PaneTitle.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QPainter>
#include <QStyle>

namespace {
constexpr QSize ButtonSize(22, 22);
constexpr QSize IconSize(14, 14);
constexpr int SideMargin = 6;
constexpr int ActiveLine = 2;
}

PaneTitle::PaneTitle(QWidget* parent) : QWidget(parent), caption_(new QLabel(this)) {
    pin_ = MakeButton("PinButton");
    close_ = MakeButton("CloseButton");
    close_->setToolTip(tr("Close"));
    caption_->setTextFormat(Qt::PlainText);
    // A narrow pane must not be kept wide by its name.
    caption_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(SideMargin, 1, 1, 1);
    row->setSpacing(0);
    row->addWidget(caption_, 1);
    row->addWidget(pin_);
    row->addWidget(close_);
    connect(pin_, &QToolButton::clicked, this, &PaneTitle::AutoHideAsked);
    connect(close_, &QToolButton::clicked, this, &PaneTitle::CloseAsked);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        const bool active = now && parentWidget() && parentWidget()->isAncestorOf(now);
        if (active == active_) return;
        active_ = active;
        update();
    });
    SetAutoHidden(false);
}

// The focus still moves while a widget is being taken apart.
PaneTitle::~PaneTitle() { disconnect(qApp, nullptr, this, nullptr); }

QToolButton* PaneTitle::MakeButton(const QString& name) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setAutoRaise(true);
    button->setFixedSize(ButtonSize);
    button->setIconSize(IconSize);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void PaneTitle::SetCaption(const QString& caption) {
    caption_->setText(caption);
    close_->setAccessibleName(tr("Close %1").arg(caption));
    pin_->setAccessibleName(tr("Auto-hide %1").arg(caption));
    setAccessibleName(caption);
}

void PaneTitle::SetAutoHidden(bool autoHidden) {
    autoHidden_ = autoHidden;
    pin_->setToolTip(autoHidden ? tr("Keep open") : tr("Auto-hide: roll away to the edge"));
    ShowIcons();
}

void PaneTitle::ShowIcons() {
    pin_->setIcon(QIcon::fromTheme(autoHidden_ ? "window-unpin" : "window-pin"));
    close_->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
}

void PaneTitle::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) ShowIcons();
}

// The same mark as on the tab of the active document: here is where the keys go.
void PaneTitle::paintEvent(QPaintEvent*) {
    if (active_) QPainter(this).fillRect(0, 0, width(), ActiveLine, palette().color(QPalette::Highlight));
}

void PaneTitle::contextMenuEvent(QContextMenuEvent* event) { emit MenuAsked(event->globalPos()); }

#include "moc_PaneTitle.cpp"
