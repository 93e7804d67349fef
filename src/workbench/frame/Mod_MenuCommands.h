// Commands by their names: the routing table, and the routines that belong to no other module.
#pragma once

#include "host/DockStudio.h"

#include <string>
#include <string_view>
#include <vector>

namespace Mod_MenuCommands {

struct Click {
    DockCommand& command;
    int item; // the entry of a list command, else -1
};

// One command. A command without a routine is known and does nothing.
struct RoutedCommand {
    std::string_view name;
    void (*run)(const Click& click);
    bool cancelFirst = false; // ends a completion list and a call tip before it runs
};

// Every command of the program, in routing order.
const std::vector<RoutedCommand>& Routes();

// Runs the routine of a command. One that needs a document does nothing without it; an unknown name
// does nothing. Failures go on to the caller.
void Route(DockCommand& command, int item);

// Flips strict mode and gives the text the focus.
void ChangeStrictMode();
// Brings caption, BadStyle and the colours on the screen up to the check mark, which an arrangement may have
// set.
void FollowStrictMark();
// Gives the active document the focus; nothing happens without one.
void FocusText();
// Makes the compiler that was picked in the box the active project's one; the old name comes back when
// its keywords cannot be loaded.
void cboCompilers();
// Makes the text in the box the first of those to choose from. The project that it was typed for has it
// already, and another one may be the active one by now.
void cboCommandLine();
// Shows a pane that is hidden, and hides one that is shown; by key only one that has the focus.
void TogglePane(const char* pane, bool byKey);
// Shows a pane and gives it the focus.
void ShowPane(const char* pane);
void ToggleStatusBar();
// Shows the Code Explorer's list of that name and gives it the focus. Asks for a line and goes there.
void ExploreFocusOn(const std::string& word);
void AskGotoLine();
void CloseFile();
// Closes the tab in front, whatever it shows, as its own button does.
void CloseTab();
// The next tab of the group; by key the one before with gTabbingStartsWithPrevious.
void NextFileTab(bool byKey);
void ActivateWindow(int index);

// Layouts 1 to 3: the arrangement in a file and the window's place in the settings store.
void SaveAsLayout(int number);
void SwitchToLayout(int number);
void ResetLayout();

} // namespace Mod_MenuCommands
