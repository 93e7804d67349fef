// What a run of lines carries from one line to the next, shared by the parser and the colourers.
// Only one of them works at a time.
#pragma once

#include "engine/clsHash.h"

#include <memory>
#include <string>

// The enclosing function: its name, "*Main Program*", or empty for not known. The enclosing type: its name,
// or empty. Written by the parser, the light colourer, the scope queries and document activation.
extern std::string CurrentFunctionName;
extern std::string CurrentTypeName;
// Where Local and Field lines go. Written with the names above.
extern std::shared_ptr<clsHash> CurrentLocals;
extern std::shared_ptr<clsHash> CurrentFields;

// Fold level and indentation level of the next line; 0 for not known. Written by the parser.
extern int FoldLevel;
extern int IndentLevel;

// A whole file is being parsed from its first line, so no line below the present one is parsed yet.
// Written by ParseFile and the opening of a project's member.
extern bool ParsingFile;

// Text or style changes are the program's own: modification events do nothing. Written by all who make such
// changes.
extern bool Coloring;

// While raised, the parser keeps the last keyword that opened an indentation level. Written by the command
// that completes a scope, and by the parser.
extern bool RememberScopeKeyword;
extern std::string LastScopeKeyword;

// The symbol tables changed since the lists were last filled. Raised by the parser, lowered by the
// restyle of the visible lines.
extern bool gSymbolsChanged;

// The style of undeclared things: 16 in strict mode, else 0. Written by start-up and the strict mode command.
extern int BadStyle;

// ColorCurrentLine is running. A character was typed or a list was asked for; one was shown in this pass;
// this line's keyword makes a new name. The user asked for the list, and it stays so while that list is open;
// this is the pass in which it was asked for. Written by the colourers and the completion.
extern bool ColoringCurrentLine;
extern bool ACForced;
extern bool ACShownNow;
extern bool InDeclaration;
extern bool ACExplicitList;
extern bool ACExplicitNow;
