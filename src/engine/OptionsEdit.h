// The options of section OptionsEdit. OptionsEdit.def has their defaults, ranges and meanings.
#pragma once

#include <string>

namespace OptionsEdit {

// Codes of AutoIndentType.
enum : int { IndentNone = 0, IndentLikeLineAbove = 1, IndentByScope = 2 };
// Bits of WordWrapFlags and WordWrapFlagLocation.
enum : int { WrapMarkAtEnd = 1, WrapMarkAtBegin = 2 };
// Codes of IFNoHelpFound.
enum : int { NoHelpPage = 0, HelpIndex = 1, HelpCommandIndex = 2 };

// Written by the functions of documents/OptionTable.h and by the preferences alone.
#define NUMBER(name, byDefault, range, unit, meaning) extern int name;
#define TEXT(name, byDefault, meaning) extern std::string name;
#include "engine/OptionsEdit.def"

} // namespace OptionsEdit
