// Fold levels: functions, types and comment blocks. 1024 is the top level.
#pragma once

namespace Mod_Folding {

constexpr int TopLevel = 1024;
constexpr int FunctionLevel = 1025;

// Sets the fold level of a line that was just parsed, and FoldLevel for the next. `foldDelta`: blocks that
// the line opens less those that it closes; `functionLine`: it has marker 0; `sequential`: FoldLevel holds.
void SetLineLevel(int line, int foldDelta, bool functionLine, bool sequential);
// Rewrites the fold levels and main program markers from the line after `line` up to the next line with
// marker 0. `level` is the level of the first of these lines.
void CheckFold(int line, int level);
// Folds or unfolds at a line. If this would hide the caret, the caret moves to the fold's first line.
void ToggleFold(int line);

} // namespace Mod_Folding
