// Runs the benchmarks on the program without its window.
#include "HeadlessHost.h"

#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
    HeadlessHost host(ZOLTO_APPDIR);
    host.Load();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
