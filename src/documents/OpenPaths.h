// What a path means among all that is open. Two paths are one file where the disk says so: links, other
// spellings of a folder and names that are found without regard to case lead to the document that is there.
#pragma once

#include <memory>
#include <string>

class ClsProject;
class frmDoc;
struct clsFile;

namespace Mod_File {

// Whether two paths are one file; of files that are both missing, whether they are spelled alike but for
// case.
bool SameFile(const std::string& a, const std::string& b);
// The open document of a path, null where there is none.
frmDoc* DocumentOfPath(const std::string& path);
// The open project of a path, null where there is none.
std::shared_ptr<ClsProject> ProjectOfPath(const std::string& path);

// Where a member of a project is on disk.
std::string MemberPath(const ClsProject& project, const clsFile& file);
// The open project that a path is a member of, null where there is none; `memberPath` becomes the path as
// that project has it.
std::shared_ptr<ClsProject> ProjectOfMember(const std::string& path, std::string& memberPath);

} // namespace Mod_File
