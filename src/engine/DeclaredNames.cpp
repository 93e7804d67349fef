// Stepping over suffixes, brackets and initialisers.
#include "engine/DeclaredNames.h"

void DeclaredNames::SkipHeader() {
    SkipSuffix();
    if (index_ > count_ || At(index_).Kind != '(') return;
    while (NextIsName()) {
        ++index_;
        SkipTail('[');
        if (index_ > count_ || At(index_).Kind != ',') return;
    }
}

void DeclaredNames::SkipTail(char open) {
    SkipSuffix();
    if (index_ > count_) return;
    if (At(index_).Kind == '=' && open == '[') {
        ++index_;
        SkipInitialiser();
    } else if (At(index_).Kind == open) {
        const char close = open == '(' ? ')' : ']';
        while (index_ <= count_ && At(index_).Kind != close) ++index_;
        if (index_ <= count_) ++index_;
    }
}

void DeclaredNames::SkipSuffix() {
    ++index_;
    if (index_ > count_) return;
    if (At(index_).Kind == '.') {
        ++index_;
        if (index_ <= count_ && At(index_).Kind == TOK_IDENT) ++index_;
    } else if (SuffixTip[At(index_).Kind] != 0) {
        ++index_;
    }
}

void DeclaredNames::SkipInitialiser() {
    int depth = 0;
    for (; index_ < count_; ++index_) {
        const std::uint8_t kind = At(index_).Kind;
        if (kind == '(') ++depth;
        if (kind == ')' && --depth < 0) return;
        if ((kind == ':' || kind == ',') && depth == 0) return;
    }
}
