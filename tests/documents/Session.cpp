// The program up to its documents on a platform for tests.
#include "documents/Session.h"
#include "documents/CloseFiles.h"
#include "documents/CompilerRegistry.h"

#include "documents/DocumentCalls.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Main.h"
#include "documents/Options.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/Mod_Lexer.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "sci/Mod_Sci.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

Session::Session() {
    const std::string built = ZOLTO_APPDIR;
    for (const char* folder : {"Conf", "Styles"})
        fs::copy(built + "/" + folder, host.Path(folder), fs::copy_options::recursive);
    SaveEverythingExtra();
    OptionsEdit::SciStyleName = "Default";
    OptionsEdit::KeepLineEnds = 1;
    OptionsEdit::ShowFoldMargin = 1;
    Options::gDefNewName = "New";
    Options::gEnumerateNewFiles = 0;
    Options::gOnCompileSave = 1;
    Options::gStartUp = 3;
    host.dock.SetEvents(this);
    Mod_Lexer::BuildCharacterTables();
    Mod_Main::LoadCompilers();
    Mod_Main::SetActiveCompiler(DefaultCompiler);
    Mod_File::LoadStyle("Default");
    Mod_Main::BeginStart(); // the session before this one may have ended
    Mod_Main::EndStart();
}

Session::~Session() {
    host.dock.SetEvents(nullptr);
    for (DocumentWindow* window : host.dock.DocumentWindows()) window->Attach(nullptr);
    MakeActive(nullptr);
    gProjects.RemoveAll();
    gCompilers.RemoveAll();
    gActiveCompiler.reset();
    DefaultCompiler.clear();
    gDocumentCalls = {};
    SetStrict(false);
    EndColoring();
    gUserEdited = false;
}

frmDoc& Session::Reopen(const std::string& path) {
    const bool opened = Mod_File::OpenFile(path);
    EXPECT_TRUE(opened) << path;
    if (!opened) throw std::runtime_error(path + " was not opened");
    return *ActiveForm();
}

frmDoc& Session::Open(const std::string& name, const std::string& bytes) {
    return Reopen(host.Put(name, bytes));
}

void Session::Type(const std::string& text) {
    Mod_Sci::GotoPos(0);
    Mod_Sci::ReplaceSel(text.c_str());
}

void Session::Close(const std::string& path) {
    DocumentWindow* window = host.dock.FindDocumentWindow(path);
    ASSERT_NE(window, nullptr) << path;
    window->SetVisible(false);
}

std::vector<std::string> Session::WindowKeys() {
    std::vector<std::string> keys;
    for (const DocumentWindow* window : host.dock.DocumentWindows()) keys.push_back(window->Key());
    return keys;
}

std::string Session::LastMessage() const {
    return host.dialogs.messages.empty() ? std::string() : host.dialogs.messages.back().text;
}

void Session::DS_DocumentWindowActivate(DocumentWindow& window, bool creating) {
    if (frmDoc* document = DocumentIn(window); document && !creating) MakeActive(document);
}

void Session::DS_DocumentWindowDeactivate(DocumentWindow& window) {
    if (frmDoc* document = DocumentIn(window)) document->m_oSubclass->DeactivateCheck();
}

void Session::DS_DocumentWindowHiding(DocumentWindow& window, bool& cancel) {
    Mod_File::DocumentWindowHiding(window, cancel);
}

void Session::DS_DocumentWindowHidden(DocumentWindow& window) {
    frmDoc* document = DocumentIn(window);
    window.Attach(nullptr);
    if (document) UnloadDocument(document);
    host.dock.DropDocumentWindow(window);
}

void Session::DS_QueryUnload(bool& cancel) { Mod_Main::QueryUnload(cancel); }

std::string TestData(const std::string& name) {
    return QtFiles().Read(std::string(ZOLTO_SOURCE_ROOT) + "/tests/data/" + name);
}

void SaveNothingExtra() {
    OptionsEdit::SaveFoldingState = OptionsEdit::SaveBookmarks = OptionsEdit::SaveCompilerCommandLine = 0;
}

void SaveEverythingExtra() {
    OptionsEdit::SaveFoldingState = OptionsEdit::SaveBookmarks = OptionsEdit::SaveCompilerCommandLine = 1;
}
