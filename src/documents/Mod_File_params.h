// The parameter block: comment lines at the end of a saved source.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Mod_File {

// The position of the first block header at the start of a line, in any letter case; npos if there is none.
std::size_t FindParameters(std::string_view text);
// Whether all lines of a file end in LF. Its blocks do not count.
bool HasOnlyLf(std::string_view text);

// The parameter block for the active document; empty if there is nothing to store.
std::string GetFileParameters();
// Applies the last block of the active document and removes all blocks.
void CheckFileParameters();
// The compiler named in the last non-empty line of the active document, else DefaultCompiler.
std::string CheckFileCompilerUsed();

} // namespace Mod_File
