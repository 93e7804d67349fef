// What has to be there before the program can run from a folder of the user's own.
#include "app/FirstStart.h"

#include <filesystem>

namespace fs = std::filesystem;

std::string FillAppDir(const std::string& appDir, const std::string& installed) {
    std::error_code error;
    if (!fs::is_directory(installed, error) || fs::equivalent(appDir, installed, error)) return {};
    fs::create_directories(appDir, error);
    for (fs::recursive_directory_iterator at(installed, error), end; !error && at != end;
         at.increment(error)) {
        const fs::path target = fs::path(appDir) / fs::relative(at->path(), installed, error);
        if (error) break;
        if (at->is_directory())
            fs::create_directories(target, error);
        else if (!fs::exists(target))
            fs::copy_file(at->path(), target, fs::copy_options::skip_existing, error);
        if (error) break;
    }
    return error ? appDir + ": " + error.message() : std::string{};
}
