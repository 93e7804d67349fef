// A pane that is rolled away to an edge of the window.
#include "host/qt/panes/RolledPane.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

namespace {
constexpr int HoverMilliseconds = 350;
constexpr int LeaveMilliseconds = 400;
constexpr int SlideMilliseconds = 120;
constexpr int GripWidth = 5;
constexpr int SmallestExtent = 80;
constexpr int LeftOver = 60; // of the documents, however wide the pane is
}

RolledPane::RolledPane(EdgeStrip& strip, QMainWindow& window, const QString& caption, const QIcon& icon,
                       int extent, std::function<void()> leave)
    : QFrame(&window), strip_(&strip), window_(window), tab_(strip.AddTab(caption, icon)),
      title_(new PaneTitle), body_(new QWidget(this)), grip_(new QWidget(this)), slide_(this, "pos"),
      extent_(extent), leave_(std::move(leave)) {
    BuildFrame();
    SetCaption(caption);
    hover_.setSingleShot(true);
    connect(&hover_, &QTimer::timeout, this, [this] {
        if (tab_->underMouse()) SlideOut(false);
    });
    connect(tab_, &EdgeTab::Hovered, this, [this] { hover_.start(HoverMilliseconds); });
    connect(tab_, &QToolButton::clicked, this, [this] { out_&& HasFocus() ? SlideIn() : SlideOut(true); });
    connect(&left_, &QTimer::timeout, this, &RolledPane::CheckLeft);
    connect(&slide_, &QPropertyAnimation::finished, this, [this] {
        if (!out_) hide();
    });
    window_.installEventFilter(this);
}

void RolledPane::BuildFrame() {
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    hide();
    title_->SetAutoHidden(true);
    auto* column = new QVBoxLayout(body_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(title_);
    Upright() ? grip_->setFixedWidth(GripWidth) : grip_->setFixedHeight(GripWidth);
    grip_->setCursor(Upright() ? Qt::SplitHCursor : Qt::SplitVCursor);
    grip_->installEventFilter(this);
    const auto direction = Edge() == Qt::LeftToolBarArea    ? QBoxLayout::LeftToRight
                           : Edge() == Qt::RightToolBarArea ? QBoxLayout::RightToLeft
                           : Edge() == Qt::TopToolBarArea   ? QBoxLayout::TopToBottom
                                                            : QBoxLayout::BottomToTop;
    auto* row = new QBoxLayout(direction, this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(body_, 1);
    row->addWidget(grip_);
}

RolledPane::~RolledPane() {
    if (strip_ && tab_) strip_->RemoveTab(tab_);
}

void RolledPane::Retire() {
    SlideIn();
    slide_.stop();
    hide();
    if (strip_) strip_->RemoveTab(tab_);
    tab_ = nullptr;
    hover_.stop();
    deleteLater();
}

void RolledPane::SetCaption(const QString& caption) {
    title_->SetCaption(caption);
    tab_->setText(caption);
    setAccessibleName(caption);
}

void RolledPane::SetContent(QWidget* content) {
    content_ = content;
    if (!content) return;
    body_->layout()->addWidget(content);
    content->show();
}

QWidget* RolledPane::TakeContent() {
    QWidget* content = content_;
    content_ = nullptr;
    if (content) body_->layout()->removeWidget(content);
    return content;
}

QRect RolledPane::PlaceOut() const {
    const QRect strip = strip_->geometry();
    const int room =
        (Upright() ? window_.width() - strip.width() : window_.height() - strip.height()) - LeftOver;
    const int extent = std::clamp(extent_, SmallestExtent, std::max(SmallestExtent, room));
    switch (Edge()) {
    case Qt::LeftToolBarArea: return {strip.right() + 1, strip.top(), extent, strip.height()};
    case Qt::RightToolBarArea: return {strip.left() - extent, strip.top(), extent, strip.height()};
    case Qt::TopToolBarArea: return {strip.left(), strip.bottom() + 1, strip.width(), extent};
    default: return {strip.left(), strip.top() - extent, strip.width(), extent};
    }
}

// The pane is below its strip in the stacking order.
QPoint RolledPane::PlaceIn() const {
    const QRect out = PlaceOut();
    switch (Edge()) {
    case Qt::LeftToolBarArea: return out.topLeft() - QPoint(out.width(), 0);
    case Qt::RightToolBarArea: return out.topLeft() + QPoint(out.width(), 0);
    case Qt::TopToolBarArea: return out.topLeft() - QPoint(0, out.height());
    default: return out.topLeft() + QPoint(0, out.height());
    }
}

void RolledPane::Slide(const QPoint& from, const QPoint& to) {
    raise();
    strip_->raise();
    slide_.stop();
    slide_.setDuration(style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0 ? SlideMilliseconds : 0);
    slide_.setStartValue(from);
    slide_.setEndValue(to);
    slide_.start();
}

void RolledPane::SlideOut(bool focus) {
    if (!strip_) return;
    hover_.stop();
    if (!out_) {
        out_ = true;
        const QRect place = PlaceOut();
        resize(place.size());
        const QPoint from = isVisible() ? pos() : PlaceIn();
        move(from);
        show();
        Slide(from, place.topLeft());
        left_.start(LeaveMilliseconds);
    }
    tab_->setChecked(true);
    if (!focus) return;
    if (content_) content_->setFocus(Qt::OtherFocusReason);
}

void RolledPane::SlideIn() {
    tab_->setChecked(false);
    left_.stop();
    if (!out_) return;
    out_ = false;
    if (HasFocus()) leave_();
    Slide(pos(), PlaceIn());
}

bool RolledPane::HasFocus() const {
    const QWidget* focus = QApplication::focusWidget();
    return focus && isAncestorOf(focus);
}

// It stays out while it is worked in, or while the pointer is over it or its tab.
void RolledPane::CheckLeft() {
    const bool busy = HasFocus() || QApplication::activePopupWidget() || QApplication::activeModalWidget() ||
                      QApplication::mouseButtons() != Qt::NoButton;
    if (!busy && !underMouse() && !tab_->underMouse()) SlideIn();
}

bool RolledPane::eventFilter(QObject* watched, QEvent* event) {
    if (watched == grip_ && event->type() == QEvent::MouseMove) Grip(*static_cast<QMouseEvent*>(event));
    if (watched == &window_ && event->type() == QEvent::LayoutRequest && out_ &&
        slide_.state() != QAbstractAnimation::Running)
        setGeometry(PlaceOut());
    if (watched == &window_ && event->type() == QEvent::Resize && out_)
        // The strip gets its new place after the window.
        QTimer::singleShot(0, this, [this] {
            if (out_ && strip_) setGeometry(PlaceOut());
        });
    return QFrame::eventFilter(watched, event);
}

void RolledPane::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QFrame::keyPressEvent(event);
    SlideIn();
}

void RolledPane::Grip(const QMouseEvent& event) {
    if (event.buttons() != Qt::LeftButton || !strip_) return;
    const QPoint at = window_.mapFromGlobal(event.globalPosition().toPoint());
    const QRect strip = strip_->geometry();
    int extent = 0;
    switch (Edge()) {
    case Qt::LeftToolBarArea: extent = at.x() - strip.right(); break;
    case Qt::RightToolBarArea: extent = strip.left() - at.x(); break;
    case Qt::TopToolBarArea: extent = at.y() - strip.bottom(); break;
    default: extent = strip.top() - at.y(); break;
    }
    SetExtent(extent);
}

void RolledPane::SetExtent(int extent) {
    extent_ = std::max(SmallestExtent, extent);
    if (out_) setGeometry(PlaceOut());
}

#include "moc_RolledPane.cpp"
