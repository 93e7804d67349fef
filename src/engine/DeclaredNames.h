// The walk over a list of declared names in Tokens: what hangs on each of them is stepped over as the parser
// walked it.
#pragma once

#include "engine/Mod_Lexer.h"

class DeclaredNames {
public:
    explicit DeclaredNames(int count = 0) : count_(count) {}

    // Stands on the keyword; calls `visit` with each name of its list. `open`: the bracket that a name may
    // have. Ends behind the list.
    template <class Visit>
    void ForEachName(char open, Visit visit) {
        while (NextIsName()) {
            ++index_;
            visit(At(index_).Text);
            SkipTail(open);
            if (index_ > count_ || At(index_).Kind != ',') return;
        }
        ++index_;
    }
    // Stands on a function's name; ends behind its parameters. One of them may have a keyword's name; the
    // parser took none of them for one.
    void SkipHeader();

    const Token& At(int index) const { return Tokens[static_cast<std::size_t>(index)]; }
    bool NextIsName() const { return index_ < count_ && At(index_ + 1).Kind == TOK_IDENT; }

    int index_ = 1;
    int count_;

private:
    void SkipTail(char open);
    void SkipSuffix();
    void SkipInitialiser();
};
