// The only writer of the shared state of parser and colourers.
#include "engine/ParserState.h"

#include "engine/Symbols.h"

#include <utility>

namespace {

constexpr int StrictBadStyle = 16;

struct State {
    std::string functionName, typeName;
    std::shared_ptr<clsHash> locals, fields;
    int foldLevel = 0, indentLevel = 0;
    bool parsingFile = false, coloring = false;
    bool rememberScopeKeyword = false;
    std::string lastScopeKeyword;
    bool symbolsChanged = false;
    int badStyle = 0;
    bool coloringCurrentLine = false, inDeclaration = false;
    bool forced = false, shownNow = false, explicitList = false, explicitNow = false;
};

State state;

}

const std::string& CurrentFunctionName = state.functionName;
const std::string& CurrentTypeName = state.typeName;
const std::shared_ptr<clsHash>& CurrentLocals = state.locals;
const std::shared_ptr<clsHash>& CurrentFields = state.fields;
const int& FoldLevel = state.foldLevel;
const int& IndentLevel = state.indentLevel;
const bool& ParsingFile = state.parsingFile;
const bool& Coloring = state.coloring;
const bool& RememberScopeKeyword = state.rememberScopeKeyword;
const std::string& LastScopeKeyword = state.lastScopeKeyword;
const bool& gSymbolsChanged = state.symbolsChanged;
const int& BadStyle = state.badStyle;
const bool& ColoringCurrentLine = state.coloringCurrentLine;
const bool& InDeclaration = state.inDeclaration;
const bool& ACForced = state.forced;
const bool& ACShownNow = state.shownNow;
const bool& ACExplicitList = state.explicitList;
const bool& ACExplicitNow = state.explicitNow;

void ForgetScope() {
    ForgetFunction();
    ForgetType();
}

void ForgetFunction() { state.functionName.clear(); }
void ForgetType() { state.typeName.clear(); }
void SetFunction(const std::string& name) { state.functionName = name; }
void SetType(const std::string& name) { state.typeName = name; }
void SetLocals(const std::shared_ptr<clsHash>& locals) { state.locals = locals; }
void SetFields(const std::shared_ptr<clsHash>& fields) { state.fields = fields; }
void SetFoldLevel(int level) { state.foldLevel = level; }
void SetIndentLevel(int level) { state.indentLevel = level; }

void SetFunction(const std::string& name, const std::shared_ptr<clsHash>& locals) {
    SetFunction(name);
    SetLocals(locals);
}

void SetType(const std::string& name, const std::shared_ptr<clsHash>& fields) {
    SetType(name);
    SetFields(fields);
}

void BeginDocument(const std::shared_ptr<clsHash>& mainLocals) {
    SetFunction(MainProgram, mainLocals);
    ForgetType();
    SetFoldLevel(0);
    SetIndentLevel(0);
}

ScopeKept::ScopeKept()
    : function_(state.functionName), type_(state.typeName), locals_(state.locals), fields_(state.fields) {}
ScopeKept::~ScopeKept() {
    state.functionName.swap(function_);
    state.typeName.swap(type_);
    state.locals.swap(locals_);
    state.fields.swap(fields_);
}

ParsingFileScope::ParsingFileScope() { state.parsingFile = true; }
ParsingFileScope::~ParsingFileScope() { state.parsingFile = false; }

ColoringScope::ColoringScope() : before_(std::exchange(state.coloring, true)) {}
ColoringScope::~ColoringScope() { state.coloring = before_; }
void EndColoring() { state.coloring = false; }

CurrentLineScope::CurrentLineScope() {
    state.coloringCurrentLine = true;
    state.inDeclaration = state.shownNow = false;
}
CurrentLineScope::~CurrentLineScope() { state.coloringCurrentLine = false; }
void EnterDeclaration() { state.inDeclaration = true; }

ScopeKeywordKept::ScopeKeywordKept() {
    state.lastScopeKeyword.clear();
    state.rememberScopeKeyword = true;
}
ScopeKeywordKept::~ScopeKeywordKept() { state.rememberScopeKeyword = false; }
void KeepScopeKeyword(const std::string& keyword) { state.lastScopeKeyword = keyword; }

void NoteSymbolsChanged() { state.symbolsChanged = true; }
bool TakeSymbolsChanged() { return std::exchange(state.symbolsChanged, false); }
void SetStrict(bool strict) { state.badStyle = strict ? StrictBadStyle : 0; }

void AllowCompletion(bool allowed) { state.forced = allowed; }
void NoteListShown() { state.shownNow = true; }
void NoteListClosed() { state.explicitList = false; }

CompletionAsked::CompletionAsked() { state.forced = state.explicitList = state.explicitNow = true; }
CompletionAsked::~CompletionAsked() { state.explicitNow = state.forced = false; }

void ResetParserState() { state = {}; }
