// The place of the main window in the settings, and the order of the steps of shutdown.
#include "documents/Mod_Main.h"

#include "documents/CloseFiles.h"
#include "documents/ClsMRU.h"
#include "documents/DocumentCalls.h"
#include "documents/Mod_File_workspace.h"
#include "documents/Mod_Project.h"
#include "documents/RecentFiles.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "host/Desktop.h"
#include "host/DockStudio.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/HostCalls.h"
#include "host/Instances.h"
#include "host/Outside.h"
#include "host/Paths.h"
#include "host/SettingsStore.h"

#include <cmath>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace Mod_Main {

namespace {

constexpr const char* LayoutSection = "Layout0.8_0";
constexpr const char* LayoutFile = "Layouts\\Layout0.8_0.mp";
constexpr int Minimised = 1;
constexpr int OffScreen = 300; // twips of the window that must be on the screen

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

// Lists and workspace are written only while the program runs: they are not loaded before, and incomplete
// after.
enum class Life { Starts, Runs, Ended };
Life life = Life::Runs;

std::string ownHandle; // names the channel of this process while other instances may use it

// Another instance may have replaced the handle in the settings by its own.
bool SettingsNameThisProcess() {
    return !ownHandle.empty() && gHost.settings->Get("Instance", "Handle", "0") == ownHandle;
}

// Hides this process from other instances. Returns whether they could have found it.
bool WithdrawHandle() {
    const bool names = SettingsNameThisProcess();
    if (names) gHost.settings->Save("Instance", "Handle", "0");
    return names;
}

// Closes the channel. False if another instance has sent something that is not opened yet.
bool CloseChannel() {
    const NestedLoop loop; // a file that arrives now must not open during shutdown
    gHost.instances->Withdraw();
    return WaitingFromOutside() == 0;
}

// Writes the lists, the arrangement and the window's place.
void SaveLists() {
    Mod_File::SaveRecentFilesProjects();
    MRUCommandLine.Save();
    const WindowPlace place = gHost.dock->Place();
    if (place.state == Minimised) return;
    // The place is stored even if the arrangement cannot be written.
    Guarded("Form_QueryUnload", "frmMain", [] {
        gHost.files->MakeFolders(AppPath("Layouts"));
        gHost.dock->SaveLayout(AppPath(LayoutFile));
    });
    SavePlace(place);
}

} // namespace

void BeginStart() { life = Life::Starts; }
void EndStart() {
    if (life == Life::Starts) life = Life::Runs;
}

void Publish() {
    ownHandle = gHost.instances->Publish(TextReceived);
    gHost.settings->Save("Instance", "Handle", ownHandle);
}

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

void QueryUnload(bool& cancel) {
    Guarded("Form_QueryUnload", "frmMain", [&] {
        const bool wasFound = WithdrawHandle();
        cancel = !Mod_File::AskForAll() || !CloseChannel();
        if (!cancel) {
            gDocumentCalls.UnloadFind();
            Mod_File::SaveWorkSpace(Mod_File::LastWorkspace()); // while everything is still open
            cancel = !Mod_File::CloseDocuments();
        }
        if (cancel) {
            // Other instances must be able to find this one again, unless it was ended meanwhile.
            if (wasFound && life != Life::Ended) Publish();
            return;
        }
        SaveLists();
        life = Life::Ended;
        gHost.desktop->Pump();
    });
}

void SaveSession() {
    if (life != Life::Runs) return;
    // No error dialog: the desktop does not wait for the user when it ends a session.
    const auto report = std::exchange(gHostCalls.ShowErrorDialog, nullptr);
    Mod_File::SaveWorkSpace(Mod_File::LastWorkspace());
    // Projects are saved without asking, as when they are closed.
    for (const auto& entry : gProjects)
        if (!entry.record->SingleFile && entry.record->Dirty) Mod_Project::SaveProject(*entry.record);
    Guarded("SaveSession", "Mod_Main", SaveLists);
    gHostCalls.ShowErrorDialog = report;
}

void EndNow() {
    SaveSession();
    WithdrawHandle();
    const bool starts = std::exchange(life, Life::Ended) == Life::Starts;
    CloseChannel(); // what came opens no more
    // Otherwise the start would continue and could ask the user something.
    if (starts) gHost.desktop->EndProcess(0);
}

void TakeDown() {
    gHost.dock->SetEvents(nullptr);
    for (DocumentWindow* window : gHost.dock->DocumentWindows()) window->Attach(nullptr);
    ForgetOutside();
    std::vector<std::shared_ptr<ClsProject>> projects; // keeps them alive while gProjects is emptied
    for (const auto& entry : gProjects) {
        projects.push_back(entry.record);
        for (const auto& source : entry.record->Sources)
            FormOf(*source.record).View->SetEvents(nullptr); // closing a window moves the focus
    }
    MakeActive(nullptr);
    gProjects.RemoveAll();
}

bool Ended() { return life == Life::Ended; }

} // namespace Mod_Main
