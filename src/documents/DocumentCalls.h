// What the document routines may ask of the floors above them. Empty by default.
#pragma once

#include "host/Request.h"

#include <string>

class DocumentWindow;
class Form;

// The key of the document window that shows the help.
inline constexpr const char* HelpWindowKey = "HELP WINDOW";

struct DocumentCalls {
    Request<void()> PopulateTreeView;    // fills the project tree from gProjects
    Request<void()> UpdateCommandUI;     // enables commands as the active document requires
    Request<void()> RefreshCodeExplorer; // after a change of the files or of the current project
    // Handles a window that became active without an event, or before it had its document.
    Request<void(DocumentWindow& window)> DocumentWindowActivated;
    // The form of the help window, created if there is none; null if it cannot be created.
    Request<Form*()> HelpForm;
    Request<void()> UnloadFind;
    Request<void(const std::string& path)> OpenBrowser;
    Request<void(const std::string& text)> SplashStatus; // shows a line on the splash window
    Request<void()> CreateMainWindow;                    // and runs its Form_Load
    Request<void()> ShowMainWindow;
    Request<bool()> StrictModeChecked;
};
extern DocumentCalls gDocumentCalls; // written by the wiring of the application alone
