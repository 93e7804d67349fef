// The window's place in the settings, and the fixed order of shutdown.
#include "documents/Mod_Main.h"

#include "documents/CloseFiles.h"
#include "documents/ClsMRU.h"
#include "documents/DocumentCalls.h"
#include "documents/Mod_File_workspace.h"
#include "documents/Mod_Project.h"
#include "documents/RecentFiles.h"
#include "engine/ClsProject.h"
#include "host/Desktop.h"
#include "host/DockStudio.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/SettingsStore.h"

#include <cmath>
#include <cstdlib>
#include <utility>

namespace Mod_Main {

namespace {

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

bool ended = false; // what is remembered between runs has been written for the last time

// Writes what is remembered between runs, but for the workspace.
void SaveLists() {
    // As on closing it: a project is saved without being asked for.
    for (const auto& entry : gProjects)
        if (!entry.record->SingleFile && entry.record->Dirty) Mod_Project::SaveProject(*entry.record);
    Mod_File::SaveRecentFilesProjects();
    MRUCommandLine.Save();
    const WindowPlace place = gHost.dock->Place();
    if (place.state == Minimised) return;
    // The place is kept even where the arrangement cannot be written.
    Guarded("Form_QueryUnload", "frmMain", [] {
        gHost.files->MakeFolders(AppPath("Layouts"));
        gHost.dock->SaveLayout(AppPath(LayoutFile));
    });
    SavePlace(place);
}

} // namespace

void PlaceMainWindow() {
    ended = false;
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

void QueryUnload(bool& cancel) {
    Guarded("Form_QueryUnload", "frmMain", [&] {
        const std::string handle = gHost.settings->Get("Instance", "Handle", "0");
        gHost.settings->Save("Instance", "Handle", "0");
        cancel = !Mod_File::AskForAll();
        if (!cancel) {
            if (gDocumentCalls.UnloadFind) gDocumentCalls.UnloadFind();
            Mod_File::SaveWorkSpace(Mod_File::LastWorkspace()); // while all is still open
            cancel = !Mod_File::CloseDocuments();
        }
        if (cancel) {
            // Who starts the program again must find this one, unless it was told to end meanwhile.
            if (!ended) gHost.settings->Save("Instance", "Handle", handle);
            return;
        }
        SaveLists();
        ended = true;
        gHost.instances->Withdraw();
        gHost.desktop->Pump();
    });
}

void SaveSession() {
    if (ended) return;
    // Nobody may be there to close a report, and who ends the session doesn't wait.
    const auto report = std::exchange(gShowErrorDialog, nullptr);
    Mod_File::SaveWorkSpace(Mod_File::LastWorkspace());
    Guarded("SaveSession", "Mod_Main", SaveLists);
    gShowErrorDialog = report;
}

void EndNow() {
    SaveSession();
    if (!ended) gHost.settings->Save("Instance", "Handle", "0");
    ended = true;
    gHost.instances->Withdraw();
}

bool Ended() { return ended; }

} // namespace Mod_Main
