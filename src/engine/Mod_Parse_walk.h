// Walkers over Tokens, shared by the parser and the colourers; only for the engine. `index` (from 1) is a
// token's and ends at the last token consumed; `lineStart` is the position before column 1.
#pragma once

#include "engine/LineStyles.h"
#include "engine/Mod_Lexer.h"
#include "engine/ParserState.h"
#include "engine/Symbols.h"

#include <cstdint>
#include <string>
#include <string_view>

struct ClsBBFunkcija;
class clsHash;

namespace Mod_Parse {

// The column after a token: EndPos of a word or number, StartPos + 1 of a single character.
int TokenEnd(const Token& token);
// The keyword that a token is; null when it is none.
const ClsBBFunkcija* KeywordOf(const Token& token);
// The token of the bracket that matches the one at `open`; count + 1 if there is none.
int ClosingBracket(const Token* tokens, int open, int count);
// The bytes of LineBuffer between two columns.
std::string Cut(int from, int to);
// Whether one token begins where the other ends.
bool Touches(const Token& first, const Token& next);

inline void Style(int lineStart, const Token& token, std::intptr_t length, int style) {
    gLineStyles.Set(lineStart + token.StartPos, length, style);
}

// Replaces the text at a document position by a spelling of the same length, in the undo history or beside
// it.
void Respell(std::intptr_t start, const std::string& spelling, bool inHistory);
// Rewrites a token, which keeps its length, in the text and in Text. The change enters the undo history,
// except after an undo or redo.
void RewriteToken(const std::string& spelling, int index, int lineStart);
// The same outside the undo history. Does nothing if the option is off or the caret is at the token.
void FixVariableCase(const std::string& spelling, int index, int lineStart);

// True if a token of the line was respelled since the flag was lowered. Raised by the two functions above,
// lowered by the passes that read it.
extern bool LineRespelt;
// Gives the records of what a parsed line declares the spelling of its present text.
void RespellSymbols(int line);

// A literal, keyword, separator or operator inside an initialiser or bounds, without symbol look-up.
void ColorToken(int index, int lineStart);
// What follows a declared name.
struct NameTail {
    std::uint8_t tip = TipInteger;
    std::string tajp;
    int bracket = 0; // index of the opening bracket's token, 0 for none
    bool closed = false;
};

// Read and colour what follows a declared name: suffix or type name; a variable's initialiser or [...]; an
// array's (...). `index` moves from the name to the token after all of it.
NameTail SuffixTail(int& index, int count);
NameTail GetVarTipColor(int& index, int count, int lineStart);
NameTail GetArrayVarTipColor(int& index, int count, int lineStart);

// Gives the tokens of a line the styles that depend on no symbol table: keywords, literals, comments,
// separators and operators.
void StyleLiterals(int count, int lineStart);

// An initialiser up to the next comma or colon at depth 0. The line's last token is left to the caller.
void ColorExprDoZapirka(int& index, int count, int lineStart);

// A variable with its suffix, [...] and \field chain as runs of one style.
void ColorVar(Symbol* record, int& index, int count, int lineStart, int style);
// The same for an array, with (...).
void ColorArrayVar(Symbol* record, int& index, int count, int lineStart, int style);
// A word made of touching pieces that has no declaration.
void ColorBadVar(int& index, int count, int lineStart, int style);
// One token inside brackets, by what it means.
void ColorTokenLight(int& index, int count, int lineStart);

// A name in upper case with its hash, computed once for all tables that are searched for it.
struct UpperName {
    std::string text;
    int hash = 0;

    void Set(const std::string& name);
};

using VariableWalker = void (*)(Symbol* record, int& index, int count, int lineStart, int style);
struct NameLook {
    int style;
    VariableWalker walker; // for what hangs on the name
    bool fixCase;
};
// Styles a name that a table knows, with what hangs on it. False when it does not know it.
bool ColorKnown(clsHash& table, const UpperName& name, NameLook look, int& index, int count, int lineStart);

// Whether a completion list may open or stay for the word that ends at a column: the caret is there, no list
// was shown in this pass, and a list is requested or open.
bool MayOffer(int lineStart, int column);
// Whether a list was requested exactly at a column, after a sign that expects a name.
bool AskedAt(int lineStart, int column);

// Brackets of the pass: clear before it, push or close each one, and style what stayed open after it.
void ClearBrackets();
void Bracket(int index, int lineStart);
void StyleOpenBrackets();

} // namespace Mod_Parse
