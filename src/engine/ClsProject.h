// The project record: members, categories and the symbol tables. A single open file has one of its own.
#pragma once

#include "engine/CollectionTools.h"
#include "engine/clsHash.h"

#include <functional>
#include <memory>
#include <string>

struct DocumentRecord;

// A member file of a project. AbsPath and PrjFolder keep the backslash form.
struct clsFile {
    std::string Name;
    int Line = 0;
    int Column = 0;
    int Tip = 0; // first visible line
    bool Visible = false;
    std::string PrjFolder;
    std::string AbsPath; // relative to the project's Path
    std::string TreeParent;
};

// A category of a project.
struct clsFolder {
    std::string Name;
    bool Expanded = false;
    std::string TreeParent;
    std::string FullPath;
    std::string AbsPath;
};

class ClsProject {
public:
    // Makes the entry of the main program and makes its locals the current ones.
    ClsProject();

    // Visits the seven tables, then the locals of every function, the main program's too, and the fields of
    // every type.
    void ForEachTable(const std::function<void(clsHash& table)>& visit);
    // Raises all nine dirty flags, so that every list is updated when it is shown next.
    void MarkAllDirty();

    clsHash Funkcii;
    clsHash Globals;
    clsHash Types;
    clsHash Arrays;
    clsHash Labels;
    clsHash Includes;
    clsHash Constants;
    bool SingleFile = false;
    std::string Compiler;
    std::string CommandLine;
    bool Dirty = false;
    std::string Name;
    std::string Path;     // directory with its trailing separator
    std::string FullPath; // the key in gProjects
    CollectionTools<clsFile> Files;
    std::string MainFile;
    std::string Icon;
    CollectionTools<clsFolder> Folders;
    bool Expanded = false;
    CollectionTools<DocumentRecord> Sources{KeysAre::Paths}; // the open documents, by FullFilename
    std::shared_ptr<clsHash> MainFunLocals;
    bool HasClosedSymbols = false; // a member was closed since the project was opened

    // Raised by the parser when a table changed, lowered by the list that shows it.
    bool GlobalsDirty = false;
    bool ConstantsDirty = false;
    bool TypesDirty = false;
    bool FunctionsDirty = false;
    bool ArraysDirty = false;
    bool LabelsDirty = false;
    bool FieldsDirty = false;
    bool LocalsDirty = false;
    bool IncludesDirty = false;
};

// All that is open, by FullPath, and the project of the active document. Written by the document and
// project routines and by the activation of a document; the editor's event pipeline swaps
// gCurrentProject while it serves a view in the background.
extern CollectionTools<ClsProject> gProjects;
extern std::shared_ptr<ClsProject> gCurrentProject;

// Follows the rename of a file in the tables of gCurrentProject.
void UpdateVarFileNames(const std::string& oldName, const std::string& newName);
