// The Code Explorer: from an edit that changes one symbol to the pane showing it, and the pane's share in
// opening a project. Each figure's floor is the same without the pane.
#include "Source.h"
#include "documents/CloseFiles.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Project.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "engine/EngineCalls.h"
#include "host/Files.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"
#include "workbench/explorer/frmMainList.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <benchmark/benchmark.h>
#include <filesystem>

namespace {

constexpr int Edits = 50;
constexpr QSize PaneSize(320, 700);
constexpr QSize ViewSize(1024, 768);

// A source of that many symbols of one kind.
std::string Symbols(const std::string& kind, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        const std::string name = "name" + std::to_string((i * 7919) % count) + "x";
        if (kind == "Functions")
            text += "Function " + name + "(first, second#)\r\n\tLocal third\r\nEnd Function\r\n\r\n";
        else
            text += "Global " + name + "# = 12.5\r\n\r\n";
    }
    return text;
}

// The pane, shown and fed as in the program, for as long as it lives.
class ShownPane {
public:
    explicit ShownPane(bool shown, const char* construct = "Functions") {
        if (!shown) return;
        auto* widget = static_cast<QWidget*>(pane_.NativeWidget());
        pane_.ShowConstruct(construct);
        gEngineCalls.PuniLista = [this] { pane_.PuniLista(); };
        widget->resize(PaneSize);
        widget->show();
        QApplication::processEvents();
    }
    ~ShownPane() { gEngineCalls.PuniLista = nullptr; }
    ShownPane(const ShownPane&) = delete;
    ShownPane& operator=(const ShownPane&) = delete;

private:
    frmMainList pane_;
};

void Paint() {
    auto* view = static_cast<QAbstractScrollArea*>(static_cast<QWidget*>(ActiveForm()->NativeWidget()));
    view->viewport()->repaint();
    QApplication::processEvents();
}

// Renames one symbol and leaves its line.
void Rename(std::intptr_t line) {
    Mod_Sci::GotoPos(Mod_Sci::PositionFromLine(line) + 10);
    Mod_Sci::ReplaceSel("q");
    Mod_Sci::GotoPos(Mod_Sci::PositionFromLine(line + 1));
    Paint();
}

std::string OpenSymbols(const std::string& kind, int count) {
    std::string path = (std::filesystem::temp_directory_path() / "zolto_symbols.bb").string();
    gHost.files->Write(path, Symbols(kind, count));
    Mod_File::OpenFile(path);
    return path;
}

void Edit(benchmark::State& state, const std::string& kind, bool pane) {
    const std::string path = OpenSymbols(kind, static_cast<int>(state.range(0)));
    auto* view = static_cast<QWidget*>(ActiveForm()->NativeWidget());
    view->resize(ViewSize);
    view->show();
    {
        const ShownPane shown(pane, kind.c_str());
        const auto line = Mod_Sci::GetLineCount() / 8 * 4;
        Rename(line);
        for (auto _ : state)
            for (int i = 0; i < Edits; ++i) Rename(line);
    }
    state.counters["edit"] = benchmark::Counter(
        static_cast<double>(state.iterations()) * Edits,
        benchmark::Counter::Flags(benchmark::Counter::kIsRate | benchmark::Counter::kInvert));
    view->hide();
    CloseActive();
    std::filesystem::remove(path);
}

void Open(benchmark::State& state, bool pane) {
    const ShownPane shown(pane);
    for (auto _ : state) {
        Mod_Project::LoadProject(ZOLTO_EXAMPLES "/DeepVein/DeepVein.zpf");
        ActiveForm()->State.mJustActivated = true; // as the main window does
        Paint();
        state.PauseTiming();
        Mod_File::CloseProject(gCurrentProject);
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

BENCHMARK_CAPTURE(Edit, Floor_globals, "Globals", false)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Edit, globals, "Globals", true)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Edit, Floor_functions, "Functions", false)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Edit, functions, "Functions", true)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Open, Floor_project, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Open, project, true)->Unit(benchmark::kMillisecond);

} // namespace
