// The block of comment lines behind a saved source.
#pragma once

#include <string>

namespace Mod_File {

// The parameter block of the active editor, empty when there is nothing to remember.
std::string GetFileParameters();
// Applies and removes the block in the active editor.
void CheckFileParameters();
// The compiler that the last line of the active editor names, else DefaultCompiler.
std::string CheckFileCompilerUsed();

} // namespace Mod_File
