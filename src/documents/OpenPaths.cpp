// What a path means among all that is open.
#include "documents/OpenPaths.h"

#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"

namespace Mod_File {

bool SameFile(const std::string& a, const std::string& b) {
    if (a == b) return true;
    // What was never saved has a name, which may happen to be that of a file in the present folder.
    if (a.find('/') == std::string::npos || b.find('/') == std::string::npos) return false;
    const std::string first = gHost.files->Identity(a);
    const std::string second = gHost.files->Identity(b);
    return first == second && (!first.empty() || EqualNoCase(a, b));
}

frmDoc* DocumentOfPath(const std::string& path) {
    for (const auto& project : gProjects)
        for (const auto& source : project.record->Sources)
            if (SameFile(source.record->FullFilename, path)) return static_cast<frmDoc*>(source.record.get());
    return nullptr;
}

std::shared_ptr<ClsProject> ProjectOfPath(const std::string& path) {
    for (const auto& project : gProjects)
        if (!project.record->SingleFile && SameFile(project.record->FullPath, path)) return project.record;
    return nullptr;
}

std::string MemberPath(const ClsProject& project, const clsFile& file) {
    return gHost.files->Find(CollapseSeparators(project.Path + ToDisk(file.AbsPath)));
}

std::shared_ptr<ClsProject> ProjectOfMember(const std::string& path, std::string& memberPath) {
    for (const auto& project : gProjects) {
        if (project.record->SingleFile) continue;
        for (const auto& file : project.record->Files) {
            memberPath = MemberPath(*project.record, *file.record);
            if (SameFile(memberPath, path)) return project.record;
        }
    }
    return nullptr;
}

} // namespace Mod_File
