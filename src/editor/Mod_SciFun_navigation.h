// From a name to its declaration.
#pragma once

namespace Mod_SciFun {

// Goes to the declaration of the word at the caret, in whatever document of the project it stands. What the
// word is, its style tells; nothing for other styles and for what is declared nowhere. With
// CBrowserRememberOnGotoDefinition the position browser records both ends.
void GotoDeclaration();

} // namespace Mod_SciFun
