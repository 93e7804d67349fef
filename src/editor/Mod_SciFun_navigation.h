// From a name to its declaration.
#pragma once

namespace Mod_SciFun {

// Goes to the declaration of the word at the caret, in any document of the project. The word's style shows
// its kind; for other styles and undeclared words nothing happens. With CBrowserRememberOnGotoDefinition the
// position browser records both ends.
void GotoDeclaration();

} // namespace Mod_SciFun
