// Reports inserted and deleted text, the caret and the selection to assistive technology, each once.
#include "host/qt/view/TextTeller.h"

#include "host/qt/view/NotificationCodes.h"

#include <Qsci/qsciscintillabase.h>

#include <algorithm>

namespace {

using Base = QsciScintillaBase;

// Whether assistive technology is active; cached, because the toolkit's answer walks through the platform.
class Listeners : public QAccessible::ActivationObserver {
public:
    Listeners() : active(QAccessible::isActive()) { QAccessible::installActivationObserver(this); }
    void accessibilityActiveChanged(bool now) override { active = now; }
    bool active;
};

bool AnybodyListens() {
    static Listeners* listeners = new Listeners; // the toolkit keeps it to the end
    return listeners->active;
}

}

TextTeller::TextTeller(QsciScintillaBase& view) : view_(view), offsets_(view) {
    AnybodyListens(); // from now on it is known
}

void TextTeller::Unheard() {
    offsets_.Forget();
    selection_.reset();
}

void TextTeller::Hear(const SciNotification& notification) {
    if (!AnybodyListens()) return Unheard();
    if (notification.code == Modified) Change(notification);
    if (notification.code == UpdateUi) Caret();
}

void TextTeller::Change(const SciNotification& notification) {
    const long from = notification.position, to = from + notification.length;
    if (notification.modificationType & (Base::SC_MOD_BEFOREINSERT | Base::SC_MOD_BEFOREDELETE)) {
        offsets_.BeforeChange(from);
        if (notification.modificationType & Base::SC_MOD_BEFOREDELETE) going_ = offsets_.Text(from, to);
    } else if (notification.modificationType & Base::SC_MOD_INSERTTEXT) {
        const QString text = offsets_.Text(from, to);
        offsets_.Changed(static_cast<int>(text.size()));
        QAccessibleTextInsertEvent event(&view_, offsets_.OffsetOf(from), text);
        Send(&event);
    } else if (notification.modificationType & Base::SC_MOD_DELETETEXT) {
        offsets_.Changed(-static_cast<int>(going_.size()));
        QAccessibleTextRemoveEvent event(&view_, offsets_.OffsetOf(from), going_);
        Send(&event);
        going_.clear();
    }
}

// The first look at a view reports nothing, because nothing has moved yet.
void TextTeller::Caret() {
    const std::pair now(view_.SendScintilla(Base::SCI_GETANCHOR),
                        view_.SendScintilla(Base::SCI_GETCURRENTPOS));
    const auto before = std::exchange(selection_, now);
    if (!before || *before == now) return;
    const int caret = offsets_.OffsetOf(now.second);
    if (before->second != now.second) {
        QAccessibleTextCursorEvent event(&view_, caret);
        Send(&event);
    }
    if (before->first == before->second && now.first == now.second) return;
    const int anchor = offsets_.OffsetOf(now.first);
    offsets_.OffsetOf(now.second); // the next key is there
    QAccessibleTextSelectionEvent event(&view_, std::min(anchor, caret), std::max(anchor, caret));
    event.setCursorPosition(caret);
    Send(&event);
}
