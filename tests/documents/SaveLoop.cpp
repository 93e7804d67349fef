// Saves a workspace, recent lists and a setting again and again, until it is killed. Its arguments are the
// program directory, a folder, and the files to open.
#include "HeadlessHost.h"
#include "documents/Mod_File.h"
#include "documents/Mod_File_workspace.h"
#include "documents/RecentFiles.h"
#include "engine/DocumentRecord.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 4) return 1;
    HeadlessHost host(argv[1]);
    host.Load();
    const std::string folder = argv[2];
    QtSettingsStore settings(folder + "/settings.ini");
    gHost.settings = &settings;
    for (int at = 3; at < argc; ++at) Mod_File::OpenFile(argv[at]);
    for (int round = 0;; ++round) {
        Mod_Sci::GotoPos(round % 10);
        Mod_File::AddRecentFile(argv[3 + round % (argc - 3)]);
        gHost.settings->Save("Layout0.8_0", "MainTop", std::to_string(round));
        gHost.desktop->Pump(); // the store writes when the program is idle
        Mod_File::SaveWorkSpace(folder + "/last.zws");
        if (round == 0) {
            std::puts("saving");
            std::fflush(stdout);
        }
    }
}
