// Commands by their names: the routing table, and the routines that belong to no other module.
#pragma once

#include "host/DockStudio.h"

#include <string>
#include <string_view>
#include <vector>

namespace Mod_MenuCommands {

struct Click {
    DockCommand& command;
    int item; // the clicked entry of a list command, else -1
};

// A command of the program. A command without a routine is known but does nothing.
struct RoutedCommand {
    std::string_view name;
    void (*run)(const Click& click);
    bool cancelFirst = false; // closes a completion list and a call tip before the routine runs
};

// Every command of the program, in routing order.
const std::vector<RoutedCommand>& Routes();

// Runs the routine of a command. Does nothing for an unknown name, or if the command needs a document and
// there is none. Failures propagate to the caller.
void Route(DockCommand& command, int item);

// Switches strict mode and focuses the text.
void ChangeStrictMode();
// Updates caption, BadStyle and visible colours from the command's check mark, which an arrangement may have
// set.
void FollowStrictMark();
// Focuses the active document, if there is one.
void FocusText();
// Makes the compiler selected in the box the active project's compiler. Restores the old name if the keywords
// of the new one cannot be loaded.
void cboCompilers();
// Adds the text in the box to the recent command lines. The project already has that text; another project
// may be active by now.
void cboCommandLine();
// Toggles a pane. By key, a visible pane without the focus gets the focus instead of being hidden.
void TogglePane(const char* pane, bool byKey);
// Shows and focuses a pane.
void ShowPane(const char* pane);
void ToggleStatusBar();
// ExploreFocusOn shows and focuses the Code Explorer's list of that name; AskGotoLine asks for a line to go
// to.
void ExploreFocusOn(const std::string& word);
void AskGotoLine();
void CloseFile();
// Closes the active tab, whatever it shows, as the tab's own button does.
void CloseTab();
// Activates the next tab of the group; by key, and with gTabbingStartsWithPrevious, the previously active
// tab.
void NextFileTab(bool byKey);
void ActivateWindow(int index);

// Layouts 1 to 3: an arrangement in a file, with the window's place in the settings store.
void SaveAsLayout(int number);
void SwitchToLayout(int number);
void ResetLayout();

} // namespace Mod_MenuCommands
