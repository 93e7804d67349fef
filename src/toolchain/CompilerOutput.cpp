// Reads the output of the compiler. Each of its lines, banners excepted, moves the progress bar; an error
// line among the first four ends the compile. All later lines come from the program that was compiled.
#include "toolchain/CompilerOutput.h"

#include "documents/Mod_File.h"
#include "documents/OpenPaths.h"
#include "documents/OptionTable.h"
#include "documents/Options.h"
#include "editor/frmDoc.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Outside.h"
#include "host/Paths.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"
#include "toolchain/ToolchainCalls.h"

#include <array>
#include <charconv>
#include <memory>
#include <optional>

namespace {

constexpr int ProgressPerLine = 21;
constexpr int LastProgress = 78;

void AppendOutput(const std::string& line) { gToolchainCalls.AppendOutput(line); }

struct ErrorLine {
    std::string file;
    std::array<std::string, 6> fields; // the texts between colons; the first one is empty
    int row = 0, column = 0;           // from 1
};

// Nothing if the text is not a number.
std::optional<int> Number(const std::string& text) {
    int number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return result.ec == std::errc() ? std::optional(number) : std::nullopt;
}

// Nothing for a line that does not begin with a quoted file, a row and a column.
std::optional<ErrorLine> ReadErrorLine(const std::string& line) {
    const std::size_t second = line.find('"', 1);
    if (line.empty() || line[0] != '"' || second == std::string::npos) return std::nullopt;
    ErrorLine error;
    error.file = line.substr(1, second - 1);
    std::vector<std::string> fields = Split(std::string_view(line).substr(second + 1), ':');
    fields.resize(error.fields.size());
    std::move(fields.begin(), fields.end(), error.fields.begin());
    const auto row = Number(error.fields[1]), column = Number(error.fields[2]);
    if (!row || !column) return std::nullopt;
    error.row = *row;
    error.column = *column;
    return error;
}

// The path of the file of an error; a relative name starts from the folder of the source. Empty if it is
// missing.
std::string FindOnDisk(const ErrorLine& error, const CompilerJob& job) {
    const std::string named = CollapseSeparators(ToDisk(error.file));
    const bool absolute = named.starts_with('/') || job.file.empty();
    const std::string found = gHost.files->Find(absolute ? named : GetFolder(job.file) + named);
    return gHost.files->Kind(found) == PathKind::File ? found : std::string();
}

// Brings the document of an error to the front, and opens or asks for the file if necessary. Null if none
// opened.
frmDoc* ShowDocument(const ErrorLine& error, const CompilerJob& job) {
    DocumentWindow* window = gHost.dock->FindDocumentWindow(error.file);
    const std::string path = FindOnDisk(error, job);
    // The source is a copy if the document was never saved.
    if (!job.document.empty() && path == job.file)
        window = gHost.dock->FindDocumentWindow(job.document);
    else if (const frmDoc* open = window == nullptr ? Mod_File::DocumentOfPath(path) : nullptr)
        window = gHost.dock->FindDocumentWindow(open->m_strDocumentWindowID);
    if (frmDoc* document = DocumentIn(window)) {
        if (document == gActiveDoc) return document;
        window->Activate();
        MakeActive(document);
        return document;
    }
    const frmDoc* before = ActiveForm();
    const bool opened = path.empty() ? Mod_File::OpenFile(path) : Mod_File::OpenHere(path);
    return opened || ActiveForm() != before ? ActiveForm() : nullptr;
}

// The name of the file in the message; empty for a single file that was compiled itself.
std::string ShownFile(const ErrorLine& error, const frmDoc* document, const CompilerJob& job) {
    if (document == nullptr) return error.file;
    const bool itself =
        document->SingleFile && (job.file.empty() || document->m_strDocumentWindowID == job.document);
    return itself ? std::string() : document->FullFilename;
}

void ReportError(const ErrorLine& error, const std::string& file) {
    const std::string& message = error.fields[5];
    const std::string place = "Line: " + error.fields[1] + ", Column: " + error.fields[2];
    if (!file.empty()) AppendOutput(file);
    AppendOutput("Compile Error In " + place + " -->  " + message);
    gToolchainCalls.ScrollOutputToEnd();
    gHost.dialogs->Show({message + "\r\n\r\nFile: " + file + "\r\n\r\n" + place + " ", MessageIcon::Critical,
                         gActiveCompiler->Name + " Compiling Error"});
}

// Receives the output of one child. The console runner of the document owns it.
class Listener {
public:
    Listener(StdShell& shell, CompilerJob job, const std::string& label)
        : shell_(shell), job_(std::move(job)), compiling_(job_.compiles) {
        if (!compiling_) return;
        shown = this;
        gToolchainCalls.ShowCompiling(label);
        SetValue(0);
    }
    // Closing a document kills its child, so the progress window has to close too.
    ~Listener() { EndCompile(); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    void OnOutput(const std::string& line) {
        if (line.empty()) return;
        if (compiling_ && !line.starts_with("Compiling") && !line.starts_with("Creating")) {
            const int value = value_;
            if (!line.starts_with("BlitzCC") && !line.starts_with("(C)"))
                value >= LastProgress ? EndCompile() : SetValue(value + ProgressPerLine);
            if (value >= 1 && value < LastProgress && ReadErrorLine(line)) {
                EndCompile();
                FromOutside([line, job = job_] {
                    Mod_Compiler::ParseError(line, job);
                    if (SciWndData != 0) Mod_Sci::GrabFocus();
                });
                return;
            }
        }
        AppendOutput(line);
    }

    void OnComplete(int exitCode) {
        EndCompile();
        if (job_.kind == CompilerJob::Kind::Build && exitCode == 0) {
            Options::gLastCreatedExe = job_.target;
            WriteOption(OptionOf(Options::gLastCreatedExe));
        }
        gToolchainCalls.ScrollOutputToEnd();
    }

    static void StopShown() {
        if (shown != nullptr && shown->shell_.Running()) shown->shell_.Terminate();
    }

private:
    void SetValue(int value) {
        value_ = value;
        if (shown == this) gToolchainCalls.SetCompilingValue(value);
    }
    void EndCompile() {
        compiling_ = false;
        if (shown != this) return; // the window shows the compile of another document
        shown = nullptr;
        gToolchainCalls.CloseCompiling();
    }

    inline static Listener* shown = nullptr; // the one in the progress window

    StdShell& shell_;
    const CompilerJob job_;
    bool compiling_;
    int value_ = 0;
};

} // namespace

void CompilerOutput::Listen(frmDoc& document, const CompilerJob& job, const std::string& label) {
    const auto listener = std::make_shared<Listener>(*document.ShellClass, job, label);
    document.ShellClass->ConsoleOutput = [listener](const std::string& line) { listener->OnOutput(line); };
    document.ShellClass->ProcessComplete = [listener](int exitCode) { listener->OnComplete(exitCode); };
}

void CompilerOutput::Forget(frmDoc& document) {
    document.ShellClass->ConsoleOutput = nullptr;
    document.ShellClass->ProcessComplete = nullptr;
}

void CompilerOutput::StopShown() { Listener::StopShown(); }

void Mod_Compiler::ParseError(const std::string& line, const CompilerJob& job) {
    const auto error = ReadErrorLine(line);
    if (!error) return;
    Guarded("ParseError", "Mod_Compiler", [&] {
        const frmDoc* document = ShowDocument(*error, job);
        const std::string file = ShownFile(*error, document, job);
        if (document == nullptr) return ReportError(*error, file);
        Mod_Sci::EnsureVisible(error->row - 1); // the line may be folded
        const auto start = Mod_Sci::PositionFromLine(error->row - 1);
        const auto caret = start + error->column - 1;
        Mod_Sci::GotoPos(caret);
        if (caret <= start)
            Mod_Sci::SetSel(start, start + Mod_Sci::LineLength(error->row - 1));
        else
            Mod_Sci::SetSel(start, caret);
        const std::string window = document->m_strDocumentWindowID;
        ReportError(*error, file);
        if (gActiveDoc == nullptr || gActiveDoc->m_strDocumentWindowID != window) return;
        Mod_Sci::SetSel(caret, caret);
        Mod_Sci::GrabFocus();
    });
}
