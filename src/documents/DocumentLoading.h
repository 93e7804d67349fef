// From a file's bytes to a parsed document in a window: the steps that single files and members share.
#pragma once

#include <functional>
#include <memory>
#include <string>

class ClsProject;
class frmDoc;

namespace Mod_File {

// A new document with a file's text; null, with the reason, when it cannot be read.
std::shared_ptr<frmDoc> ReadDocument(const std::string& path, std::string& reason);
// Parses the active document's lines with nothing listening, and then starts listening. No change of the text
// enters the undo history.
void ParseUnheard(frmDoc& document, const std::function<void()>& parse);
// Puts a document into its window, which a layout may have brought back (`documentWindow`), and shows it.
void BindWindow(frmDoc& document, bool documentWindow);

// Takes back what was begun where a document could not be loaded: its window, its project's entry, and which
// one was active, by its serial number, and with which compiler.
void GiveUp(frmDoc& document, long activeBefore);
// Takes a document out of its window and its project, which the caller holds until another is there in its
// place, or puts it back.
void PutAside(const std::shared_ptr<frmDoc>& document);
void PutBack(const std::shared_ptr<frmDoc>& document, const std::shared_ptr<ClsProject>& project);

// Brings the document of a path to the front. False where none is open.
bool ActivateOpen(const std::string& path);
// Opens one member of a project; a file that cannot be loaded answers false without a message, and leaves
// what was active as it was.
bool OpenProjectsFile(const std::shared_ptr<ClsProject>& project, const std::string& path,
                      bool documentWindow = false);
// Opens a member of a project that is open, or brings it to the front. False, with a message, when it cannot
// be loaded. Writes gActiveDoc, gCurrentProject, SciWndData.
bool OpenMember(const std::shared_ptr<ClsProject>& project, const std::string& path,
                bool documentWindow = false);
// The same for a member of gCurrentProject by its name; false, without a message, when it has no such member.
bool OpenMemberOfActive(const std::string& name);

} // namespace Mod_File
