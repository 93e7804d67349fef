// The block of comment lines behind a saved source.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Mod_File {

// The position of the first header in a text that begins a line, whatever its case; npos where there is none.
std::size_t FindParameters(std::string_view text);
// Whether the lines of a file end in LF alone, whatever the line ends of its blocks.
bool HasOnlyLf(std::string_view text);

// The parameter block of the active editor, empty when there is nothing to remember.
std::string GetFileParameters();
// Applies the last block in the active editor and removes all blocks.
void CheckFileParameters();
// The compiler that the last line of the active editor names that is not empty, else DefaultCompiler.
std::string CheckFileCompilerUsed();

} // namespace Mod_File
