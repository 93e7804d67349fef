// Finds the open document or project of a path. Two paths mean one file if they have one identity on disk, so
// links and other spellings of a folder lead to the open document.
#pragma once

#include <memory>
#include <string>

class ClsProject;
class frmDoc;
struct clsFile;

namespace Mod_File {

// Whether two paths mean one file. Paths of two missing files are compared without regard to case.
bool SameFile(const std::string& a, const std::string& b);
// The open document of a path; null if there is none.
frmDoc* DocumentOfPath(const std::string& path);
// The open project of a path; null if there is none.
std::shared_ptr<ClsProject> ProjectOfPath(const std::string& path);

// The path of a member on disk.
std::string MemberPath(const ClsProject& project, const clsFile& file);
// The open project with a file as member; null if there is none. Sets `memberPath` to the path of that
// member.
std::shared_ptr<ClsProject> ProjectOfMember(const std::string& path, std::string& memberPath);

} // namespace Mod_File
