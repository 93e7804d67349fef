// Backup copies of a file, made before the file is overwritten.
#pragma once

#include <string>

namespace Mod_File {

// Copies a file as the options gBackup... say. A failure is reported; the caller saves all the same.
void BackupFile(const std::string& path);

} // namespace Mod_File
