// Finds the open document or project of a path.
#include "documents/OpenPaths.h"

#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/Text.h"

namespace Mod_File {

namespace {

// A path with its identity on disk, which is read once for many comparisons.
class PathOnDisk {
public:
    explicit PathOnDisk(const std::string& path) : path_(path), identity_(gHost.files->Identity(path)) {}

    bool IsSameFile(const std::string& other) const {
        if (path_ == other) return true;
        // The name of a document that was never saved may happen to exist in the current folder.
        if (path_.find('/') == std::string::npos || other.find('/') == std::string::npos) return false;
        return gHost.files->Identity(other) == identity_ && (!identity_.empty() || EqualNoCase(path_, other));
    }

private:
    const std::string& path_;
    std::string identity_;
};

} // namespace

bool SameFile(const std::string& a, const std::string& b) { return PathOnDisk(a).IsSameFile(b); }

frmDoc* DocumentOfPath(const std::string& path) {
    const PathOnDisk wanted(path);
    for (const auto& project : gProjects)
        for (const auto& source : project.record->Sources)
            if (wanted.IsSameFile(source.record->FullFilename)) return &FormOf(*source.record);
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
    const PathOnDisk wanted(path);
    for (const auto& project : gProjects) {
        if (project.record->SingleFile) continue;
        for (const auto& file : project.record->Files) {
            memberPath = MemberPath(*project.record, *file.record);
            if (wanted.IsSameFile(memberPath)) return project.record;
        }
    }
    return nullptr;
}

} // namespace Mod_File
