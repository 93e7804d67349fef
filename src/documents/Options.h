// The options of section Options. Options.def has their defaults, ranges and meanings.
#pragma once

#include <string>

namespace Options {

// Codes of gStartUp.
enum : int { StartRestoresWorkspace = 1, StartOpensNewFile = 2, StartOpensNothing = 3 };
// Codes of gFileExStartPath.
enum : int { ExplorerStartsInSystemFolder = 0, ExplorerStartsInLastFolder = 1 };
// Codes of gOnCompileSave.
enum : int { CompileSavesAll = 0, CompileSavesProject = 1 };
// Codes of gBackupType.
enum : int { BackupNumbered = 0, BackupStamped = 1 };
// Codes of gBackupStoreType.
enum : int { BackupBesideFile = 0, BackupInFolder = 1 };

// Written by the functions of documents/OptionTable.h and by the preferences alone.
#define NUMBER(name, byDefault, range, unit, meaning) extern int name;
#define TEXT(name, byDefault, meaning) extern std::string name;
#define FOLDER(name, byDefault, meaning) extern std::string name;
#include "documents/Options.def"

} // namespace Options
