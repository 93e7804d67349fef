// Start of the program, and texts from other instances.
#include "documents/Mod_Main.h"

#include "documents/CompilerRegistry.h"
#include "documents/DocumentCalls.h"
#include "documents/Mod_File.h"
#include "documents/Mod_File_workspace.h"
#include "documents/OptionTable.h"
#include "documents/Options.h"
#include "editor/frmDoc.h"
#include "engine/Mod_Lexer.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "host/Desktop.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "host/Instances.h"
#include "host/Outside.h"
#include "host/SettingsStore.h"

#include <cstdlib>

namespace Mod_Main {

namespace {

constexpr int WaitRounds = 31; // until a first instance has published its handle
constexpr const char* BringForward = "Aktiviraj";

int lastWindowState = 0; // the last state of the main window that was not minimised

// Whether another instance accepted the command line, so that this one has to end.
bool HandedOver(const std::string& commandLine) {
    Options::MultipleInstances = std::atoi(gHost.settings->Get("Options", "MultipleInstances", "0").c_str());
    if (!gHost.instances->AnotherRuns() || Options::MultipleInstances != 0) return false;
    for (int round = 0; round < WaitRounds; ++round) {
        if (round > 0) gHost.instances->WaitForPublish();
        gHost.desktop->Pump();
        const std::string handle = gHost.settings->Get("Instance", "Handle", "0");
        if (std::atoi(handle.c_str()) == 0) continue;
        // Sending fails if the instance was killed and has left its handle in the settings.
        if (gHost.instances->Send(handle, commandLine.empty() ? BringForward : commandLine)) return true;
    }
    return false; // two windows are better than a file that does not open
}

void Status(const char* text) { gDocumentCalls.SplashStatus(text); }

void LoadEditControl() {
    if (gHost.views->Create() != nullptr) return;
    gHost.dialogs->Show({"SciLexer.dll is missing or invalid !", MessageIcon::Critical, "Critical error"});
    gHost.desktop->EndProcess(1);
}

} // namespace

bool Main(const std::string& commandLine) {
    BeginStart();
    const bool runs = Guarded("Main", "Mod_Main", true, [&] {
        if (HandedOver(commandLine)) return false;
        Start();
        // The window does not paint before the first document is open, because painting an empty window takes
        // time.
        if (!commandLine.empty())
            Mod_File::OpenFilesFromCommand(commandLine);
        else if (Options::gStartUp == Options::StartRestoresWorkspace)
            Mod_File::LoadWorkSpace(Mod_File::LastWorkspace());
        else if (Options::gStartUp == Options::StartOpensNewFile)
            Mod_File::NewFile();
        gHost.desktop->LockWindowUpdate(false);
        return true;
    });
    EndStart();
    return runs;
}

void Start() {
    Guarded("start", "frmSplash", [&] {
        Status("Loading Scinitilla library...");
        LoadEditControl();
        Mod_Lexer::BuildCharacterTables();
        Status("Loading Compilers...");
        LoadCompilers();
        Status("Loading Options...");
        Options::GetOptions();
        Status("Loading HotCodes...");
        Status("Loading External Tools...");
        Status("Loading Editor Options...");
        Options::GetEditOptions();
        Status("Loading Style...");
        Mod_File::LoadStyle(OptionsEdit::SciStyleName);
        Status("Loading Editor...");
        gDocumentCalls.CreateMainWindow();
        Status("Starting Editor...");
        gHost.desktop->LockWindowUpdate(true);
        gDocumentCalls.ShowMainWindow();
        gHost.desktop->Pump();
        SetStrict(gDocumentCalls.StrictModeChecked());
    });
}

void TextReceived(const std::string& text) {
    if (text.empty()) return;
    constexpr int Minimised = 1;
    WindowPlace place = gHost.dock->Place();
    if (place.state != Minimised) {
        place.state = lastWindowState;
        gHost.dock->SetPlace(place);
    }
    gHost.dock->BringToFront();
    if (text != BringForward) FromOutside([text] { Mod_File::OpenFilesFromCommand(text); });
}

void Resized() {
    constexpr int Minimised = 1;
    if (const int state = gHost.dock->Place().state; state != Minimised) lastWindowState = state;
}

} // namespace Mod_Main
