// One walk over the tokens that steps over suffixes, brackets and initialisers without colouring them.
#include "engine/LineEvents.h"

#include "engine/Keywords.h"
#include "engine/Mod_Parse_walk.h"
#include "host/Text.h"

namespace {

using Word = ClsBBFunkcija::Word;

class EventWalk {
public:
    EventWalk(const Token* tokens, int count, int length, LineEvents& events)
        : tokens_(tokens), count_(count), length_(length), events_(events) {}

    void Run() {
        while (index_ <= count_) NextToken();
    }

private:
    const Token& At(int index) const { return tokens_[index]; }
    bool NextIsName() const { return index_ < count_ && At(index_ + 1).Kind == TOK_IDENT; }
    bool On(std::uint8_t kind) const { return index_ <= count_ && At(index_).Kind == kind; }
    LineEvent& Add(LineEvent::Kind kind, int token) {
        return events_.emplace_back(LineEvent{kind, token, 0, 0, 0});
    }

    void NextToken() {
        switch (At(index_).Kind) {
        case TOK_IDENT: Identifier(); return;
        case TOK_BLOCK_START: Add(LineEvent::BlockStart, index_); break;
        case TOK_BLOCK_END: Add(LineEvent::BlockEnd, index_); break;
        case '.':
            if (index_ == 1 && NextIsName()) Add(LineEvent::Label, ++index_);
            break;
        default: break;
        }
        ++index_;
    }

    void Identifier() {
        const ClsBBFunkcija* keyword = Mod_Parse::KeywordOf(At(index_));
        if (keyword == nullptr) {
            ++index_;
        } else if (NextIsName()) {
            Dispatch(keyword->word);
        } else {
            const Token& next = At(index_ + 1);
            if (keyword->word == Word::Include && index_ < count_ && next.Kind == TOK_STRING &&
                !next.Text.empty())
                Add(LineEvent::Include, index_ + 1);
            ++index_;
        }
    }

    void Dispatch(Word word) {
        switch (word) {
        case Word::Function: Function(); break;
        case Word::End: End(); break;
        case Word::Type:
            Add(LineEvent::Type, ++index_);
            ++index_;
            break;
        case Word::Field: Names(LineEvent::Field); break;
        case Word::Dim: Names(LineEvent::Dim); break;
        case Word::Global: Names(LineEvent::Global); break;
        case Word::Local: Names(LineEvent::Local); break;
        case Word::Const: Names(LineEvent::Const); break;
        default: ++index_;
        }
    }

    void Function() {
        Add(LineEvent::Function, ++index_);
        const std::size_t event = events_.size() - 1;
        SkipSuffix();
        if (!On('(')) return;
        const int from = At(index_).StartPos + 1;
        bool any = false;
        while (NextIsName()) {
            any = true;
            Name(LineEvent::Parameter);
            if (!On(',')) break;
        }
        if (!any) return;
        events_[event].from = from;
        events_[event].to = index_ <= count_ ? At(index_).StartPos : length_ + 1;
    }

    void End() {
        ++index_;
        const std::string& word = At(index_).Text;
        if (EqualNoCase(word, "Function"))
            Add(LineEvent::EndFunction, index_);
        else if (EqualNoCase(word, "Type"))
            Add(LineEvent::EndType, index_);
        else if (!EqualNoCase(word, "If") && !EqualNoCase(word, "Select"))
            return; // an End alone: the next word is read in its turn
        ++index_;
    }

    void Names(LineEvent::Kind kind) {
        while (NextIsName()) {
            Name(kind);
            if (!On(',')) return;
        }
        ++index_; // the comma that no name followed
    }

    // The next name with all that hangs on it.
    void Name(LineEvent::Kind kind) {
        Add(kind, ++index_);
        const std::size_t event = events_.size() - 1;
        SkipSuffix();
        const char open = kind == LineEvent::Dim ? '(' : '[';
        if (On('=') && kind != LineEvent::Dim) {
            ++index_;
            SkipInitialiser();
        } else if (On(open)) {
            const int from = At(index_).StartPos;
            const int close = Mod_Parse::ClosingBracket(tokens_, index_, count_);
            index_ = close + 1;
            if (close > count_) return;
            events_[event].from = from;
            events_[event].to = At(close).StartPos + 1;
        }
    }

    void SkipSuffix() {
        ++index_;
        if (index_ > count_) return;
        if (On('.')) {
            ++index_;
            if (index_ <= count_ && At(index_).Kind == TOK_IDENT) events_.back().type = index_++;
        } else if (SuffixTip[At(index_).Kind] != 0) {
            ++index_;
        }
    }

    void SkipInitialiser() {
        int depth = 0;
        for (; index_ < count_; ++index_) {
            const std::uint8_t kind = At(index_).Kind;
            if (kind == '(') ++depth;
            if (kind == ')' && --depth < 0) return;
            if ((kind == ':' || kind == ',') && depth == 0) return;
        }
    }

    const Token* tokens_;
    int count_;
    int length_;
    LineEvents& events_;
    int index_ = 1;
};

} // namespace

void ReadEvents(const Token* tokens, int count, int length, LineEvents& events) {
    events.clear();
    EventWalk(tokens, count, length, events).Run();
}

int FoldDelta(const LineEvents& events) {
    int delta = 0;
    for (const LineEvent& event : events) {
        switch (event.kind) {
        case LineEvent::Function:
        case LineEvent::Type:
        case LineEvent::BlockStart: ++delta; break;
        case LineEvent::EndFunction:
        case LineEvent::EndType:
        case LineEvent::BlockEnd: --delta; break;
        default: break;
        }
    }
    return delta;
}
