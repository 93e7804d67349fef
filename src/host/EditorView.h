// One Scintilla view: calls go through its direct pointer, notifications arrive synchronously and in
// Scintilla's order.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// The fields of a notification. A field that its code does not use is 0.
struct SciNotification {
    int code = 0;
    long position = 0;
    int ch = 0;
    int modifiers = 0;
    int modificationType = 0;
    const char* text = nullptr;
    long length = 0;
    long linesAdded = 0;
    long line = 0;
    int foldLevelNow = 0;
    int foldLevelPrev = 0;
    int margin = 0;
    int x = 0;
    int y = 0;
    int updated = 0;
    bool inPaint = false; // a paint needs the styles, and no change is in progress
};

class EditorViewEvents {
public:
    virtual ~EditorViewEvents() = default;
    virtual void OnNotify(const SciNotification& notification) = 0;
    virtual void OnSetFocus() = 0;
    virtual void OnKillFocus() = 0;
    virtual void OnDropFiles(const std::vector<std::string>& paths) = 0;
    // A character (UTF-8) without a byte in Windows-1252 was typed into a view of single bytes. Returns
    // whether the view shows UTF-8 now; if not, the view drops the character.
    virtual bool OnBeyondCodePage(const std::string&) { return false; }
    // An undo or a redo has crossed the view's change to UTF-8. `utf8`: what the view has to show now.
    virtual void OnHistoryCodePage(bool /*utf8*/) {}
};

using SciDirectFunction = std::intptr_t (*)(std::intptr_t pointer, unsigned message, std::uintptr_t wParam,
                                            std::intptr_t lParam);

class EditorView {
public:
    virtual ~EditorView() = default;

    virtual std::intptr_t DirectPointer() = 0;
    virtual SciDirectFunction DirectFunction() = 0;
    // Sends notifications to `events` from now on; null stops them.
    virtual void SetEvents(EditorViewEvents* events) = 0;
    // Requests a repaint in the next turn of the event loop.
    virtual void Redraw() = 0;
    virtual void GrabFocus() = 0;
    // Whether the user's last key selected another entry of the open completion list.
    virtual bool MovedInList() = 0;
    // Shows the text as UTF-8 or as single bytes; positions are bytes either way. The view loses all markers,
    // fold levels and closed folds.
    virtual void SetUtf8(bool utf8) = 0;
    // The toolkit's widget, for placing it in a window.
    virtual void* NativeWidget() = 0;
};

class EditorViews {
public:
    virtual ~EditorViews() = default;
    // A new empty view, not visible yet. Null if the edit control cannot be created.
    virtual std::unique_ptr<EditorView> Create() = 0;
};
