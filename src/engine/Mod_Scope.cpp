// Scope and indentation are read from the markers and the line above at the time of the question.
#include "engine/Mod_Parse.h"

#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/KnownLine.h"
#include "engine/Levels.h"
#include "engine/Mod_Lexer.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "host/ErrorLog.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <cmath>

namespace Mod_Parse {

namespace {

using Word = ClsBBFunkcija::Word;

// Scans a line with the light scanner and returns its token count. A line beyond the limits counts as empty.
int ScanLight(std::string line) {
    const int length = Mod_Lexer::FillLightBuffer(line);
    return length > LongestLine ? 0 : Mod_Lexer::TokenizeLightPomosna(line, length, true);
}

struct ScopeFound {
    std::string name;
    SymbolPointer record;
};

// The scope that the line below `line` lies in: walk back to the nearest line that begins or ends one and
// read that one line. The last such word on it counts.
ScopeFound FindScope(int line, int marker, clsHash& table) {
    static LineEvents events; // its room is used again
    const int at = Mod_Sci::MarkerPrevious(line, MaskOf(marker));
    if (at < 0) return {};
    ReadKnownEvents(at, events);
    const bool functions = marker == MarkerFunction;
    const auto begins = functions ? LineEvent::Function : LineEvent::Type;
    int last = -1;
    for (int i = 0; i < static_cast<int>(events.size()); ++i)
        if (functions ? events[static_cast<std::size_t>(i)].OfFunctions()
                      : events[static_cast<std::size_t>(i)].OfTypes())
            last = i;
    if (last < 0 || events[static_cast<std::size_t>(last)].kind != begins) return {};
    const auto name = [&](int event) -> const std::string& {
        return LightTokenAt(events[static_cast<std::size_t>(event)].token).Text;
    };
    int namesakes = 0; // before it on its line
    for (int i = 0; i < last; ++i)
        if (events[static_cast<std::size_t>(i)].kind == begins && EqualNoCase(name(i), name(last)))
            ++namesakes;
    ScopeFound found{name(last), table.ItemHandle(name(last), at, SciWndData, namesakes)};
    return found.record ? found : ScopeFound{};
}

const ClsBBFunkcija* KeywordAt(int index) {
    const Token& token = LightTokenAt(index);
    return token.Kind == TOK_IDENT ? FindKeyword(UCase(token.Text)) : nullptr;
}

// The second word of an end, which opens nothing itself.
bool EndsWith(const std::string& word) {
    return EqualNoCase(word, "If") || EqualNoCase(word, "Select") || EqualNoCase(word, "Function") ||
           EqualNoCase(word, "Type");
}

// Advances the index over a second word that belongs to the word at the index. These rules differ from those
// of Levels::Close, above all after an Else, and are required as they are.
void CountEndScope(Levels& levels, Word word, int& index, int count) {
    const Token& next = LightTokenAt(index + 1);
    const bool last = index == count;
    switch (word) {
    case Word::End:
        if (next.Kind == TOK_IDENT && EqualNoCase(next.Text, "Select")) ++levels.closes;
        levels.CloseOne();
        if (next.Kind == TOK_IDENT && EndsWith(next.Text)) ++index;
        break;
    case Word::Then:
        if (!last && next.Kind != TOK_COMMENT) levels.CloseOne();
        break;
    case Word::Else: {
        // The word after an Else is read from the full scanner's array as its last pass left it; this is
        // required behaviour.
        const Token& full = TokenAt(index + 1);
        if (full.Kind == TOK_COMMENT || last) {
            ++levels.closes;
            ++levels.opens;
        } else if (full.Kind == TOK_IDENT && EqualNoCase(full.Text, "If") && index == 1) {
            ++levels.closes;
        }
        break;
    }
    case Word::ElseIf:
        if (index == 1) ++levels.closes;
        break;
    case Word::Case:
    case Word::Default: ++levels.closes; break;
    default: levels.CloseOne();
    }
}

Levels CountLevels(int count) {
    Levels levels;
    for (int i = 1; i <= count; ++i) {
        const ClsBBFunkcija* keyword = KeywordAt(i);
        if (keyword == nullptr) continue;
        if (keyword->IsStartScope) levels.Open(keyword->word);
        if (keyword->IsEndScope) CountEndScope(levels, keyword->word, i, count);
    }
    return levels;
}

} // namespace

std::string CurrentFunction(int line) {
    return Guarded("CurrentFunction", "Mod_Parse", std::string(), [&]() -> std::string {
        ScopeFound found = FindScope(line, MarkerFunction, gCurrentProject->Funkcii);
        if (!found.record) {
            SetLocals(gCurrentProject->MainFunLocals);
            return MainProgram;
        }
        SetLocals(static_cast<ClsFunkcija&>(*found.record).Locals);
        return found.name;
    });
}

std::string CurrentType(int line) {
    return Guarded("CurrentType", "Mod_Parse", std::string(), [&] {
        ScopeFound found = FindScope(line, MarkerType, gCurrentProject->Types);
        if (found.record) SetFields(static_cast<ClsType&>(*found.record).Fields);
        return found.name;
    });
}

FunctionsOnLine FunctionsOn(int line) {
    FunctionsOnLine found;
    if (line < 0 || !HasMarker(line, MarkerFunction)) return found;
    LineEvents events;
    ReadKnownEvents(line, events);
    for (const LineEvent& event : events) {
        if (!event.OfFunctions()) continue;
        found.goesBelow = event.kind == LineEvent::Function;
        if (!found.goesBelow) {
            found.endsAbove = found.endsAbove || !found.begins;
            continue;
        }
        found.begins = true;
        found.lastBegun = LightTokenAt(event.token).Text;
    }
    return found;
}

std::string CurrentFunctionForDisplay(int line) {
    return Guarded("CurrentFunctionForDisplay", "Mod_Parse", std::string(), [&]() -> std::string {
        // The line that ends a function still counts as its own.
        if (const FunctionsOnLine own = FunctionsOn(line); own.begins) return own.lastBegun;
        const int above = Mod_Sci::MarkerPrevious(line - 1, MaskOf(MarkerFunction));
        const FunctionsOnLine nearest = FunctionsOn(above);
        return nearest.goesBelow ? nearest.lastBegun : MainProgram;
    });
}

void SetIndentation(int line, int columns) {
    const bool joins = Mod_Sci::GetCharAt(Mod_Sci::GetLineIndentPosition(line)) == '\n' &&
                       Mod_Sci::GetCharAt(Mod_Sci::PositionFromLine(line) - 1) == '\r';
    if (!joins) Mod_Sci::SetLineIndentation(line, std::max(0, columns));
}

int GetNextIndent(int line) {
    return Guarded("GetNextIndent", "Mod_Parse", 1, [&] {
        int level = 1;
        int count = 0;
        for (;; --line) {
            if (line < 0) return 1;
            level = static_cast<int>(std::nearbyint(static_cast<double>(Mod_Sci::GetLineIndentation(line)) /
                                                        std::max(1, OptionsEdit::TabValue) +
                                                    1));
            if (Mod_Sci::LineLength(line) == 0) return level;
            count = ScanLight(Mod_Sci::LineText(line));
            if (count > 0) break;
        }
        const Levels levels = CountLevels(count);
        level += levels.opens;
        if (!HasMarker(line, MarkerParsed)) level -= levels.closes;
        return level;
    });
}

} // namespace Mod_Parse
