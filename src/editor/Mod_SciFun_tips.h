// Shows the call and parameter at the caret, or the line that opened the scope which a closing word at the
// caret ends: in the tip box, and as a call tip in the view.
#pragma once

#include <cstdint>
#include <string>

namespace Mod_SciFun {

// The call around the caret.
struct CallAtCaret {
    std::string name;       // empty in no call
    bool isUser = false;    // a function of the program, not a keyword
    int param = 0;          // the parameter, from 1; 0 for none
    bool showScope = false; // the line begins with a word that closes a scope
    int column = 0;         // of the name's start in the line, from 0
};

// Reads the line up to the caret's word. `pos`: the caret, on `line`.
CallAtCaret ZemiHelp(std::intptr_t pos, int line);

// Updates the tip for the caret's position. Lowers mShowCallTip. Failures are reported.
void ShowHelp(std::intptr_t pos, int line);
// Shows the line that opened the scope which `line` closes.
void ShowStartScope(int line);
// ShowHelp at the caret, with the call tip.
void ShowCalltip();
// The help page of the word at the caret; a beep where there is none.
void KeywordHelp();

} // namespace Mod_SciFun
