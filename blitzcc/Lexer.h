// Turns one source file into tokens.
// Bytes above 127 are data in strings and comments only; they are never converted.
#pragma once

#include "Tokens.h"

namespace blitz {

/// The tokens of a text; the last one is Tok::End. Throws CompileError on a character or number that
/// no token begins with and on a string that its line does not close. The tokens refer into the text.
std::vector<Token> tokenize(std::string_view text, uint32_t file, Symbols& symbols);

}
