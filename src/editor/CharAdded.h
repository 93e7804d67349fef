// What a typed character brings with it, beside the text itself.
#pragma once

// Called after a character was typed into the active view: allows a completion list, requests a tip and
// indents a new line. Writes ACForced.
void CharAdded(int ch);
