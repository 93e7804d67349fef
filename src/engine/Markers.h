// The line markers: the parser's durable notes on a line, which the edit control moves with the text.
#pragma once

namespace Mod_Parse {

// Marker numbers; the mask of a marker is 1 << number.
enum : int {
    MarkerFunction = 0,
    MarkerQueued = 1,
    MarkerType = 2,
    MarkerParsed = 3,
    MarkerBookmark = 4,
    MarkerFoldOpens = 5,
    MarkerFoldCloses = 7,
    MarkerDeclares = 8,
    MarkerInactiveCaret = 13,
    MarkerLocal = 14,
    MarkerPosition = 18,
    MarkerMainProgram = 21,
    MarkerBlock = 22,
    MarkerBreakpoint = 23,
    // From here on the fold margin's own symbols, which the edit control chooses by these numbers.
    MarkerFolderEnd = 25,     // a closed level inside another one
    MarkerFolderOpenMid = 26, // an open level inside another one
    MarkerFolderMidTail = 27,
    MarkerFolderTail = 28,
    MarkerFolderSub = 29,
    MarkerFolder = 30,     // a closed level
    MarkerFolderOpen = 31, // an open level
};
constexpr int MaskOf(int marker) { return 1 << marker; }
bool HasMarker(int line, int marker);
// Takes a marker off a line as often as it is there: one call of the view takes one of several.
void DeleteEvery(int line, int marker);
// Gives a line marker 21 or takes it away, as CurrentFunctionName says; empty counts as outside.
void MarkMainProgram(int line);

} // namespace Mod_Parse
