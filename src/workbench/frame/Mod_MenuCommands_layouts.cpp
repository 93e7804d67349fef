// Layouts: an arrangement in a file below AppDir; the window's place is a section of the settings store.
#include "workbench/frame/Mod_MenuCommands.h"

#include "documents/RecentFiles.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Files.h"
#include "host/Guards.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/SettingsStore.h"
#include "workbench/frame/FactoryLayout.h"
#include "workbench/frame/frmMain.h"

#include <cmath>
#include <cstdlib>
#include <functional>
#include <string>

namespace {

enum : int { Normal = 0, Minimised = 1 };

std::string LayoutName(int number) { return "Layout0.8_" + std::to_string(number); }

std::string LayoutPath(int number) { return AppPath("Layouts\\" + LayoutName(number) + ".mp"); }

int Stored(const std::string& section, const char* key, int byDefault) {
    const std::string text = gHost.settings->Get(section, key, std::to_string(byDefault));
    return static_cast<int>(std::lround(std::strtod(text.c_str(), nullptr)));
}

// Loads an arrangement without painting the steps in between, and adapts it to the present commands.
void LoadArrangement(const std::function<void()>& load) {
    const StillWindow still;
    load();
    frmMain& main = frmMain::Instance();
    main.AdditionalUISetup();
    main.AddDockForms(false);
    main.FillCompilers();
    main.UpdateCommandUI();
}

}

void Mod_MenuCommands::SaveAsLayout(int number) {
    Guarded("SaveAsLayout", "Mod_MenuCommands", [number] {
        const WindowPlace place = gHost.dock->Place();
        if (place.state == Minimised) return;
        gHost.dock->SaveLayout(LayoutPath(number));
        const auto save = [section = LayoutName(number)](const char* key, int value) {
            gHost.settings->Save(section, key, std::to_string(value));
        };
        save("MainTop", place.top);
        save("MainLeft", place.left);
        save("MainWidth", place.width);
        save("MainHeight", place.height);
        save("MainState", place.state);
    });
}

void Mod_MenuCommands::SwitchToLayout(int number) {
    Guarded("SwitchToLayout", "Mod_MenuCommands", [number] {
        const std::string path = LayoutPath(number);
        try {
            if (gHost.files->Kind(path) != PathKind::File)
                throw Failure(FailureFileNotFound, path + ": not there");
            LoadArrangement([&] { gHost.dock->LoadLayout(path); });
        } catch (const Failure&) {
            // Nothing has changed yet: an arrangement is read completely before any of it is applied.
            gHost.dialogs->Show({.text = "Layout" + std::to_string(number) +
                                         " is not created yet or is incorrect UI version !",
                                 .icon = MessageIcon::Exclamation});
            return;
        }
        const std::string section = LayoutName(number);
        WindowPlace place = gHost.dock->Place();
        place.state = Stored(section, "MainState", Normal);
        if (place.state == Normal) {
            place.top = Stored(section, "MainTop", 5000);
            place.left = Stored(section, "MainLeft", 1500);
            place.width = Stored(section, "MainWidth", 7000);
            place.height = Stored(section, "MainHeight", 6500);
        }
        gHost.dock->SetPlace(place);
    });
}

void Mod_MenuCommands::ResetLayout() {
    Guarded("ResetLayout", "Mod_MenuCommands", [] {
        const MessageAnswer answer = gHost.dialogs->Show(
            {.text = "Are you sure you want to revert to the default layout settings ? \rAll menus, commands "
                     "and hotkeys will also be reverted to their default state !",
             .icon = MessageIcon::Question,
             .title = "Zolto - Reset Layout",
             .buttons = MessageButtons::YesNo});
        if (answer != MessageAnswer::Yes) return;
        Mod_File::SaveRecentFilesProjects();
        LoadArrangement(LoadFactoryLayout);
        Mod_File::LoadRecentFilesProjects();
    });
}
