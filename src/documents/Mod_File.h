// Opening, naming and saving of source files, and the files of colour styles.
#pragma once

#include "documents/DocumentLoading.h"
#include "documents/Mod_File_params.h"

#include <string>
#include <vector>

class frmDoc;

namespace Mod_File {

// Opens a source file or a project; an empty path asks for files. True if a document was loaded.
// `documentWindow`: a restored layout has its window already. Writes gActiveDoc, gCurrentProject and
// SciWndData.
bool OpenFile(const std::string& path, bool documentWindow = false, bool isSnippet = false);
// Opens a file as a source, whatever its extension; for files named by an Include, a compiler's error, a
// recent list or a workspace. OpenFile leaves other files than sources and projects to the desktop.
bool OpenHere(const std::string& path, bool documentWindow = false);
// Creates a new document without a file and activates it.
void NewFile();
// Saves one document, which need not be the active one. False if nothing was written.
bool SaveFile(frmDoc* document);
bool SaveFileAs(frmDoc* document);
bool SaveAllFiles();     // every dirty document with a file
bool SaveProjectFiles(); // every dirty document of gCurrentProject
// Writes the text of the active document without a parameter block. False if that failed.
bool WriteTextFile(const std::string& path);
bool CreateEmptyFile(const std::string& path);

// Opens the paths of a command line, quoted or not. /L:<line> in front of a path goes to that line, from 1.
void OpenFilesFromCommand(const std::string& commandLine);

// Opens files that were dropped on the program, and ignores folders.
void FilesDropped(const std::vector<std::string>& paths);

// Reads a .style file into the style table. Returns the name of the loaded style; empty if none was loaded.
std::string LoadStyle(const std::string& name);
// Writes the style table with a description. Throws a Failure if the file cannot be written.
void SaveStyle(const std::string& name, const std::string& description);

} // namespace Mod_File
