// Restoring a workspace of many files, beside loading the same files one by one.
#include "Source.h"
#include "documents/CloseFiles.h"
#include "documents/Mod_File.h"
#include "documents/Mod_File_workspace.h"
#include "host/Files.h"
#include "host/Host.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <string>
#include <vector>

namespace {

constexpr int Files = 30;
constexpr int Lines = 1000;

// The files and the workspace of them, on disk for as long as it lives.
class Desk {
public:
    Desk() {
        std::filesystem::create_directories(folder_);
        const std::string text = Source(Lines);
        for (int number = 0; number < Files; ++number) {
            paths.push_back((folder_ / ("file" + std::to_string(number) + ".bb")).string());
            gHost.files->Write(paths.back(), text);
        }
        OpenAll();
        Mod_File::SaveWorkSpace(Workspace());
        Mod_File::CloseAllFiles();
    }
    ~Desk() { std::filesystem::remove_all(folder_); }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    void OpenAll() const {
        for (const std::string& path : paths) Mod_File::OpenFile(path);
    }
    std::string Workspace() const { return (folder_ / "desk.zws").string(); }

    std::vector<std::string> paths;

private:
    std::filesystem::path folder_ = std::filesystem::temp_directory_path() / "zolto_bench_desk";
};

template <class Open>
void Measure(benchmark::State& state, Open open) {
    const Desk desk;
    for (auto _ : state) {
        open(desk);
        state.PauseTiming();
        Mod_File::CloseAllFiles();
        state.ResumeTiming();
    }
}

void Floor_Workspace(benchmark::State& state) {
    Measure(state, [](const Desk& desk) { desk.OpenAll(); });
}

void Workspace(benchmark::State& state) {
    Measure(state, [](const Desk& desk) { Mod_File::LoadWorkSpace(desk.Workspace()); });
}

BENCHMARK(Floor_Workspace)->Unit(benchmark::kMillisecond);
BENCHMARK(Workspace)->Unit(benchmark::kMillisecond);

} // namespace
