// How the words of a line change the indentation level. The parser and the indenting commands read the full
// scanner's tokens by these rules; the reader of light tokens in Mod_Scope.cpp has rules of its own.
#pragma once

#include "engine/Keywords.h"

struct Levels {
    int opens = 0;  // levels that the line opens for the next line
    int closes = 0; // levels that the line closes before itself

    void Open(ClsBBFunkcija::Word word) { opens += word == ClsBBFunkcija::Word::Select ? 2 : 1; }

    // Closes what the line has opened, else what is open above it.
    void CloseOne() {
        if (opens > 0)
            --opens;
        else
            ++closes;
    }

    // Counts a closing word other than End. `first`: it is the line's first token; `last`: at most a comment
    // follows it; `beforeIf`: an If follows it. Returns whether it closes the scope that was opened last.
    bool Close(ClsBBFunkcija::Word word, bool first, bool last, bool beforeIf) {
        using Word = ClsBBFunkcija::Word;
        switch (word) {
        case Word::End: return false;
        case Word::Then:
            if (last) return false; // the If goes on below
            break;
        case Word::Else:
            // The If after an Else opens again by itself.
            if (last || (first && beforeIf)) ++closes;
            if (last) ++opens;
            return false;
        case Word::ElseIf:
            if (first) ++closes;
            return false;
        case Word::Case:
        case Word::Default: ++closes; return false;
        default: break;
        }
        CloseOne();
        return true;
    }
};
