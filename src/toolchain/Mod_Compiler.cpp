// The steps of a compile: save, choose the source, find the compiler, start it.
#include "toolchain/Mod_Compiler.h"

#include "documents/Mod_File.h"
#include "documents/OpenPaths.h"
#include "documents/Options.h"
#include "editor/EditorCalls.h"
#include "editor/OpenDocuments.h"
#include "editor/frmDoc.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/WaitCursor.h"
#include "host/Desktop.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/Processes.h"
#include "host/Text.h"
#include "toolchain/CompileCommand.h"
#include "toolchain/CompilerOutput.h"
#include "toolchain/ToolchainCalls.h"

#include <optional>

ToolchainCalls gToolchainCalls;

namespace Mod_Compiler {

std::string gLastCompiledFile;

namespace {

constexpr int FailureObjectNotSet = 91;

long lastCompiled = 0; // the serial number of the document of gLastCompiledFile

using Job = CompilerJob::Kind;

void ShowExclamation(std::string text, std::string title = {}) {
    gHost.dialogs->Show({std::move(text), MessageIcon::Exclamation, std::move(title)});
}

// Saves a single file and sets `path` to the source. False if the save failed or was cancelled.
bool SingleFileToCompile(Job job, std::string& path) {
    frmDoc& document = *ActiveForm();
    if (job != Job::Build && document.NewFile) {
        path = CollapseSeparators(AppDir() + "/Temp/New.bb");
        return Mod_File::WriteTextFile(path);
    }
    if ((document.Dirty || document.NewFile) && !Mod_File::SaveFile(&document)) return false;
    // A new document has no path before it was saved.
    if (job == Job::Build || path.empty()) path = document.FullFilename;
    return true;
}

bool ProjectFileToCompile(std::string& path) {
    const ClsProject& project = *gCurrentProject;
    const auto main = project.Files.Find(project.MainFile);
    if (!main) {
        ShowExclamation("Please Set the 'Main File' for this project first...", "Operation aborted");
        return false;
    }
    Mod_File::SaveProjectFiles();
    // The compiler would read the old version of a file that could not be saved.
    for (const auto& source : project.Sources)
        if (source.record->Dirty) return false;
    path = gHost.files->Find(CollapseSeparators(project.Path + ToDisk(main->AbsPath)));
    return true;
}

// The executable of the compiler: the Windows one if it exists, else the native one; empty if both are
// missing.
std::string CompilerFile(const std::string& folder) {
    const std::string windows = gHost.files->Find(CollapseSeparators(folder + "/bin/blitzcc.exe"));
    if (gHost.files->Kind(windows) == PathKind::File) return windows;
    const std::string native = gHost.files->Find(CollapseSeparators(folder + "/bin/blitzcc"));
    return gHost.files->Kind(native) == PathKind::File ? native : std::string();
}

bool FindCompiler(std::string& shortPath) {
    const std::string file = CompilerFile(gActiveCompiler->Folder());
    if (file.empty()) {
        gHost.dialogs->Show({"Specified compiler not found on location :\r" +
                                 CollapseSeparators(gActiveCompiler->Folder() + "/bin/blitzcc.exe") +
                                 "\rPlease check your compiler settings !",
                             MessageIcon::Exclamation});
        return false;
    }
    shortPath = gHost.desktop->ShortPath(file);
    if (shortPath.empty())
        gHost.dialogs->Show({"Could not get compiler's short path", MessageIcon::Critical});
    return !shortPath.empty();
}

std::string AskForTarget(const std::string& path) {
    FileQuestion question{"Create Executable", "Executables (*.exe)|*.exe", path, {}, false};
    question.fileName.resize(question.fileName.size() - std::min<std::size_t>(3, question.fileName.size()));
    question.fileName += ".exe";
    return gHost.dialogs->SaveFile(question);
}

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

void AppendOutput(const std::string& line) { gToolchainCalls.AppendOutput(line); }

void ShowProblem(const std::string& text) {
    AppendOutput(text);
    ShowExclamation(text);
}

// Runs a program in a terminal of its own. False, after a line in the Output pane, if there is no terminal.
bool RunInTerminal(const ProcessStart& start) {
    if (!gHost.processes->HasTerminal()) {
        AppendOutput("No terminal program was found: what runs is shown here.");
        return false;
    }
    if (const SystemError error = gHost.processes->StartInTerminal(start)) ShowProblem(error.text);
    return true;
}

// Starts a child whose output the console runner of the document captures. Shows a message if that failed.
void StartChild(frmDoc& document, const CompilerJob& job, const ProcessStart& start) {
    constexpr const char* labels[] = {"Compiling program...", "Checking for errors...",
                                      "Creating executable..."};
    StdShell& shell = *document.ShellClass;
    std::string problem;
    shell.Error = [&problem](const std::string& message, int) { problem = message; };
    CompilerOutput::Listen(document, job, labels[static_cast<int>(job.kind)]);
    const bool started = job.kind == Job::Run ? shell.Execute(start.command, "", start.directory)
                                              : shell.ExecuteNoCheck(start.command, start.directory);
    shell.Error = nullptr;
    if (started) return;
    CompilerOutput::Forget(document);
    ShowProblem(problem);
}

void SetNotice(const std::string& text) { gEditorCalls.SetNotice(text); }

// Whether the document runs a child already; says so in the status bar.
bool ReportIfBusy(const frmDoc& document) {
    if (!document.ShellClass->Running()) return false;
    SetNotice("Process already running.");
    return true;
}

struct JobFiles {
    std::string source, target, compiler;
};

// Saves what the job needs on disk, and asks for what is missing. Nothing if the user cancelled, if a file
// could not be saved, or if the compiler is not there.
std::optional<JobFiles> Prepare(Job job, const std::string& path) {
    JobFiles files{path, {}, {}};
    if (!(gCurrentProject->SingleFile ? SingleFileToCompile(job, files.source)
                                      : ProjectFileToCompile(files.source)))
        return std::nullopt;
    if (Options::gOnCompileSave == Options::CompileSavesAll) Mod_File::SaveAllFiles();
    if (job == Job::Build && (files.target = AskForTarget(files.source)).empty()) return std::nullopt;
    if (!FindCompiler(files.compiler)) return std::nullopt;
    return files;
}

void StartJob(Job job, const std::string& path, bool debug) {
    if (!DocumentActive() || !gCurrentProject || ReportIfBusy(*ActiveForm())) return;
    if (!gActiveCompiler) throw Failure(FailureObjectNotSet, "No compiler is active");
    gHost.processes->SetEnvironment("BLITZPATH", gHost.desktop->ShortPath(gActiveCompiler->Folder()));
    const auto files = Prepare(job, path);
    if (!files) return;
    const CompileCommand command{job,           debug,         files->compiler,
                                 files->source, files->target, gCurrentProject->CommandLine};
    const ProcessStart start{command.Text(), ""};
    gToolchainCalls.ClearOutput();
    if (job == Job::Run && gActiveCompiler->RealConsole && RunInTerminal(start)) return;
    frmDoc& document = *ActiveForm();
    const std::string window = gCurrentProject->SingleFile ? document.m_strDocumentWindowID : std::string();
    StartChild(document, {job, files->source, window, files->target}, start);
}

// Starts a job; failures are reported under the name of the routine. Always false: the result arrives as
// output.
bool Start(const char* routine, Job job, const std::string& path, bool debug = false) {
    Guarded(routine, "Mod_Compiler", [&] { StartJob(job, path, debug); });
    return false;
}

constexpr long long SmallestKeywordFile = 3000; // bytes; a smaller one holds an error message

// Has the compiler write a file, and puts it in the place of the target. False, with the old target as it
// was, when what the compiler wrote is not a list of keywords; it stays in `written` for the user to look at.
bool WriteKeywordFile(const std::string& compiler, const std::string& written, const std::string& target) {
    constexpr int MostMilliseconds = 10000;
    const WaitCursor wait;
    const bool ended = gHost.processes->RunIntoFile(Quoted(compiler) + " +k", written, MostMilliseconds);
    if (!ended || gHost.files->Kind(written) != PathKind::File ||
        gHost.files->Size(written) < SmallestKeywordFile)
        return false;
    gHost.files->Rename(written, target);
    return true;
}

// Reads the new list of a compiler. What was parsed with the old one is parsed anew.
void TakeDefinitions(ClsCompiler& compiler) {
    compiler.Refused = false;
    if (!compiler.LoadKeywords() || gActiveCompiler.get() != &compiler) return;
    const WaitCursor wait;
    for (const auto& project : gProjects)
        if (EqualNoCase(project.record->Compiler, compiler.Name))
            for (const auto& source : project.record->Sources)
                FormOf(*source.record).m_oSubclass->ParseAnew();
}

} // namespace

bool Compile(const std::string& path, bool debug) {
    gLastCompiledFile = path;
    lastCompiled = DocumentActive() ? ActiveForm()->Serial : 0;
    return Start("Compile", Job::Run, path, debug);
}

bool CheckForErrors(const std::string& path) { return Start("CheckForErrors", Job::Check, path); }

bool CreateExe(const std::string& path) { return Start("CreateExe", Job::Build, path); }

void CompileLast() {
    if (gHost.dock == nullptr) return;
    // The document may have been saved under another name since it was compiled.
    frmDoc* document = DocumentOfSerial(lastCompiled);
    if (document == nullptr) document = Mod_File::DocumentOfPath(gLastCompiledFile);
    if (document != nullptr) BringToFront(*document);
    if (DocumentActive()) Compile(ActiveForm()->FullFilename, false);
}

void RunLastCreated() {
    if (Options::gLastCreatedExe.empty()) return;
    if (gHost.files->Kind(Options::gLastCreatedExe) != PathKind::File) {
        ShowExclamation("File " + Options::gLastCreatedExe + " not found !");
        return;
    }
    // The program starts in its own folder, where its pictures and sounds are.
    const ProcessStart start{Quoted(Options::gLastCreatedExe), GetFolder(Options::gLastCreatedExe)};
    if (!gHost.processes->HasTerminal() && DocumentActive() && ReportIfBusy(*ActiveForm())) return;
    gToolchainCalls.ClearOutput();
    if (RunInTerminal(start)) return;
    if (DocumentActive())
        StartChild(*ActiveForm(), {Job::Run, Options::gLastCreatedExe, {}, {}, false}, start);
    else if (const SystemError error = gHost.processes->StartDetached(start.command))
        ShowProblem(error.text);
}

void StopRunning() {
    if (!DocumentActive()) return;
    if (!ActiveForm()->ShellClass->Running()) return SetNotice("No process to terminate.");
    if (ActiveForm()->ShellClass->Terminate()) AppendOutput("The program was stopped.");
}

void RefreshDefinitions(const std::string& compilerName, const std::string& compilerPath) {
    Guarded("RefreshDefinitions", "Mod_Compiler", [&] {
        gHost.processes->SetEnvironment("BLITZPATH", gHost.desktop->ShortPath(compilerPath));
        const std::string compiler = CompilerFile(compilerPath);
        if (compiler.empty()) {
            gHost.dialogs->Show(
                {"Could not find compiler (blitzcc.exe) on specified location: \r" + compilerPath +
                     "\r Make sure you have selected correct Blitz Path and at least v1.78 of Blitz "
                     "installed !",
                 MessageIcon::None, "Error"});
            return;
        }
        const std::string target = AppPath("Conf\\" + compilerName + ".lng");
        const std::string written = target + ".new";
        if (WriteKeywordFile(compiler, written, target)) {
            if (const auto known = gCompilers.Find(compilerName)) TakeDefinitions(*known);
            gHost.dialogs->Show(
                {"Keyword definitions for this compiler successfully created !", MessageIcon::Information});
        } else {
            gHost.dialogs->Show(
                {" Error while creating keyword definitions file !\r\n\r\n See " + written + " for details",
                 MessageIcon::Critical});
        }
        if (gActiveDoc != nullptr) gActiveDoc->State.Restyle();
    });
}

} // namespace Mod_Compiler
