// The window's place in the settings, the save prompt, and the fixed order of shutdown.
#include "documents/Mod_Main.h"

#include "documents/ClsMRU.h"
#include "documents/DocumentCalls.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Project.h"
#include "documents/RecentFiles.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "host/Desktop.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/SettingsStore.h"

#include <cmath>
#include <cstdlib>

namespace Mod_Main {

namespace {

constexpr const char* HelpWindow = "HELP WINDOW";
constexpr const char* LayoutSection = "Layout0.8_0";
constexpr const char* LayoutFile = "Layouts\\Layout0.8_0.mp";
constexpr int Minimised = 1;
constexpr int OffScreen = 300; // twips that must be left of the window

int ReadPlace(const char* key, int byDefault) {
    const std::string text = gHost.settings->Get(LayoutSection, key, std::to_string(byDefault));
    char* end = nullptr;
    const double number = std::strtod(text.c_str(), &end);
    return end == text.c_str() || !std::isfinite(number) ? byDefault : static_cast<int>(std::lrint(number));
}

void SavePlace(const WindowPlace& place) {
    const auto save = [](const char* key, int value) {
        gHost.settings->Save(LayoutSection, key, std::to_string(value));
    };
    if (place.state == 0) {
        save("MainTop", place.top);
        save("MainLeft", place.left);
        save("MainWidth", place.width);
        save("MainHeight", place.height);
    }
    save("MainState", place.state);
}

// Hides every document window, which asks for each dirty one. False when one stayed.
bool CloseDocuments() {
    std::vector<std::string> keys;
    for (const DocumentWindow* window : gHost.dock->DocumentWindows()) keys.push_back(window->Key());
    for (const std::string& key : keys) {
        DocumentWindow* window = key == HelpWindow ? nullptr : gHost.dock->FindDocumentWindow(key);
        if (window == nullptr) continue;
        window->SetVisible(false);
        window = gHost.dock->FindDocumentWindow(key);
        if (window != nullptr && window->Visible()) return false;
    }
    return true;
}

} // namespace

void PlaceMainWindow() {
    const ScreenSize screen = gHost.desktop->Screen();
    WindowPlace place;
    place.top = ReadPlace("MainTop", 1000);
    if (place.top > screen.height - OffScreen) place.top = 1000;
    place.left = ReadPlace("MainLeft", 1000);
    if (place.left > screen.width - OffScreen) place.left = 1000;
    place.width = ReadPlace("MainWidth", 8000);
    place.height = ReadPlace("MainHeight", 7000);
    place.state = ReadPlace("MainState", 2);
    gHost.dock->SetPlace(place);
}

void DocumentWindowHiding(DocumentWindow& window, bool& cancel) {
    Guarded("DS_DocumentWindowHiding", "frmMain", [&] {
        if (window.HostedForm() == nullptr || window.Key() == HelpWindow) return;
        auto* document = static_cast<frmDoc*>(window.HostedForm());
        if (!document->Dirty) return;
        window.Activate();
        MakeActive(document);
        const bool single = gCurrentProject == nullptr || gCurrentProject->SingleFile;
        const MessageAnswer answer =
            gHost.dialogs->Show({"The text in the file '" + document->Filename +
                                     "' has changed.\r\n\r\nDo you want to save the changes ?",
                                 MessageIcon::Question,
                                 {},
                                 single ? MessageButtons::YesNoCancel : MessageButtons::YesNo});
        if (answer == MessageAnswer::Cancel) cancel = true;
        if (answer == MessageAnswer::Yes && !Mod_File::SaveFile(document)) cancel = true;
    });
}

void QueryUnload(bool& cancel) {
    Guarded("Form_QueryUnload", "frmMain", [&] {
        gHost.settings->Save("Instance", "Handle", "0");
        if (gDocumentCalls.UnloadFind) gDocumentCalls.UnloadFind();
        if (!CloseDocuments()) {
            cancel = true;
            return;
        }
        // As on closing it: a project is saved without being asked for.
        for (const auto& entry : gProjects)
            if (!entry.record->SingleFile && entry.record->Dirty) Mod_Project::SaveProject(*entry.record);
        Mod_File::SaveRecentFilesProjects();
        MRUCommandLine.Save();
        const WindowPlace place = gHost.dock->Place();
        if (place.state != Minimised) {
            // The place is kept even where the arrangement cannot be written.
            Guarded("Form_QueryUnload", "frmMain", [] {
                gHost.files->MakeFolders(AppPath("Layouts"));
                gHost.dock->SaveLayout(AppPath(LayoutFile));
            });
            SavePlace(place);
        }
        gHost.instances->Withdraw();
        gHost.desktop->Pump();
    });
}

} // namespace Mod_Main
