// The main window as the program sets it up, in a real frame on a platform for tests.
#pragma once

#include "ForgetFrame.h"
#include "documents/CompilerRegistry.h"
#include "documents/DocumentCalls.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Main.h"
#include "documents/Options.h"
#include "editor/frmDoc.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/Mod_Lexer.h"
#include "engine/OptionsEdit.h"
#include "host/Host.h"
#include "host/qt/frame/QtDockStudio.h"
#include "support/FakeHost.h"
#include "workbench/frame/FactoryLayout.h"
#include "workbench/frame/frmMain.h"

#include <filesystem>
#include <gtest/gtest.h>

struct WindowTest : testing::Test {
    FakeHost host;
    std::unique_ptr<QtDockStudio> dock = std::make_unique<QtDockStudio>();
    frmMain& window = frmMain::Instance();

    void SetUp() override {
        for (const char* folder : {"Conf", "Styles"})
            std::filesystem::copy(std::string(ZOLTO_APPDIR) + "/" + folder, host.Path(folder),
                                  std::filesystem::copy_options::recursive);
        host.Put("Layout.mp", FactoryLayoutText());
        gHost.dock = dock.get();
        Options::gStartUp = 3;
        OptionsEdit::SciStyleName = "Default";
        Mod_Lexer::BuildCharacterTables();
        Mod_Main::LoadCompilers();
        Mod_Main::SetActiveCompiler(DefaultCompiler);
        Mod_File::LoadStyle("Default");
        window.Form_Load();
        dock->SetPlace({.width = 18000, .height = 12000});
        dock->ShowWindow();
    }

    void TearDown() override {
        dock->SetEvents(nullptr);
        for (DocumentWindow* open : dock->DocumentWindows()) open->Attach(nullptr);
        MakeActive(nullptr);
        gDocumentCalls = {};
        gProjects.RemoveAll();
        gCompilers.RemoveAll();
        gActiveCompiler.reset();
        DefaultCompiler.clear();
        ForgetFrame();
        gHost.dock = &host.dock;
        dock.reset();
    }

    void Click(const char* name) { window.DS_CommandClick(*dock->FindCommand(name), -1); }
};
