// Setting up and taking down the floors without a window.
#include "HeadlessHost.h"

#include "documents/CompilerRegistry.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Main.h"
#include "documents/OptionTable.h"
#include "editor/frmDoc.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/Mod_Lexer.h"
#include "engine/OptionsEdit.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "host/HostCalls.h"
#include "host/Paths.h"
#include "host/Text.h"

#include <cstdio>

namespace {

int argumentCount = 1;
char programName[] = "headless";
char* arguments[] = {programName, nullptr};

// The toolkit reads the platform's name when the application is made, so it is set before.
int& OffscreenArguments() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", "/tmp"); // else it is complained of
    return argumentCount;
}

} // namespace

MessageAnswer QuietDialogs::Show(const Message& message) {
    const std::string title = message.title.empty() ? std::string(ProgramName) : message.title;
    std::fprintf(stderr, "message: %s: %s\n", title.c_str(), ToUtf8(message.text).c_str());
    if (message.byDefault != MessageAnswer::Ok) return message.byDefault;
    const bool asks =
        message.buttons == MessageButtons::YesNo || message.buttons == MessageButtons::YesNoCancel;
    return asks ? MessageAnswer::Yes : MessageAnswer::Ok;
}

void DocumentEvents::DS_DocumentWindowActivate(DocumentWindow& window, bool creating) {
    if (frmDoc* document = DocumentIn(window); document && !creating) MakeActive(document);
}

void DocumentEvents::DS_DocumentWindowHidden(DocumentWindow& window) {
    frmDoc* document = DocumentIn(window);
    window.Attach(nullptr);
    if (document) UnloadDocument(document);
    gHost.dock->DropDocumentWindow(window);
}

HeadlessHost::HeadlessHost(const std::string& appDir) : application_(OffscreenArguments(), arguments) {
    settings_ = std::make_unique<QtSettingsStore>((folder_.path() + "/settings.ini").toStdString());
    SetAppDir(appDir);
    gHost = {&dialogs_, &files_, settings_.get(), &processes_, &desktop_, &clock_, nullptr, &views_, &dock};
    dock.SetEvents(&events_);
    gHostCalls.ShowErrorDialog = [] {
        std::fprintf(stderr, "failure: %s %s: %d %s\n", gLastError.fileName.c_str(),
                     gLastError.methodName.c_str(), gLastError.number, gLastError.description.c_str());
    };
}

HeadlessHost::~HeadlessHost() {
    dock.SetEvents(nullptr);
    gProjects.RemoveAll();
    gCompilers.RemoveAll();
    gActiveCompiler.reset();
    gCurrentProject.reset();
    gHost = {};
}

void HeadlessHost::Load() {
    Mod_Lexer::BuildCharacterTables();
    Mod_Main::LoadCompilers();
    Options::GetOptions();
    Options::GetEditOptions();
    Mod_File::LoadStyle(OptionsEdit::SciStyleName);
}
