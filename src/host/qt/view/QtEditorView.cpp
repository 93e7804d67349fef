// Implements the editor's view interface with the edit control's widget.
#include "host/qt/view/QtEditorView.h"

#include "host/qt/view/EditorAccessibility.h"
#include "host/qt/view/EditorWidget.h"

namespace {
constexpr unsigned long SingleBytes = 0;
constexpr unsigned long Utf8 = 65001;
}

QtEditorView::QtEditorView() : widget_(new EditorWidget) {
    // Before anything asks for this view's accessible object.
    InstallEditorAccessibility();
    widget_->setAccessibleName(QObject::tr("Source text"));
}

QtEditorView::~QtEditorView() {
    if (!widget_) return;
    widget_->SetEvents(nullptr);
    widget_->hide();
    widget_->setParent(nullptr);
    // The view may be closed by a key that the widget is still handling.
    widget_->deleteLater();
}

std::intptr_t QtEditorView::DirectPointer() {
    return static_cast<std::intptr_t>(widget_->SendScintilla(QsciScintillaBase::SCI_GETDIRECTPOINTER));
}

SciDirectFunction QtEditorView::DirectFunction() {
    return ChangeEvents::DirectFunction(reinterpret_cast<SciDirectFunction>(
        widget_->SendScintilla(QsciScintillaBase::SCI_GETDIRECTFUNCTION)));
}

void QtEditorView::SetEvents(EditorViewEvents* events) { widget_->SetEvents(events); }
void QtEditorView::Redraw() { widget_->viewport()->update(); }
void QtEditorView::GrabFocus() { widget_->setFocus(Qt::OtherFocusReason); }
bool QtEditorView::MovedInList() { return widget_->MovedInList(); }
void QtEditorView::SetUtf8(bool utf8) {
    widget_->SendScintilla(QsciScintillaBase::SCI_SETCODEPAGE, utf8 ? Utf8 : SingleBytes);
}
void* QtEditorView::NativeWidget() { return static_cast<QWidget*>(widget_.data()); }

std::unique_ptr<EditorView> QtEditorViews::Create() { return std::make_unique<QtEditorView>(); }
