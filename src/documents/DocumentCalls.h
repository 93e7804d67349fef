// What the document routines may ask of the floors above them. Empty by default.
#pragma once

#include "host/Request.h"

#include <string>

class DocumentWindow;
class Form;

// The key of the document window that shows the help.
inline constexpr const char* HelpWindowKey = "HELP WINDOW";

struct DocumentCalls {
    Request<void()> PopulateTreeView;    // the project tree shows gProjects anew
    Request<void()> UpdateCommandUI;     // commands enable by the active document
    Request<void()> RefreshCodeExplorer; // its list of files or its current project changed
    // A window is the active one without its event having come, or before it had its document.
    Request<void(DocumentWindow& window)> DocumentWindowActivated;
    // The form of the help window, made where there is none; null where it cannot be had.
    Request<Form*()> HelpForm;
    Request<void()> UnloadFind;
    Request<void(const std::string& path)> OpenBrowser;
    Request<void(const std::string& text)> SplashStatus; // shows a line on the splash window
    Request<void()> CreateMainWindow;                    // its Form_Load runs
    Request<void()> ShowMainWindow;
    Request<bool()> StrictModeChecked;
};
extern DocumentCalls gDocumentCalls; // written by the wiring of the application alone
