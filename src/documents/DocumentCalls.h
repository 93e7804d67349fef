// What the document routines may ask of the floors above them. Empty by default.
#pragma once

#include <functional>
#include <string>

class DocumentWindow;
class Form;

struct DocumentCalls {
    std::function<void()> PopulateTreeView;    // the project tree shows gProjects anew
    std::function<void()> UpdateCommandUI;     // commands enable by the active document
    std::function<void()> RefreshCodeExplorer; // its list of files or its current project changed
    // A window is the active one without its event having come, or before it had its document.
    std::function<void(DocumentWindow& window)> DocumentWindowActivated;
    // The form of the help window, made where there is none; null where it cannot be had.
    std::function<Form*()> HelpForm;
    std::function<void()> UnloadFind;
    std::function<void(const std::string& path)> OpenBrowser;
    std::function<void(const std::string& text)> SplashStatus; // shows a line on the splash window
    std::function<void()> CreateMainWindow;                    // its Form_Load runs
    std::function<void()> ShowMainWindow;
    std::function<bool()> StrictModeChecked;
};
extern DocumentCalls gDocumentCalls; // written by the wiring of the application alone
