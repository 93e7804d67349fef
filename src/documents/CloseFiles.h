// Closing documents and projects. The user is asked everything before anything closes, so that Cancel keeps
// everything.
#pragma once

#include <memory>

class ClsProject;
class DocumentWindow;

namespace Mod_File {

// Closes all single files and then all projects, the last one first. Asks about each dirty document. False if
// something stayed open.
bool CloseAllFiles();
// Asks about each dirty document of a project, saves the project and closes it with its documents. False if
// something stayed open.
bool CloseProject(std::shared_ptr<ClsProject> project);

// Asks about every dirty document, then saves every dirty project. False if the user cancelled or a save
// failed.
bool AskForAll();
// Closes the windows of all documents without asking. False if one stayed open.
bool CloseDocuments();
// Asks about the dirty document of a window that is about to close. Sets `cancel` if it has to stay open.
void DocumentWindowHiding(DocumentWindow& window, bool& cancel);

} // namespace Mod_File
