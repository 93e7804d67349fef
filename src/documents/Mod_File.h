// Text between disk and editor: opening, saving, naming, and the parameter block at a file's end.
#pragma once

#include "documents/DocumentLoading.h"
#include "documents/Mod_File_params.h"

#include <string>
#include <vector>

class frmDoc;

namespace Mod_File {

// Opens a source file or a project; an empty path asks for files. True when a document was loaded.
// `documentWindow`: its window came back with a layout. Writes gActiveDoc, gCurrentProject, SciWndData.
bool OpenFile(const std::string& path, bool documentWindow = false, bool isSnippet = false);
// Opens a file as a source whatever its extension, as one that an Include, a compiler's error, a recent list
// or a workspace names. OpenFile hands what is neither source nor project to the desktop.
bool OpenHere(const std::string& path, bool documentWindow = false);
// Makes a new, unnamed document and activates it.
void NewFile();
// Saves the text of one document, whichever is the active one. False when nothing was written.
bool SaveFile(frmDoc* document);
bool SaveFileAs(frmDoc* document);
bool SaveAllFiles();     // every dirty document that has a file
bool SaveProjectFiles(); // every dirty document of gCurrentProject
// Writes the active editor's text without a parameter block.
bool WriteTextFile(const std::string& path);
bool CreateEmptyFile(const std::string& path);

// Opens what a command line names: paths, quoted or not, and /L:<line> in front of one.
void OpenFilesFromCommand(const std::string& commandLine);

// Opens files that were dropped on the program; a folder is passed over.
void FilesDropped(const std::vector<std::string>& paths);

// Reads a .style file into the style table. Answers the name that was loaded, empty when none was.
std::string LoadStyle(const std::string& name);
// Writes the style table with a description. Fails when it cannot be written.
void SaveStyle(const std::string& name, const std::string& description);

} // namespace Mod_File
