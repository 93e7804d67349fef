// The classifier of output lines. The value of the progress bar is its state: lines that are no banner count
// 21 each, and a line with a colon between the first and the fourth is an error.
#include "toolchain/CompilerOutput.h"

#include "documents/Mod_File.h"
#include "documents/Options.h"
#include "editor/frmDoc.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "host/SettingsStore.h"
#include "sci/Mod_Sci.h"
#include "toolchain/ToolchainCalls.h"

#include <array>
#include <charconv>

bool Mod_Compiler::gCreatingExe = false;
std::string Mod_Compiler::gTargetExe;

namespace {

constexpr int Step = 21;
constexpr int LastStep = 78;
constexpr std::size_t UniqueIdLength = 38;
constexpr int FailureNoSecondQuote = 5;

void Append(const std::string& line) {
    if (gToolchainCalls.AppendOutput) gToolchainCalls.AppendOutput(line);
}

void CloseProgress() {
    if (gToolchainCalls.CloseCompiling) gToolchainCalls.CloseCompiling();
}

void OnOutput(const std::string& line) {
    if (line.empty()) return;
    if (line.starts_with("Compiling") || line.starts_with("Creating")) {
        Append(line);
        return;
    }
    const int value = gToolchainCalls.CompilingValue ? gToolchainCalls.CompilingValue() : 0;
    if (!line.starts_with("BlitzCC") && !line.starts_with("(C)")) {
        if (value >= LastStep)
            CloseProgress();
        else if (gToolchainCalls.SetCompilingValue)
            gToolchainCalls.SetCompilingValue(value + Step);
    }
    if (line.find(':') != std::string::npos && value >= 1 && value < LastStep) {
        CloseProgress();
        Mod_Compiler::ParseError(line);
        if (SciWndData != 0) Mod_Sci::GrabFocus();
        return;
    }
    Append(line);
}

void OnComplete(int exitCode) {
    CloseProgress();
    if (Mod_Compiler::gCreatingExe && exitCode == 0) {
        Options::gLastCreatedExe = Mod_Compiler::gTargetExe;
        gHost.settings->Save("Options", "gLastCreatedExe", Options::gLastCreatedExe);
    }
    if (gToolchainCalls.ScrollOutputToEnd) gToolchainCalls.ScrollOutputToEnd();
}

struct ErrorLine {
    std::string file;
    std::array<std::string, 6> fields; // as they stand between colons; the first is empty
};

// Takes an error line apart. A line without a quoted file in front is none.
ErrorLine Read(const std::string& line) {
    const std::size_t second = line.find('"', 1);
    if (line.empty() || line[0] != '"' || second == std::string::npos)
        throw Failure(FailureNoSecondQuote, "Invalid procedure call or argument");
    ErrorLine error;
    error.file = line.substr(1, second - 1);
    std::size_t from = second + 1;
    for (std::string& field : error.fields) {
        if (from > line.size()) break;
        const std::size_t end = std::min(line.find(':', from), line.size());
        field = line.substr(from, end - from);
        from = end + 1;
    }
    return error;
}

int Number(const std::string& text) {
    int number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc()) throw Failure(FailureTypeMismatch, "Type mismatch");
    return number;
}

// Brings the document of an error to the front.
void ShowDocument(const ErrorLine& error, const std::string& target) {
    const std::string active = gActiveDoc == nullptr ? std::string() : gActiveDoc->FullFilename;
    if (EqualNoCase(target, active)) return;
    if (active.size() == UniqueIdLength && active.starts_with('{')) return;
    DocumentWindow* window = gHost.dock->FindDocumentWindow(error.file);
    if (window == nullptr) {
        Mod_File::OpenFile(target);
        return;
    }
    window->Activate();
    if (window->HostedForm() != nullptr) MakeActive(static_cast<frmDoc*>(window->HostedForm()));
}

// The open document of a real project that an error names; empty for a single file.
std::string Target(const ErrorLine& error) {
    if (!gCurrentProject || gCurrentProject->SingleFile) return {};
    const auto source = gCurrentProject->Sources.Find(error.file);
    return source ? source->FullFilename : std::string();
}

void Report(const ErrorLine& error, const std::string& target, std::intptr_t caret) {
    const std::string& message = error.fields[5];
    const std::string place = "Line: " + error.fields[1] + ", Column: " + error.fields[2];
    Append("Compile Error In " + place + " -->  " + message);
    if (gToolchainCalls.ScrollOutputToEnd) gToolchainCalls.ScrollOutputToEnd();
    gHost.dialogs->Show({message + "\r\n\r\nFile: " + target + "\r\n\r\n" + place + " ",
                         MessageIcon::Critical, gActiveCompiler->Name + " Compiling Error"});
    if (SciWndData == 0) return;
    Mod_Sci::SetSel(caret, caret);
    Mod_Sci::GrabFocus();
}

} // namespace

void CompilerOutput::Listen(frmDoc& document) {
    document.ShellClass->ConsoleOutput = OnOutput;
    document.ShellClass->ProcessComplete = OnComplete;
}

void Mod_Compiler::ParseError(const std::string& line) {
    ErrorLine error;
    int row = 0;
    int column = 0;
    try {
        error = Read(line);
        row = Number(error.fields[1]);
        column = Number(error.fields[2]);
    } catch (const Failure&) {
        return; // not an error line: it ends without a word
    }
    Guarded("ParseError", "Mod_Compiler", [&] {
        const std::string target = Target(error);
        ShowDocument(error, target);
        if (SciWndData == 0) return;
        const auto start = Mod_Sci::PositionFromLine(row - 1);
        const auto caret = start + column - 1;
        Mod_Sci::GotoPos(caret);
        if (caret <= start)
            Mod_Sci::SetSel(start, start + Mod_Sci::LineLength(row - 1));
        else
            Mod_Sci::SetSel(start, caret);
        Report(error, target, caret);
    });
}
