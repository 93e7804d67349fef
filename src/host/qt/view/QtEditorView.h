// Implements the editor's view interface with the edit control's widget.
#pragma once

#include "host/EditorView.h"

#include <QPointer>

class EditorWidget;

class QtEditorView : public EditorView {
public:
    QtEditorView();
    ~QtEditorView() override;

    std::intptr_t DirectPointer() override;
    SciDirectFunction DirectFunction() override;
    void SetEvents(EditorViewEvents* events) override;
    void Redraw() override;
    void GrabFocus() override;
    bool MovedInList() override;
    void SetUtf8(bool utf8) override;
    void* NativeWidget() override;

private:
    QPointer<EditorWidget> widget_;
};

class QtEditorViews : public EditorViews {
public:
    std::unique_ptr<EditorView> Create() override;
};
