// The editing commands that are more than one message to the view. All work on the active document, do
// nothing without one, and are one undo step each. Lines count from 0.
#pragma once

namespace Mod_SciFun {

// The lines that a command on the selection changes. A selection that ends before a line's first character
// excludes that line; a closed fold at its end is included whole.
struct LineSpan {
    int first;
    int last;
};
LineSpan SelectedLines();

// A line break with the indentation that follows from it.
void NewLine();
// A line break, and below the caret the words that close the scope which the line opened.
void CompleteScope();

// Without a selection, what the Tab key does.
void IndentSelection();
void UnIndentSelection();
// Gives the selected lines, or those of the function round the caret, the indentation of their scopes.
void AutoIndentSelection();
void AutoindentCurrentFunction();

void CommentSelection();
void UnCommentSelection();
// Puts the selected lines between the comments of a block that folds.
void BlockFromSelection();

// Swap the caret's line with its neighbour; a beep where there is none.
void MoveCurrentLineUp();
void MoveCurrentLineDown();

// The folds of all lines that have one of the markers in a mask.
constexpr int AnyFold = ~0;
void FoldEverything(int mask);
void UnFoldEverything(int mask);

// Toggles a "Stop" at the start of a line; -1 means the caret's line.
void ToggleBreakPoint(int line = -1);

// Asks for a file and inserts its path as seen from the document's folder, in quotes.
void InsertFilePath();

} // namespace Mod_SciFun
