// The events of a view's text for assistive technology.
#pragma once

#include "host/EditorView.h"
#include "host/qt/view/TextOffsets.h"

#include <QAccessible>
#include <optional>
#include <utility>

// Makes the events of one view: text that came and went, the caret, the selection. Nothing is made while no
// assistive technology is active, nor for what a view is filled with before its owner listens.
class TextTeller {
public:
    explicit TextTeller(QsciScintillaBase& view);

    // Hears each notification of the view, in the library's order.
    void Hear(const SciNotification& notification);
    // Changes happened without notifications.
    void Unheard();
    TextOffsets& Offsets() { return offsets_; }

    // Where the events go: to assistive technology, or to a test.
    static inline void (*Send)(QAccessibleEvent* event) = QAccessible::updateAccessibility;

private:
    void Change(const SciNotification& notification);
    void Caret();

    QsciScintillaBase& view_;
    TextOffsets offsets_;
    QString going_;                                  // the text that is about to be deleted
    std::optional<std::pair<long, long>> selection_; // anchor and caret (bytes) as last reported
};
