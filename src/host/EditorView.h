// The seam to one Scintilla view: its direct pointer goes in, its notifications come out, in Scintilla's
// order and synchronously.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// What a notification carries; a field that the code does not set is 0.
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
    bool inPaint = false; // styles are needed for a paint, not in the middle of a change
};

class EditorViewEvents {
public:
    virtual ~EditorViewEvents() = default;
    virtual void OnNotify(const SciNotification& notification) = 0;
    virtual void OnSetFocus() = 0;
    virtual void OnKillFocus() = 0;
    virtual void OnDropFiles(const std::vector<std::string>& paths) = 0;
    // A character (UTF-8) comes in that has no byte in Windows-1252, into a view that shows single bytes.
    // Answers whether the view shows UTF-8 now; else the character is left out.
    virtual bool OnBeyondCodePage(const std::string&) { return false; }
    // An undo or a redo has led over the view's change to UTF-8: what it is to show now.
    virtual void OnHistoryCodePage(bool /*utf8*/) {}
};

using SciDirectFunction = std::intptr_t (*)(std::intptr_t pointer, unsigned message, std::uintptr_t wParam,
                                            std::intptr_t lParam);

class EditorView {
public:
    virtual ~EditorView() = default;

    virtual std::intptr_t DirectPointer() = 0;
    virtual SciDirectFunction DirectFunction() = 0;
    // Where notifications go from now on; null stops them.
    virtual void SetEvents(EditorViewEvents* events) = 0;
    // Asks for a repaint at the next turn of the event loop.
    virtual void Redraw() = 0;
    virtual void GrabFocus() = 0;
    // The user's last key moved to another entry of a completion list that is open.
    virtual bool MovedInList() = 0;
    // Text is shown as UTF-8 or as single bytes; positions are bytes in both. The view forgets the markers,
    // the fold levels and the closed folds of all its lines.
    virtual void SetUtf8(bool utf8) = 0;
    // The toolkit's widget, for the one who places it.
    virtual void* NativeWidget() = 0;
};

class EditorViews {
public:
    virtual ~EditorViews() = default;
    // A new view, without text and not shown yet. Null when the edit control cannot be had.
    virtual std::unique_ptr<EditorView> Create() = 0;
};
