// Closing all that is open.
#include "documents/CloseFiles.h"

#include "documents/Mod_Project.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "host/DockStudio.h"
#include "host/ErrorLog.h"
#include "host/Host.h"

#include <string>
#include <vector>

namespace Mod_File {

bool CloseAllFiles() {
    return Guarded("CloseAllFiles", "Mod_MenuCommands", false, [] {
        std::vector<std::string> keys;
        for (const DocumentWindow* window : gHost.dock->DocumentWindows()) keys.push_back(window->Key());
        for (const std::string& key : keys) {
            DocumentWindow* window = gHost.dock->FindDocumentWindow(key);
            if (window == nullptr || key == "HELP WINDOW") continue;
            const auto* document = dynamic_cast<frmDoc*>(window->HostedForm());
            if (document == nullptr || !document->SingleFile) continue;
            window->SetVisible(false);
            // The look-up is made again, for a window that closed is gone.
            const DocumentWindow* left = gHost.dock->FindDocumentWindow(key);
            if (left != nullptr && left->Visible()) return false;
        }
        bool closed = true;
        for (int index = gProjects.Count() - 1; index >= 0; --index) {
            const auto project = gProjects.Item(index);
            if (!project->SingleFile && !Mod_Project::CloseProject(project)) closed = false;
        }
        return closed;
    });
}

} // namespace Mod_File
