// The shared state of parser and colourers.
#include "engine/ParserState.h"

std::string CurrentFunctionName;
std::string CurrentTypeName;
std::shared_ptr<clsHash> CurrentLocals;
std::shared_ptr<clsHash> CurrentFields;
int FoldLevel = 0;
int IndentLevel = 0;
bool ParsingFile = false;
bool Coloring = false;
bool RememberScopeKeyword = false;
std::string LastScopeKeyword;
bool gSymbolsChanged = false;
int BadStyle = 0;
bool ColoringCurrentLine = false;
bool ACForced = false;
bool ACShownNow = false;
bool InDeclaration = false;
bool ACExplicitList = false;
bool ACExplicitNow = false;
