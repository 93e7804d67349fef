// The notification after a change is delivered with the library's next notification or when the changing
// message returns. No code of the program runs in between, so its owner sees the library's order.
#include "host/qt/view/ChangeEvents.h"

#include "host/qt/view/NotificationCodes.h"

#include <Qsci/qsciscintillabase.h>

#include <algorithm>
#include <cstring>
#include <vector>

namespace {

using Base = QsciScintillaBase;

constexpr int BeforeInsert = Base::SC_MOD_BEFOREINSERT;
constexpr int BeforeChange = Base::SC_MOD_BEFOREINSERT | Base::SC_MOD_BEFOREDELETE;
constexpr int Change = Base::SC_MOD_INSERTTEXT | Base::SC_MOD_DELETETEXT;

SciDirectFunction libraryFunction = nullptr;
std::vector<ChangeEvents*> views;
// The view that owes the notification of a change.
ChangeEvents* owing = nullptr;

// The text that a message inserts, if it is one that does.
QByteArray TextOf(unsigned message, std::uintptr_t length, std::intptr_t text) {
    const auto* bytes = reinterpret_cast<const char*>(text);
    switch (message) {
    case Base::SCI_REPLACESEL:
    case Base::SCI_INSERTTEXT: return QByteArray::fromRawData(bytes, static_cast<int>(std::strlen(bytes)));
    case Base::SCI_ADDTEXT: return QByteArray::fromRawData(bytes, static_cast<int>(length));
    case Base::SCI_REPLACETARGET:
        return QByteArray::fromRawData(bytes, static_cast<std::intptr_t>(length) < 0
                                                  ? static_cast<int>(std::strlen(bytes))
                                                  : static_cast<int>(length));
    default: return {};
    }
}

bool IsWatched(unsigned message) {
    switch (message) {
    case Base::SCI_SETMODEVENTMASK:
    case Base::SCI_AUTOCSHOW:
    case Base::SCI_REPLACESEL:
    case Base::SCI_INSERTTEXT:
    case Base::SCI_ADDTEXT:
    case Base::SCI_REPLACETARGET:
    case Base::SCI_PASTE: return true;
    default: return false;
    }
}

} // namespace

ChangeEvents::ChangeEvents(QsciScintillaBase& view, Hand hand, std::function<void()> unheard,
                           std::function<void()> travelled, std::function<bool()> mayShowList)
    : view_(view), hand_(std::move(hand)), unheard_(std::move(unheard)), travelled_(std::move(travelled)),
      mayShowList_(std::move(mayShowList)), pointer_(view.SendScintilla(Base::SCI_GETDIRECTPOINTER)) {
    views.push_back(this);
}

ChangeEvents::~ChangeEvents() {
    views.erase(std::find(views.begin(), views.end(), this));
    if (owing == this) owing = nullptr;
}

SciDirectFunction ChangeEvents::DirectFunction(SciDirectFunction library) {
    libraryFunction = library;
    return Direct;
}

ChangeEvents* ChangeEvents::Of(std::intptr_t pointer) {
    for (ChangeEvents* events : views)
        if (events->pointer_ == pointer) return events;
    return nullptr;
}

// Sends a message that this class has to watch.
std::intptr_t ChangeEvents::SendWatched(unsigned message, std::uintptr_t wParam, std::intptr_t lParam) {
    const std::intptr_t pointer = pointer_;
    switch (message) {
    case Base::SCI_SETMODEVENTMASK:
        mask_ = static_cast<int>(wParam);
        ApplyMask();
        if (!narrowed_) unheard_();
        return 0;
    case Base::SCI_AUTOCSHOW:
        if (!mayShowList_()) message = Base::SCI_AUTOCCANCEL;
        return libraryFunction(pointer, message, wParam, lParam);
    default: break;
    }
    inserting_ = TextOf(message, wParam, lParam);
    const std::intptr_t result = libraryFunction(pointer, message, wParam, lParam);
    if (ChangeEvents* events = Of(pointer)) events->inserting_.clear();
    return result;
}

std::intptr_t ChangeEvents::Direct(std::intptr_t pointer, unsigned message, std::uintptr_t wParam,
                                   std::intptr_t lParam) {
    if (owing) FlushPending();
    ChangeEvents* events = IsWatched(message) ? Of(pointer) : nullptr;
    const std::intptr_t result = events ? events->SendWatched(message, wParam, lParam)
                                        : libraryFunction(pointer, message, wParam, lParam);
    if (owing) FlushPending();
    if (message == Base::SCI_UNDO || message == Base::SCI_REDO)
        if (ChangeEvents* travelled = Of(pointer)) travelled->travelled_();
    return result;
}

void ChangeEvents::ApplyMask() {
    if (mask_ < 0) return;
    // The bits for the origin of a change are left out, because they would also enable the notifications left
    // out here.
    narrowed_ = (mask_ & Change) == Change && (mask_ & BeforeChange) == BeforeChange;
    const int heard = narrowed_ ? BeforeChange : mask_;
    // What the history holds beside the text is the view's own matter.
    view_.SendScintilla(Base::SCI_SETMODEVENTMASK, heard == 0 ? 0 : heard | Base::SC_MOD_CONTAINER);
}

void ChangeEvents::FlushPending() {
    ChangeEvents& events = *owing;
    owing = nullptr;
    const auto lines = events.view_.SendScintilla(Base::SCI_GETLINECOUNT);
    events.after_.linesAdded = lines - events.linesBefore_;
    events.hand_(events.after_);
}

void ChangeEvents::Deliver(const SciNotification& notification) {
    // When the save point is left the text has changed, but nothing else of the view has followed yet.
    if (owing && notification.code != SavePointLeft) FlushPending();
    const bool change = notification.code == Modified;
    if (!change || !(notification.modificationType & BeforeChange)) return hand_(notification);
    SciNotification before = notification;
    const bool told = (before.modificationType & BeforeInsert) && before.length == inserting_.size();
    if (told && !before.text) before.text = inserting_.constData();
    hand_(before);
    if (told) inserting_.clear();
    if (!narrowed_) return;
    after_ = notification;
    after_.text = nullptr;
    after_.modificationType &= ~BeforeChange;
    after_.modificationType |=
        notification.modificationType & BeforeInsert ? Base::SC_MOD_INSERTTEXT : Base::SC_MOD_DELETETEXT;
    linesBefore_ = view_.SendScintilla(Base::SCI_GETLINECOUNT);
    owing = this;
}

ChangeEvents::Inserting::Inserting(ChangeEvents& events, QByteArray text) : events_(events) {
    events_.inserting_ = std::move(text);
}

ChangeEvents::Inserting::~Inserting() { events_.inserting_.clear(); }
