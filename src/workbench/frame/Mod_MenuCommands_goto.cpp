// The commands that go to a list of the Code Explorer or to a line.
#include "workbench/frame/Mod_MenuCommands.h"

#include "editor/frmDoc.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "workbench/explorer/frmMainList.h"
#include "workbench/find/frmGotoLine.h"
#include "workbench/parts/MainWindow.h"

namespace Mod_MenuCommands {

void ExploreFocusOn(const std::string& word) {
    Guarded("ExploreFocusOn", "Mod_MenuCommands", [&] {
        frmMainList::Instance().ShowConstruct(word);
        DockPane* pane = gHost.dock->FindPane("CodeExplorer");
        if (!pane) return;
        // A hidden list must not receive keys.
        if (!pane->Visible() || pane->AutoHidden()) pane->Show();
        frmMainList::Instance().FocusList();
    });
}

void AskGotoLine() {
    if (!DocumentActive()) return;
    frmGotoLine(MainWindow()).exec();
    if (const frmDoc* document = ActiveForm()) document->View->GrabFocus();
}

} // namespace Mod_MenuCommands
