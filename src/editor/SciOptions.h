// What a view is set up with: the user's options, and what never changes.
#pragma once

// The margins of a view, from the left.
enum : int { NumberMargin = 0, MarkerMargin = 1, FoldMargin = 2 };

// Sends the settings of section OptionsEdit to the active view; `applyStyles`: the colour style too.
// Run at creation and after a change of preferences. A failure is reported and leaves the rest unsent.
void SetSciOptions(bool applyStyles);
// Sends what never changes after creation: event mask, keys, marker symbols.
void SetSciConstants();
// The modification events that a view sends.
constexpr int EventMask = 3443;
// Adjusts the width of the line number margin to the line count.
void UpdateLineNumberMargin();
