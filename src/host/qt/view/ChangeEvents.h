// The change notifications of one view. The library would count characters from the start of the text for
// each notification after a change, so it sends none, and this class makes them.
#pragma once

#include "host/EditorView.h"

#include <QByteArray>
#include <functional>

class QsciScintillaBase;

class ChangeEvents {
public:
    using Hand = std::function<void(const SciNotification&)>;

    // `hand` receives what the view's owner is to see. `unheard` runs after changes for which the owner
    // wanted no notifications. `travelled` runs after each undo and redo.
    // `mayShowList` decides whether a completion list opens; a refused one closes the open list.
    ChangeEvents(QsciScintillaBase& view, Hand hand, std::function<void()> unheard,
                 std::function<void()> travelled, std::function<bool()> mayShowList);
    ~ChangeEvents();
    ChangeEvents(const ChangeEvents&) = delete;
    ChangeEvents& operator=(const ChangeEvents&) = delete;

    // The only entry to every view: the library's direct function, with the pending notification delivered
    // before and after each message.
    static SciDirectFunction DirectFunction(SciDirectFunction library);

    // Passes a notification of the library on, after the pending one of an earlier change.
    void Deliver(const SciNotification& notification);

    // Announces the text to be inserted while it lives, because the notification before an insertion carries
    // no text.
    class Inserting {
    public:
        Inserting(ChangeEvents& events, QByteArray text);
        ~Inserting();
        Inserting(const Inserting&) = delete;
        Inserting& operator=(const Inserting&) = delete;

    private:
        ChangeEvents& events_;
    };
    // The same for a paste, whose text is only known during the paste.
    void Insert(const QByteArray& text) { inserting_ = text; }

private:
    static std::intptr_t Direct(std::intptr_t pointer, unsigned message, std::uintptr_t wParam,
                                std::intptr_t lParam);
    void ApplyMask();
    std::intptr_t SendWatched(unsigned message, std::uintptr_t wParam, std::intptr_t lParam);
    static void FlushPending();
    static ChangeEvents* Of(std::intptr_t pointer);

    QsciScintillaBase& view_;
    Hand hand_;
    std::function<void()> unheard_;
    std::function<void()> travelled_;
    std::function<bool()> mayShowList_;
    std::intptr_t pointer_;
    int mask_ = -1; // -1: not set, the library's own value is in force
    bool narrowed_ = false;
    QByteArray inserting_;
    SciNotification after_;
    std::intptr_t linesBefore_ = 0;
};
