// The settings of section Options, one global a key.
#pragma once

#include <string>

namespace Options {

// All written by GetOptions and by the preferences alone.
extern int MultipleInstances, AssBBfiles, AssProjectFiles, gRecentFiles, gStartUp, gEnumerateNewFiles,
    gClipRingMaxItems, gShowRecentFull, gDisplayTimeInStatusBar, gFileExStartPath, gOnCompileSave,
    gOpenHtmlInZolto, gOpenBrowserAtStartup, gDebugMaximized, gDoubleClickClosesTabs,
    gTabbingStartsWithPrevious, gUnsortedFunctions, gBackupEnabled, gBackupType, gBackupBakIncrement,
    gBackupStoreType;
extern std::string gDefNewName, gLastCreatedExe, gDefaultHelpPage, gBackupStoreFolder;

// Reads every key of the section. A value that is no number is reported and keeps its default.
void GetOptions();
// Reads every key of section OptionsEdit into the globals of engine/OptionsEdit.h, likewise.
void GetEditOptions();

} // namespace Options
