// The dialogs of settings: opening them, and applying to everything that is open.
#include "documents/CloseFiles.h"
#include "documents/Mod_File.h"
#include "host/Files.h"
#include "host/Host.h"
#include "workbench/settings/frmOptions.h"
#include "workbench/settings/frmOptionsEdit.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <benchmark/benchmark.h>
#include <filesystem>

namespace {

template <class Dialog>
void OpenSettings(benchmark::State& state) {
    for (auto _ : state) {
        Dialog dialog(nullptr);
        dialog.show();
        QApplication::processEvents();
    }
}

// Apply with that many files of that many lines open.
void ApplyEditorOptions(benchmark::State& state) {
    std::string source;
    for (long line = 0; line < state.range(1); ++line)
        source += "Global name" + std::to_string(line) + " = " + std::to_string(line) + " ; text\r\n";
    const auto folder = std::filesystem::temp_directory_path();
    for (long file = 0; file < state.range(0); ++file) {
        const std::string path = folder / ("settings_" + std::to_string(file) + ".bb");
        gHost.files->Write(path, source);
        Mod_File::OpenFile(path);
    }
    frmOptionsEdit dialog(nullptr);
    auto* tab = dialog.findChild<QSpinBox*>("txtTabValue");
    auto* apply = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply);
    for (auto _ : state) {
        tab->setValue(tab->value() == 4 ? 8 : 4);
        apply->click();
        QApplication::processEvents();
    }
    tab->setValue(4);
    apply->click();
    Mod_File::CloseAllFiles();
}

}

BENCHMARK(OpenSettings<frmOptions>)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenSettings<frmOptionsEdit>)->Unit(benchmark::kMillisecond);
BENCHMARK(ApplyEditorOptions)->Args({50, 1000})->Args({5, 52000})->Unit(benchmark::kMillisecond);
