// Keys and paints as a user's view gets them.
#pragma once

#include "host/EditorView.h"

#include <QAbstractScrollArea>
#include <chrono>

QAbstractScrollArea* Widget(EditorView& view);
void Show(QAbstractScrollArea& widget, QSize size);
// Processes all waiting events, and paints: the whole view or what has changed.
void Paint(QAbstractScrollArea& widget, bool whole);
// A key without its paint.
void Press(QAbstractScrollArea& widget, int key, const QString& text = {});

// The seconds that an action takes.
template <class Action>
double Seconds(Action action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}
