// Closing what is open. All questions come before anything closes, so a Cancel keeps everything.
#pragma once

#include <memory>

class ClsProject;
class DocumentWindow;

namespace Mod_File {

// Closes every single file and then every project, the last first; asks for each document that is dirty.
// False when something stayed open.
bool CloseAllFiles();
// Asks for each dirty document of a project, saves the project, and closes it with its documents. False when
// something stayed open.
bool CloseProject(std::shared_ptr<ClsProject> project);

// The save prompt for every open document that is dirty, then the saving of every project that is. False when
// one was cancelled or could not be saved.
bool AskForAll();
// Closes every document window, the help window excepted, without another question. False when one stayed.
bool CloseDocuments();
// The save prompt of a document window that is about to close.
void DocumentWindowHiding(DocumentWindow& window, bool& cancel);

} // namespace Mod_File
