// One document window: a page in a group of tabs that hosts a form.
#include "host/qt/tabs/QtDocumentWindow.h"

#include "host/qt/system/QtText.h"
#include "host/qt/tabs/TabGroup.h"

#include <QAbstractScrollArea>
#include <QContextMenuEvent>
#include <QVBoxLayout>
#include <algorithm>

namespace {
constexpr int InsideDocument = 1;
}

QtDocumentWindow::QtDocumentWindow(DocumentWindowOwner& area, std::string key, std::string caption)
    : area_(area), key_(std::move(key)), caption_(std::move(caption)), page_(new QWidget) {
    auto* layout = new QVBoxLayout(page_);
    layout->setContentsMargins(0, 0, 0, 0);
}

QtDocumentWindow::~QtDocumentWindow() {
    QtDocumentWindow::Attach(nullptr);
    delete page_;
}

void QtDocumentWindow::SetKey(const std::string& key) {
    key_ = key;
    ShowCaption();
}

void QtDocumentWindow::SetCaption(const std::string& caption) {
    if (caption == caption_) return;
    caption_ = caption;
    ShowCaption();
}

void QtDocumentWindow::ShowCaption() {
    NameWidget();
    TabGroup* group = Group();
    if (!group) return;
    const int index = group->indexOf(page_);
    group->setTabText(index, Shown(caption_).replace('&', "&&"));
    // A window without a file has a key that means nothing to a person.
    group->setTabToolTip(index, Shown(key_.empty() || key_.front() == '{' ? caption_ : key_));
    area_.CaptionsChanged();
}

// Each view is called by its file; the star of unsaved changes is no part of its name.
void QtDocumentWindow::NameWidget() {
    QString name = Shown(caption_);
    if (name.endsWith('*')) name.chop(1);
    if (widget_ && widget_->accessibleName() != name) widget_->setAccessibleName(name);
}

void QtDocumentWindow::Attach(Form* form) {
    if (widget_) {
        widget_->removeEventFilter(this);
        if (auto* scroll = qobject_cast<QAbstractScrollArea*>(widget_))
            scroll->viewport()->removeEventFilter(this);
        widget_->hide();
        widget_->setParent(nullptr);
    }
    form_ = form;
    widget_ = form ? static_cast<QWidget*>(form->NativeWidget()) : nullptr;
    if (!widget_) return;
    page_->layout()->addWidget(widget_);
    NameWidget();
    widget_->installEventFilter(this);
    if (auto* scroll = qobject_cast<QAbstractScrollArea*>(widget_))
        scroll->viewport()->installEventFilter(this);
    widget_->show();
}

bool QtDocumentWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ContextMenu || !area_.events) return QObject::eventFilter(watched, event);
    const auto* context = static_cast<QContextMenuEvent*>(event);
    const bool byKey = context->reason() == QContextMenuEvent::Keyboard;
    area_.menuPlace = byKey ? BelowCaret() : context->globalPos();
    bool cancel = false;
    area_.events->DS_DocumentWindowContextClick(*this, InsideDocument, byKey ? -1 : context->x(),
                                                byKey ? -1 : context->y(), cancel);
    area_.menuPlace.reset();
    return cancel;
}

// The caret may be scrolled out of sight.
QPoint QtDocumentWindow::BelowCaret() const {
    const QPoint caret = widget_->inputMethodQuery(Qt::ImCursorRectangle).toRect().bottomLeft();
    const QRect inside = widget_->rect();
    return widget_->mapToGlobal(QPoint(std::clamp(caret.x(), inside.left(), inside.right()),
                                       std::clamp(caret.y(), inside.top(), inside.bottom())));
}

TabGroup* QtDocumentWindow::Group() const { return page_ ? area_.GroupOf(page_) : nullptr; }

void QtDocumentWindow::SetVisible(bool visible) {
    if (visible)
        area_.Activate(*this);
    else
        area_.Hide(*this);
}

void QtDocumentWindow::Activate() { area_.Activate(*this); }

bool QtDocumentWindow::InFront() const {
    const TabGroup* group = Group();
    return group && group->currentWidget() == page_;
}

void QtDocumentWindow::FocusForm() {
    if (widget_) widget_->setFocus(Qt::OtherFocusReason);
}
