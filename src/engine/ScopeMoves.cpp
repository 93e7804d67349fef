// A move asks each symbol's marker where it stands now; no range is stored anywhere.
#include "engine/ScopeMoves.h"

#include "engine/DeclaredNames.h"
#include "engine/DocumentRecord.h"
#include "engine/Keywords.h"
#include "engine/Markers.h"
#include "engine/Mod_Parse_walk.h"
#include "host/Paths.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <array>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Mod_Parse {

namespace {

using Word = ClsBBFunkcija::Word;

// Up to this many symbols are asked for their lines one by one, which is a walk over all lines each.
constexpr std::size_t FewSymbols = 4;

bool Inside(const Symbol& symbol, LineRange range) {
    if (symbol.SciWndData != SciWndData) return false;
    const auto line = Mod_Sci::MarkerLineFromHandle(symbol.Handle);
    return line >= range.from && line < range.end;
}

// What declares the symbols of a move, and the markers that tell where to look for them.
struct Kind {
    Word word;
    int marker;
    int boundary; // a line with this marker ends the scope that the symbols come from
};
constexpr Kind Locals{Word::Local, MarkerLocal, MarkerFunction};
constexpr Kind Fields{Word::Field, MarkerDeclares, MarkerType};

// The line that is being parsed is still being walked.
class KeepTokens {
public:
    KeepTokens() : kept_(Tokens) {}
    ~KeepTokens() { Tokens = kept_; }
    KeepTokens(const KeepTokens&) = delete;
    KeepTokens& operator=(const KeepTokens&) = delete;

private:
    std::array<Token, MostTokens + 2> kept_;
};

// The upper-case names that the lines of a range declare.
std::unordered_set<std::string> NamesIn(LineRange range, const Kind& kind) {
    const KeepTokens keep;
    std::unordered_set<std::string> names;
    const int end = std::min(range.end, NextLineWith(range.from, kind.boundary));
    for (int line = NextLineWith(range.from, kind.marker); line < end;
         line = NextLineWith(line + 1, kind.marker)) {
        std::string text = KnownText(line);
        const int length = Mod_Lexer::FillLineBuffer(text);
        DeclaredNames walk(Mod_Lexer::Tokenize(text, length, true));
        while (walk.index_ < walk.count_) {
            const Token& token = walk.At(walk.index_);
            const ClsBBFunkcija* keyword = token.Kind == TOK_IDENT ? KeywordOf(token) : nullptr;
            if (keyword != nullptr && keyword->word == kind.word)
                walk.ForEachName('[', [&](const std::string& name) { names.insert(UCase(name)); });
            else
                ++walk.index_;
        }
    }
    return names;
}

// The symbols among `all` that a range of lines declares. A name that occurs there and is the only one of its
// kind is not asked for its line.
std::vector<SymbolPointer> InRange(const std::vector<SymbolPointer>& all, LineRange range, const Kind& kind) {
    std::vector<SymbolPointer> inside;
    const bool few = all.size() <= FewSymbols;
    const auto names = few ? std::unordered_set<std::string>() : NamesIn(range, kind);
    std::unordered_map<std::string, int> namesakes;
    if (!few)
        for (const SymbolPointer& symbol : all)
            if (symbol->SciWndData == SciWndData) ++namesakes[UCase(symbol->Ime)];
    for (const SymbolPointer& symbol : all) {
        if (symbol->SciWndData != SciWndData) continue;
        if (!few) {
            const std::string name = UCase(symbol->Ime);
            if (!names.contains(name)) continue;
            if (namesakes[name] == 1) {
                inside.push_back(symbol);
                continue;
            }
        }
        if (Inside(*symbol, range)) inside.push_back(symbol);
    }
    return inside;
}

std::vector<SymbolPointer> Loose() {
    std::vector<SymbolPointer> fields;
    for (const auto& entry : gActiveDoc->tmpFields) fields.push_back(entry.second);
    return fields;
}

void Move(clsHash& from, clsHash& to, LineRange range, const Kind& kind) {
    for (const SymbolPointer& symbol : InRange(from.Items(), range, kind)) {
        to.Add(symbol->Ime, symbol);
        from.RemoveRecord(symbol->Ime, *symbol);
    }
}

} // namespace

std::string KnownText(int line) {
    const PipelineState& state = gActiveDoc->State;
    return line == state.UnparsedLine ? state.UnparsedText : Mod_Sci::LineText(line);
}

int NextLineWith(int line, int marker) {
    const int next = static_cast<int>(Mod_Sci::MarkerNext(line, MaskOf(marker)));
    return next < 0 ? NoEnd : next;
}

void MoveLocals(clsHash& from, clsHash& to, LineRange range) { Move(from, to, range, Locals); }

void MoveFields(clsHash& from, clsHash& to, LineRange range) { Move(from, to, range, Fields); }

void TakeLooseFields(clsHash& fields, LineRange range) {
    for (const SymbolPointer& symbol : InRange(Loose(), range, Fields)) {
        fields.Add(symbol->Ime, symbol);
        gActiveDoc->tmpFields.erase(symbol->Handle);
    }
}

void ReleaseFields(clsHash& fields, LineRange range) {
    for (const SymbolPointer& symbol : InRange(fields.Items(), range, Fields)) {
        gActiveDoc->tmpFields[symbol->Handle] = std::static_pointer_cast<ClsField>(symbol);
        fields.RemoveRecord(symbol->Ime, *symbol);
    }
}

} // namespace Mod_Parse
