// What a typed character brings with it, beside the text itself.
#pragma once

// Runs behind one character that was typed into the active view: it allows a completion list, asks for a tip
// and indents a new line. Writes ACForced.
void CharAdded(int ch);
