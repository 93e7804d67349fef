// Runs the benchmarks on the program without its window.
#include "HeadlessHost.h"
#include "editor/Mod_SciFun_complete.h"
#include "engine/EngineCalls.h"

#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
    HeadlessHost host(ZOLTO_APPDIR);
    host.Load();
    gEngineCalls.Autocomplete = Mod_SciFun::Autocomplete;
    gEngineCalls.AutocompleteType = Mod_SciFun::AutocompleteType;
    gEngineCalls.AutocompleteLabel = Mod_SciFun::AutocompleteLabel;
    gEngineCalls.AutocompleteBackSlash = Mod_SciFun::AutocompleteBackSlash;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
