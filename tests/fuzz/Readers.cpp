// The readers of foreign bytes on one session that all inputs share.
#include "Readers.h"

#include "documents/CloseFiles.h"
#include "documents/CompilerRegistry.h"
#include "documents/Mod_File.h"
#include "documents/Mod_File_workspace.h"
#include "documents/Mod_Main.h"
#include "documents/Mod_Project.h"
#include "documents/Session.h"
#include "editor/StyleTable.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "host/Host.h"
#include "host/Text.h"
#include "toolchain/Mod_Compiler.h"
#include "toolchain/ToolchainCalls.h"

#include <filesystem>

namespace {

namespace fs = std::filesystem;

const std::string Root = ZOLTO_SOURCE_ROOT;

// Every question is declined.
class DecliningDialogs : public Dialogs {
public:
    MessageAnswer Show(const Message& message) override {
        return message.buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::No;
    }
    std::vector<std::string> OpenFiles(const FileQuestion&) override { return {}; }
    std::string SaveFile(const FileQuestion&) override { return {}; }
    std::string Folder(const std::string&, const std::string&) override { return {}; }
    std::optional<std::string> Input(const std::string&, const std::string&, const std::string&) override {
        return std::nullopt;
    }
};

// The session of one input at a time; what it did to the program is undone when the input is done.
struct Place {
    Session session;
    DecliningDialogs dialogs;
    Place() {
        session.host.ExpectErrorLog();
        gHost.dialogs = &dialogs;
        SaveNothingExtra();
    }
    void CloseAll() {
        for (const std::string& key : session.WindowKeys())
            if (DocumentWindow* window = session.host.dock.FindDocumentWindow(key)) window->SetVisible(false);
        std::error_code error;
        fs::remove(session.host.Path("error.log"), error);
    }
};

std::string ReadSource(const std::string& bytes) {
    Place place;
    const std::string path = place.session.host.Put("input.bb", bytes);
    if (!Mod_File::OpenFile(path)) return "the source did not open";
    place.session.host.desktop.Pump(); // paints, and so colours
    // A block at the end is taken away; every other byte has to come back, but for the case of letters.
    const bool hasBlock = UCase(bytes).find(UCase(";~Zolto Editor Parameters:")) != std::string::npos;
    if (!Mod_File::SaveFile(ActiveForm())) return "the source was not saved";
    if (!hasBlock && LCase(place.session.Bytes(path)) != LCase(bytes)) return "the saved source differs";
    place.CloseAll();
    return {};
}

// Settings may change in a second reading: a value that ends like a key is found as one.
std::string Members(const ClsProject& project) {
    std::string members;
    for (const auto& file : project.Files) members += file.key + "|" + file.record->AbsPath + "\n";
    for (const auto& folder : project.Folders) members += folder.key + "\n";
    return members;
}

std::string ReadProject(const std::string& bytes) {
    Place place;
    place.session.host.Put("a.bb", "a = 1\r\n");
    place.session.host.Put("Lib/b.bb", "Function Twice(n)\r\nEnd Function\r\n");
    const std::string path = place.session.host.Put("input.zpf", bytes);
    if (Mod_Project::LoadProject(path)) {
        if (!Mod_File::CloseProject(gProjects.Find(path))) return "the project did not close";
        ClsProject first;
        Mod_Project::BuildProjectFromFile(path, first);
        Mod_Project::SaveProject(first);
        ClsProject second;
        if (!Mod_Project::BuildProjectFromFile(path, second)) return "what was written is no project";
        if (Members(first) != Members(second)) return "what was written has other members";
    }
    place.CloseAll();
    return {};
}

// In the bytes "@" means the folder of the session.
std::string ReadWorkspace(const std::string& bytes) {
    Place place;
    place.session.host.Put("a.bb", "a = 1\r\n");
    place.session.host.Put("Lib/b.bb", "Function Twice(n)\r\nEnd Function\r\n");
    place.session.host.Put("Game.zpf",
                           "[Zolto Project file]\r\n<Files>\r\n AbsPath=\"Lib\\b.bb\"\r\n</Files>\r\n");
    std::string text;
    for (const char byte : bytes)
        if (byte == '@')
            text += place.session.host.folder;
        else
            text += byte;
    const std::string again = place.session.host.Path("again.zws");
    if (Mod_File::LoadWorkSpace(place.session.host.Put("input.zws", text))) {
        for (const DocumentWindow* window : place.session.host.dock.DocumentWindows())
            if (window->HostedForm() == nullptr) return "a window without a document is left";
        const auto open = place.session.WindowKeys();
        Mod_File::SaveWorkSpace(again);
        if (!Mod_File::LoadWorkSpace(again)) return "what was written is no workspace";
        if (place.session.WindowKeys() != open) return "what was written has other windows";
    }
    place.CloseAll();
    return {};
}

std::string ReadStyle(const std::string& bytes) {
    Place place;
    place.session.host.Put("Styles/input.style", bytes);
    if (Mod_File::LoadStyle("input").empty()) return {};
    Mod_File::SaveStyle("first", StyleTable::Description);
    if (Mod_File::LoadStyle("first") != "first") return "what was written is no style";
    Mod_File::SaveStyle("second", StyleTable::Description);
    const auto written = [&](const char* name) {
        return place.session.Bytes(place.session.host.Path(std::string("Styles/") + name + ".style"));
    };
    return written("first") == written("second") ? "" : "a second save writes another style";
}

// A list of keywords decides how sources are read, so one is read with it.
std::string ReadKeywords(const std::string& bytes) {
    Place place;
    place.session.host.Put("Conf/ZoltoBasic.lng", bytes);
    gActiveCompiler->KeywordsLoaded = false;
    gActiveCompiler->SetDefaultKeywords();
    const std::string source = TestData("crlf.bb") + TestData("broken.bb");
    const std::string path = place.session.host.Put("a.bb", source);
    if (!Mod_File::OpenFile(path)) return "no source opens any more";
    place.session.host.desktop.Pump();
    if (!Mod_File::SaveFile(ActiveForm()) || LCase(place.session.Bytes(path)) != LCase(source))
        return "the saved source differs";
    place.CloseAll();
    return {};
}

std::string ReadCompilers(const std::string& bytes) {
    Place place;
    place.session.host.Put("Conf/compilers.dat", bytes);
    gCompilers.RemoveAll();
    gActiveCompiler.reset();
    Mod_Main::LoadCompilers();
    if (gCompilers.Count() > 0 && !gCompilers.Exist_Key(DefaultCompiler)) return "the default is no compiler";
    if (!Mod_File::OpenFile(place.session.host.Put("a.bb", "Print 1\r\n"))) return "no source opens any more";
    Mod_Compiler::CheckForErrors(ActiveForm()->FullFilename);
    place.CloseAll();
    return {};
}

std::string ReadOutput(const std::string& bytes) {
    Place place;
    place.session.host.Put("Compilers/ZoltoBasic/bin/blitzcc", "");
    const std::string path = place.session.host.Put("a.bb", "first = 1\r\nsecond = 2\r\n");
    Mod_File::OpenFile(path);
    std::deque<std::string> chunks{"Parsing\r\n"}; // the compiler is at work
    for (std::size_t from = 0; from < bytes.size(); from += 50) chunks.push_back(bytes.substr(from, 50));
    place.session.host.processes.WillStart({.output = std::move(chunks)});
    Mod_Compiler::CheckForErrors(path);
    for (std::size_t poll = 0; ActiveForm()->ShellClass->Running() && poll < bytes.size() + 10; ++poll)
        ActiveForm()->ShellClass->Tick();
    const bool running = ActiveForm()->ShellClass->Running();
    gToolchainCalls = {};
    place.CloseAll();
    return running ? "the child's end was not seen" : "";
}

std::vector<std::string> Sources() {
    std::vector<std::string> sources;
    for (const char* name : {"crlf.bb", "lf.bb", "mixed.bb", "broken.bb", "nul.bb", "parameters.bb",
                             "tabs.bb", "utf8.bb", "windows1252.bb"})
        sources.push_back(TestData(name));
    return sources;
}

std::vector<std::string> Projects() {
    return {
        QtFiles().Read(Root + "/examples/DeepVein/DeepVein.zpf"),
        "[Zolto Project file]\r\n<Settings>\r\n Expanded=\"True\"\r\n MainFile=\"a.bb\"\r\n "
        "Compiler=\"ZoltoBasic\"\r\n"
        " CommandLine=\"-x 1\"\r\n</Settings>\r\n<Folders>\r\n AbsPath=\"\\Lib\" "
        "Expanded=\"True\"\r\n</Folders>\r\n"
        "<Files>\r\n AbsPath=\"a.bb\" PrjFolder=\"\" Line=\"0\" Column=\"0\" Tip=\"0\" Visible=\"True\"\r\n"
        " AbsPath=\"Lib\\b.bb\" PrjFolder=\"\\Lib\" Line=\"1\" Column=\"2\" Tip=\"3\" "
        "Visible=\"False\"\r\n</Files>\r\n"};
}

std::vector<std::string> Workspaces() {
    return {"[Zolto WorkSpace File]\r\n<Settings>\r\n Version=\"1\"\r\n "
            "CPOS=\"3\"\r\n</Settings>\r\n<Workspace>\r\n"
            " Windows=\"windows\t@/a.bb\t@/Lib/b.bb\tb.bb\t@/a.bb\ta.bb*\"\r\n</Workspace>\r\n<Projects>\r\n"
            " Path=\"@/a.bb\" Single=\"True\"\r\n Path=\"@/Game.zpf\" "
            "Single=\"False\"\r\n</Projects>\r\n<Views>\r\n"
            " Path=\"@/a.bb\" Caret=\"3\" Anchor=\"1\" Top=\"0\"\r\n"
            " Path=\"@/Lib/b.bb\" Caret=\"20\" Anchor=\"20\" Top=\"1\"\r\n</Views>\r\n"};
}

std::vector<std::string> Built(const char* name) {
    return {QtFiles().Read(std::string(ZOLTO_APPDIR) + name)};
}

std::vector<std::string> Output() {
    return {"BlitzCC V1\r\n(C) us\r\nCompiling \"a.bb\"\r\nParsing...\r\n\"/tmp/a.bb\":2:5:2:6:Expecting "
            "expression\r\n"
            "Generating...\r\nScore: 5\r\nTime: 0:01\r\n"};
}

} // namespace

const std::vector<Reader>& Readers() {
    static const std::vector<Reader> readers{
        {"source", ReadSource, Sources, 60},
        {"project", ReadProject, Projects, 30},
        {"workspace", ReadWorkspace, Workspaces, 40},
        {"style", ReadStyle, [] { return Built("/Styles/Default.style"); }, 60},
        {"keywords", ReadKeywords, [] { return Built("/Conf/ZoltoBasic.lng"); }, 20},
        {"compilers", ReadCompilers, [] { return Built("/Conf/compilers.dat"); }, 30},
        {"output", ReadOutput, Output, 40},
    };
    return readers;
}

const Reader* FindReader(std::string_view name) {
    for (const Reader& reader : Readers())
        if (reader.name == name) return &reader;
    return nullptr;
}
