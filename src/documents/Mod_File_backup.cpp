// Backup copies: either named with date and time, and all kept; or numbered with 1 as the newest, and a few
// kept.
#include "documents/Mod_File_backup.h"

#include "documents/Options.h"
#include "host/Clock.h"
#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <vector>

namespace Mod_File {

namespace {

std::string StoreFolder() { return CollapseSeparators(Options::gBackupStoreFolder + "/"); }

// Makes one level only: if the parent folder is missing, a disk may not be mounted, and the copies would be
// hidden by it later.
void MakeStoreFolder(const std::string& folder) {
    if (gHost.files->Kind(folder) == PathKind::Folder) return;
    const std::string above = GetFolder(std::string_view(folder).substr(0, folder.size() - 1));
    if (!above.empty() && gHost.files->Kind(above) != PathKind::Folder)
        throw Failure(FailurePathNotFound, above + ": Path not found");
    gHost.files->MakeFolders(folder);
}

// Date and time of now, for a file name.
std::string Stamp() {
    const std::string date = gHost.clock->Date();
    const std::string time = gHost.clock->Time();
    const std::string year = date.substr(0, 4), month = date.substr(5, 2), day = date.substr(8, 2);
    const bool monthFirst = gHost.clock->ShortDate(1993, 12, 25).starts_with("12");
    return "_" + (monthFirst ? month + "." + day : day + "." + month) + "." + year + "_" + time.substr(0, 2) +
           "." + time.substr(3, 2) + ".bak";
}

// The numbers of the existing copies, the greatest first. The folder is listed once, because the option may
// allow more copies than could be tried one by one.
std::vector<int> NumbersBehind(const std::string& stem) {
    std::vector<int> numbers;
    const std::string folder = GetFolder(stem);
    const std::string name = GetFileName(stem);
    for (const std::string& entry : gHost.files->List(folder.empty() ? "." : folder)) {
        if (!entry.starts_with(name)) continue;
        const char* end = entry.data() + entry.size();
        int number = 0;
        const auto read = std::from_chars(entry.data() + name.size(), end, number);
        if (read.ec == std::errc() && read.ptr == end && entry == name + std::to_string(number))
            numbers.push_back(number);
    }
    std::sort(numbers.begin(), numbers.end(), std::greater<>());
    return numbers;
}

// Makes room for a new copy 1: each copy gets the next number, and the oldest is deleted. Failures are
// ignored.
void Rotate(const std::string& stem) {
    const auto ignoring = [](const auto& step) {
        try {
            step();
        } catch (const Failure&) {
            // An older copy that cannot be moved must not prevent the new one.
        }
    };
    const int most = Options::gBackupBakIncrement;
    const std::string oldest = stem + std::to_string(most);
    if (gHost.files->Kind(oldest) != PathKind::Folder) ignoring([&] { gHost.files->Remove(oldest); });
    ignoring([&] {
        for (const int number : NumbersBehind(stem))
            if (number >= 1 && number < most)
                ignoring([&] {
                    gHost.files->Rename(stem + std::to_string(number), stem + std::to_string(number + 1));
                });
    });
}

} // namespace

void BackupFile(const std::string& path) {
    Guarded("BackupFile", "Mod_File", [&] {
        const bool inFolder = Options::gBackupStoreType == Options::BackupInFolder;
        const std::string name = GetFileName(path);
        const std::string folder = inFolder ? StoreFolder() : std::string();
        // The file is read first, so that an unreadable file does not cost an older copy.
        const std::string bytes = gHost.files->Read(path);
        const bool stamped = Options::gBackupType == Options::BackupStamped;
        if (!stamped) Rotate((inFolder ? folder + name : path) + ".bak");
        if (inFolder) MakeStoreFolder(folder);
        // A name without a folder puts the copy into the program's current folder.
        gHost.files->Write(folder + name + (stamped ? Stamp() : ".bak1"), bytes);
    });
}

} // namespace Mod_File
