// The position browser: a ring of the last places that the user worked in, across all documents. Each is
// anchored by a line marker, so it moves with the text.
#pragma once

#include <cstdint>
#include <functional>

namespace Mod_SciFun {

// Records a place of the active document: position in bytes, line from 0. Near the present place that one
// moves; farther away a new one follows it, and the places that led forward from it are forgotten.
void CheckCBrowser(std::intptr_t position, std::intptr_t line);
// Moves back and forward through the places. The caret stays where there is none.
void GotoPreviousPosition();
void GotoNextPosition();
// Records the lines of the active document's places. The returned function sets their markers again on these
// lines, after the view has lost all markers.
std::function<void()> KeepPlaces();

} // namespace Mod_SciFun
