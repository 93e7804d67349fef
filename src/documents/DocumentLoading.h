// Loading a document: the steps that single files and members of projects have in common.
#pragma once

#include <functional>
#include <memory>
#include <string>

class ClsProject;
class frmDoc;

namespace Mod_File {

// A new document with the text of a file; null, with the reason, if the file cannot be read.
std::shared_ptr<frmDoc> ReadDocument(const std::string& path, std::string& reason);
// Runs `parse` for the active document without notifications and without undo history, then starts the event
// pipeline of the document.
void ParseUnheard(frmDoc& document, const std::function<void()>& parse);
// Shows a document in its window. `documentWindow`: a restored layout may have the window already.
void BindWindow(frmDoc& document, bool documentWindow);

// Undoes the loading of a document that failed: removes its window and its entry in the project, and makes
// the document `activeBefore` (a serial number) active again with its compiler.
void GiveUp(frmDoc& document, long activeBefore);
// PutAside takes a document out of its window and its project. The caller keeps it until another document has
// replaced it, or returns it with PutBack.
void PutAside(const std::shared_ptr<frmDoc>& document);
void PutBack(const std::shared_ptr<frmDoc>& document, const std::shared_ptr<ClsProject>& project);

// Brings the document of a path to the front. False if it is not open.
bool ActivateOpen(const std::string& path);
// Opens one member of a project. If the file cannot be loaded, returns false without a message and leaves the
// active document unchanged.
bool OpenProjectsFile(const std::shared_ptr<ClsProject>& project, const std::string& path,
                      bool documentWindow = false);
// Opens a member of an open project, or brings it to the front. False, after a message, if it cannot be
// loaded. Writes gActiveDoc, gCurrentProject and SciWndData.
bool OpenMember(const std::shared_ptr<ClsProject>& project, const std::string& path,
                bool documentWindow = false);
// The same for a member of gCurrentProject by its name. False, without a message, for an unknown name.
bool OpenMemberOfActive(const std::string& name);

} // namespace Mod_File
