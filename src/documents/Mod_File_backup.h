// Copies of a file as it is on disk, made before it is overwritten.
#pragma once

#include <string>

namespace Mod_File {

// Copies a file as gBackupType, gBackupBakIncrement, gBackupStoreType and gBackupStoreFolder say. A failure
// is reported; the caller goes on and saves.
void BackupFile(const std::string& path);

} // namespace Mod_File
