// zolto-inspect: opens a source or a project exactly as the program does, without a window, and prints what
// the engine then knows.
#include "Edits.h"
#include "HeadlessHost.h"
#include "Report.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Project.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "engine/EngineCalls.h"
#include "engine/ParserState.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/SettingsStore.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

namespace {

constexpr int UnusableArguments = 2;
constexpr int CannotOpen = 3;
constexpr int MalformedEdit = 4;

constexpr const char* Usage =
    "usage: zolto-inspect [--appdir DIR] [--set SECTION/KEY=VALUE]... [--strict] [--edits FILE]\n"
    "                     [--parts LIST] [--time] FILE\n"
    "  FILE   a .bb, opened alone, or a .zpf, opened as a project\n"
    "  --edits plays operations into the first document, a JSON object a line\n"
    "  LIST   of symbols,styles,folds,indents,markers,text (all but text when left out)\n";

struct Arguments {
    std::string appDir;
    std::vector<std::string> settings;
    bool strict = false;
    bool time = false;
    std::string edits;
    std::string file;
    ReportOptions report;
};

bool ReadParts(const std::string& list, ReportOptions& report) {
    report.symbols = report.styles = report.folds = report.indents = report.markers = report.text = false;
    for (std::size_t from = 0; from <= list.size();) {
        const std::size_t end = std::min(list.find(',', from), list.size());
        const std::string part = list.substr(from, end - from);
        bool* const wanted = part == "symbols"   ? &report.symbols
                             : part == "styles"  ? &report.styles
                             : part == "folds"   ? &report.folds
                             : part == "indents" ? &report.indents
                             : part == "markers" ? &report.markers
                             : part == "text"    ? &report.text
                                                 : nullptr;
        if (wanted == nullptr) return false;
        *wanted = true;
        from = end + 1;
    }
    return true;
}

bool ReadArguments(int count, char** values, Arguments& arguments) {
    for (int i = 1; i < count; ++i) {
        const std::string argument = values[i];
        const bool hasValue = i + 1 < count;
        if (argument == "--strict") {
            arguments.strict = true;
        } else if (argument == "--time") {
            arguments.time = true;
        } else if (argument == "--appdir" && hasValue) {
            arguments.appDir = values[++i];
        } else if (argument == "--edits" && hasValue) {
            arguments.edits = values[++i];
        } else if (argument == "--set" && hasValue) {
            arguments.settings.emplace_back(values[++i]);
            const std::string& setting = arguments.settings.back();
            if (setting.find('/') == std::string::npos || setting.find('=') < setting.find('/')) return false;
            if (setting.find('=') == std::string::npos) return false;
        } else if (argument == "--parts" && hasValue) {
            if (!ReadParts(values[++i], arguments.report)) return false;
        } else if (argument.starts_with("--") || !arguments.file.empty()) {
            return false;
        } else {
            arguments.file = argument;
        }
    }
    return !arguments.file.empty();
}

long long Microseconds(std::chrono::steady_clock::time_point since) {
    const auto passed = std::chrono::steady_clock::now() - since;
    return std::chrono::duration_cast<std::chrono::microseconds>(passed).count();
}

bool Open(const std::string& path) {
    if (GetExtension(path) == ".ZPF")
        return Mod_Project::LoadProject(path) && gCurrentProject->Sources.Count() > 0;
    return Mod_File::OpenFile(path);
}

int Complain(int status, const std::string& text) {
    std::fprintf(stderr, "zolto-inspect: %s\n", text.c_str());
    return status;
}

void SaveSettings(const std::vector<std::string>& settings) {
    for (const std::string& setting : settings) {
        const std::size_t slash = setting.find('/');
        const std::size_t equals = setting.find('=', slash);
        gHost.settings->Save(setting.substr(0, slash), setting.substr(slash + 1, equals - slash - 1),
                             setting.substr(equals + 1));
    }
}

struct OpenTimes {
    long long load = 0;  // microseconds, parsing included
    long long parse = 0; // of all files
};

// Opens a source or a project, and returns whether that succeeded.
bool OpenTimed(const std::string& path, OpenTimes& times) {
    std::chrono::steady_clock::time_point parseBegin;
    gEngineCalls.ParsingAll = [&](bool begins) {
        if (begins)
            parseBegin = std::chrono::steady_clock::now();
        else
            times.parse += Microseconds(parseBegin);
    };
    const auto since = std::chrono::steady_clock::now();
    const bool opened = Open(path);
    times.load = Microseconds(since);
    gEngineCalls.ParsingAll = nullptr;
    return opened;
}

int Run(Arguments& arguments) {
    std::vector<EditOperation> edits;
    std::string malformed;
    if (!arguments.edits.empty() && !ReadEdits(arguments.edits, edits, malformed))
        return Complain(MalformedEdit, arguments.edits + ": " + malformed);
    HeadlessHost host(arguments.appDir);
    SaveSettings(arguments.settings);
    host.Load();
    if (arguments.strict) SetStrict(true);
    std::error_code error;
    const std::string path = std::filesystem::absolute(arguments.file, error).lexically_normal().string();
    // Only sources and projects: anything else would be handed to the desktop.
    const std::string extension = GetExtension(path);
    if (extension != ".BB" && extension != ".ZPF")
        return Complain(CannotOpen, path + " is neither a .bb nor a .zpf");
    OpenTimes times;
    if (!OpenTimed(path, times)) return Complain(CannotOpen, path + " could not be opened");
    std::vector<long long> editTimes;
    if (!arguments.edits.empty()) editTimes = PlayEdits(edits);
    const auto since = std::chrono::steady_clock::now();
    StyleAll();
    if (arguments.time) {
        arguments.report.times = {
            {"load", times.load}, {"parse", times.parse}, {"style_all", Microseconds(since)}};
        arguments.report.editTimes = editTimes;
    }
    const std::string report = Report(arguments.report);
    std::fwrite(report.data(), 1, report.size(), stdout);
    return 0;
}

} // namespace

int main(int count, char** values) {
    Arguments arguments;
    if (!ReadArguments(count, values, arguments)) {
        std::fputs(Usage, stderr);
        return UnusableArguments;
    }
    if (arguments.appDir.empty()) {
        std::error_code error;
        arguments.appDir = std::filesystem::read_symlink("/proc/self/exe", error).parent_path().string();
    }
    return Run(arguments);
}
