// The jumps that every kind of navigation ends in.
#pragma once

#include <cstdint>

class frmDoc;

namespace Mod_SciFun {

// Puts the caret at the start of a line (from 0) that is shown whatever folds it lies in; with
// GotoPositionsAtTop the line lands at the top of the window. Nothing without an active document.
void GotoLine(std::intptr_t line);
// Puts the caret at a position (bytes) of the active view, whatever folds it lies in.
void GotoPosition(std::intptr_t position);
// Brings a document to the front. False when it has no window any more.
bool BringToFront(const frmDoc& document);

// The next or previous line that begins a function. At the last one the caret stays.
void GotoNextFunction();
void GotoPreviousFunction();

} // namespace Mod_SciFun
