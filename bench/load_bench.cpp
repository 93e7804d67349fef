// Loading: from bytes on disk to a parsed document with its first screen coloured.
#include "Floor.h"
#include "Source.h"
#include "documents/Mod_File.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "engine/Mod_Parse.h"
#include "engine/ParserState.h"
#include "host/Files.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

#include <benchmark/benchmark.h>
#include <filesystem>

namespace {

constexpr int ScreenLines = 60;

void ColourScreen(int first) {
    ForgetScope();
    for (int line = first; line < first + ScreenLines; ++line) Mod_Parse::ColorLineLight(line, true);
}

void Floor_Load(benchmark::State& state) {
    const std::string text = Source(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        BareView view;
        view.Load(text);
    }
}

void Load(benchmark::State& state) {
    const std::string path = FileOf(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        Mod_File::OpenFile(path);
        ColourScreen(0);
        state.PauseTiming();
        CloseActive();
        state.ResumeTiming();
    }
    std::filesystem::remove(path);
}

void Floor_Screen(benchmark::State& state) {
    BareView view;
    view.Load(Source(static_cast<int>(state.range(0))));
    for (auto _ : state) view.Colour(state.range(0) / 2, ScreenLines);
}

void Screen(benchmark::State& state) {
    const std::string path = FileOf(static_cast<int>(state.range(0)));
    Mod_File::OpenFile(path);
    for (auto _ : state) ColourScreen(static_cast<int>(state.range(0)) / 2);
    CloseActive();
    std::filesystem::remove(path);
}

BENCHMARK(Floor_Load)->Arg(52000)->Unit(benchmark::kMillisecond);
BENCHMARK(Load)->Arg(52000)->Unit(benchmark::kMillisecond);
BENCHMARK(Load)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(Load)->Arg(1000000)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(Floor_Screen)->Arg(52000)->Unit(benchmark::kMicrosecond);
BENCHMARK(Screen)->Arg(52000)->Unit(benchmark::kMicrosecond);

} // namespace
