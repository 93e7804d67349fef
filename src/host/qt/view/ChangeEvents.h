// The change notifications of one view. The library is not asked for those behind a change, because it would
// count characters from the start of the text on each of them; the view hands them on itself.
#pragma once

#include "host/EditorView.h"

#include <QByteArray>
#include <functional>

class QsciScintillaBase;

class ChangeEvents {
public:
    using Hand = std::function<void(const SciNotification&)>;

    // `hand` takes what the owner of the view is to see; `unheard` runs when the owner asked for no changes
    // and for as long as it did there may have been some; `travelled` runs behind each undo and redo.
    ChangeEvents(QsciScintillaBase& view, Hand hand, std::function<void()> unheard,
                 std::function<void()> travelled);
    ~ChangeEvents();
    ChangeEvents(const ChangeEvents&) = delete;
    ChangeEvents& operator=(const ChangeEvents&) = delete;

    // The one entry to every view: the library's direct function with the pending notification delivered
    // before and behind each message.
    static SciDirectFunction DirectFunction(SciDirectFunction library);

    // Takes a notification of the library and hands it on. What a change before it owes comes first.
    void Take(const SciNotification& notification);

    // Tells for as long as it lives what is about to be inserted, because the notification in front of an
    // insertion carries no text.
    class Inserting {
    public:
        Inserting(ChangeEvents& events, QByteArray text);
        ~Inserting();
        Inserting(const Inserting&) = delete;
        Inserting& operator=(const Inserting&) = delete;

    private:
        ChangeEvents& events_;
    };
    // The same for a paste, whose text is asked for while it is under way.
    void Insert(const QByteArray& text) { inserting_ = text; }

private:
    static std::intptr_t Direct(std::intptr_t pointer, unsigned message, std::uintptr_t wParam,
                                std::intptr_t lParam);
    void ApplyMask();
    bool CaretOnScreen() const;
    static void FlushPending();
    static ChangeEvents* Of(std::intptr_t pointer);

    QsciScintillaBase& view_;
    Hand hand_;
    std::function<void()> unheard_;
    std::function<void()> travelled_;
    std::intptr_t pointer_;
    int mask_ = -1; // -1: none was asked for, the library's own is in force
    bool narrowed_ = false;
    QByteArray inserting_;
    SciNotification after_;
    std::intptr_t linesBefore_ = 0;
};
