// Switching tabs in the main window, painting and colouring included.
#include "documents/CloseFiles.h"
#include "documents/DocumentCalls.h"
#include "documents/Mod_File.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/qt/frame/QtDockStudio.h"
#include "workbench/frame/FactoryLayout.h"
#include "workbench/frame/frmMain.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <filesystem>
#include <memory>

namespace {

constexpr int Lines = 1000;

// The main window instead of the frame without one, for as long as it lives.
class ShownWindow {
public:
    ShownWindow() : before_(gHost.dock) {
        gHost.dock = dock_.get();
        gHost.dock->SetEvents(&frmMain::Instance());
        LoadFactoryLayout();
        frmMain::Instance().AdditionalUISetup();
        frmMain::Instance().AddDockForms(true);
        dock_->SetPlace({.width = 18000, .height = 12000});
        dock_->ShowWindow();
    }
    ~ShownWindow() {
        Mod_File::CloseAllFiles();
        dock_->SetEvents(nullptr);
        gHost.dock = before_;
    }
    ShownWindow(const ShownWindow&) = delete;
    ShownWindow& operator=(const ShownWindow&) = delete;

private:
    DockStudio* before_;
    std::unique_ptr<QtDockStudio> dock_ = std::make_unique<QtDockStudio>();
};

// One of three files of 1,000 lines to the next.
void SwitchTabs(benchmark::State& state) {
    const ShownWindow window;
    std::string source;
    for (int line = 0; line < Lines; ++line) {
        const std::string number = std::to_string(line);
        source += "Global name" + number + " = Rand(1, " + number + ") ; text\r\n";
    }
    const auto folder = std::filesystem::temp_directory_path();
    for (const char* name : {"tabs_a.bb", "tabs_b.bb", "tabs_c.bb"}) {
        const std::string path = folder / name;
        gHost.files->Write(path, source);
        Mod_File::OpenFile(path);
    }
    QApplication::processEvents();
    for (auto _ : state) {
        frmMain::Instance().DS_CommandClick(*gHost.dock->FindCommand("Next File Tab"), -1);
        QApplication::processEvents();
    }
}

}

BENCHMARK(SwitchTabs)->Unit(benchmark::kMillisecond);
