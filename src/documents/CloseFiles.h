// Closing all that is open.
#pragma once

namespace Mod_File {

// Closes every single file and then every project, the last first; asks for each that is dirty. False when
// one stayed open.
bool CloseAllFiles();

} // namespace Mod_File
