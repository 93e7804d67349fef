// What a run of lines carries from one line to the next, shared by the parser and the colourers, of which
// only one works at a time. The names are readable everywhere; ParserState.cpp alone writes them, through the
// verbs below.
#pragma once

#include "engine/clsHash.h"

#include <memory>
#include <string>

// The enclosing function: its name, "*Main Program*", or empty for unknown. The enclosing type: its name, or
// empty.
extern const std::string& CurrentFunctionName;
extern const std::string& CurrentTypeName;
// The tables that Local and Field lines declare into.
extern const std::shared_ptr<clsHash>& CurrentLocals;
extern const std::shared_ptr<clsHash>& CurrentFields;

// Fold level and indentation level of the next line; 0 for unknown.
extern const int& FoldLevel;
extern const int& IndentLevel;

// True while a whole file is parsed from its first line, so that no line below the present one is parsed yet.
extern const bool& ParsingFile;

// True while text or style changes are the program's own: modification events do nothing.
extern const bool& Coloring;

// True while the parser keeps the last keyword that opened an indentation level, and that keyword.
extern const bool& RememberScopeKeyword;
extern const std::string& LastScopeKeyword;

// True if the symbol tables have changed since the lists were filled.
extern const bool& gSymbolsChanged;

// The style of undeclared names: 16 in strict mode, else 0.
extern const int& BadStyle;

// True while ColorCurrentLine runs, and while it is at a keyword that declares a new name.
extern const bool& ColoringCurrentLine;
extern const bool& InDeclaration;
// A completion list may open: a character was typed, or the user asked for a list. A list was shown in this
// pass.
extern const bool& ACForced;
extern const bool& ACShownNow;
// The user asked for the list that is open. The user asked in this pass.
extern const bool& ACExplicitList;
extern const bool& ACExplicitNow;

// --- the scope of the next line

void ForgetScope(); // neither function nor type is known
void ForgetFunction();
void ForgetType();
void SetFunction(const std::string& name);
void SetFunction(const std::string& name, const std::shared_ptr<clsHash>& locals);
void SetType(const std::string& name);
void SetType(const std::string& name, const std::shared_ptr<clsHash>& fields);
void SetLocals(const std::shared_ptr<clsHash>& locals);
void SetFields(const std::shared_ptr<clsHash>& fields);
void SetFoldLevel(int level);
void SetIndentLevel(int level);
// The first line of a document lies in the main program, whose locals these are; its levels are unknown.
void BeginDocument(const std::shared_ptr<clsHash>& mainLocals);

// Restores the scope when it is destroyed.
class ScopeKept {
public:
    ScopeKept();
    ~ScopeKept();
    ScopeKept(const ScopeKept&) = delete;
    ScopeKept& operator=(const ScopeKept&) = delete;

private:
    std::string function_, type_;
    std::shared_ptr<clsHash> locals_, fields_;
};

// --- what is going on

// Raises ParsingFile while it lives.
class ParsingFileScope {
public:
    ParsingFileScope();
    ~ParsingFileScope();
    ParsingFileScope(const ParsingFileScope&) = delete;
    ParsingFileScope& operator=(const ParsingFileScope&) = delete;
};

// Raises Coloring while it lives; may be nested.
class ColoringScope {
public:
    ColoringScope();
    ~ColoringScope();
    ColoringScope(const ColoringScope&) = delete;
    ColoringScope& operator=(const ColoringScope&) = delete;

private:
    bool before_;
};
void EndColoring(); // lowers Coloring, whatever raised it

// Raises ColoringCurrentLine while it lives, and begins a pass that has shown no list.
class CurrentLineScope {
public:
    CurrentLineScope();
    ~CurrentLineScope();
    CurrentLineScope(const CurrentLineScope&) = delete;
    CurrentLineScope& operator=(const CurrentLineScope&) = delete;
};
void EnterDeclaration(); // raises InDeclaration for the rest of the pass

// Raises RememberScopeKeyword while it lives and forgets an older keyword.
class ScopeKeywordKept {
public:
    ScopeKeywordKept();
    ~ScopeKeywordKept();
    ScopeKeywordKept(const ScopeKeywordKept&) = delete;
    ScopeKeywordKept& operator=(const ScopeKeywordKept&) = delete;
};
void KeepScopeKeyword(const std::string& keyword);

void NoteSymbolsChanged();
bool TakeSymbolsChanged();   // returns whether they had changed, and lowers the flag
void SetStrict(bool strict); // sets BadStyle

// --- completion

void AllowCompletion(bool allowed); // sets ACForced
void NoteListShown();
void NoteListClosed();

// Marks the pass as one that the user asked a list of. A list that opens stays marked afterwards.
class CompletionAsked {
public:
    CompletionAsked();
    ~CompletionAsked();
    CompletionAsked(const CompletionAsked&) = delete;
    CompletionAsked& operator=(const CompletionAsked&) = delete;
};

// Puts everything above back to what it is at the program's start.
void ResetParserState();
