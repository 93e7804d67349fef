// The common front of the compiler's commands: save, choose the file, find the compiler, start it.
#include "toolchain/Mod_Compiler.h"

#include "documents/Mod_File.h"
#include "documents/OpenPaths.h"
#include "documents/Options.h"
#include "editor/EditorCalls.h"
#include "editor/OpenDocuments.h"
#include "editor/frmDoc.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "host/Desktop.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Guards.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/Processes.h"
#include "toolchain/CompilerOutput.h"
#include "toolchain/ToolchainCalls.h"

ToolchainCalls gToolchainCalls;

namespace Mod_Compiler {

std::string gLastCompiledFile;

namespace {

long lastCompiled = 0; // the serial number of the document behind gLastCompiledFile

using Job = CompilerJob::Kind;

void Exclaim(std::string text, std::string title = {}) {
    gHost.dialogs->Show({std::move(text), MessageIcon::Exclamation, std::move(title)});
}

// The file of a document that belongs to no project; nothing when a save was cancelled.
bool SingleFileToCompile(Job job, std::string& path) {
    frmDoc& document = *ActiveForm();
    if (job != Job::Build && document.NewFile) {
        path = CollapseSeparators(AppDir() + "/Temp/New.bb");
        return Mod_File::WriteTextFile(path);
    }
    if ((document.Dirty || document.NewFile) && !Mod_File::SaveFile(&document)) return false;
    // A new document has got its name only now.
    if (job == Job::Build || path.empty()) path = document.FullFilename;
    return true;
}

bool ProjectFileToCompile(std::string& path) {
    const ClsProject& project = *gCurrentProject;
    const auto main = project.Files.Find(project.MainFile);
    if (!main) {
        Exclaim("Please Set the 'Main File' for this project first...", "Operation aborted");
        return false;
    }
    Mod_File::SaveProjectFiles();
    // What could not be saved would be compiled as it was before.
    for (const auto& source : project.Sources)
        if (source.record->Dirty) return false;
    path = gHost.files->Find(CollapseSeparators(project.Path + ToDisk(main->AbsPath)));
    return true;
}

// The compiler's executable: a Windows one where it is there, else a native one; empty when neither is.
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

// Every run of two blanks becomes one, in one pass from the left.
std::string CollapseBlanks(const std::string& command) {
    std::string collapsed;
    for (std::size_t i = 0; i < command.size(); ++i) {
        collapsed += command[i];
        if (command[i] == ' ' && i + 1 < command.size() && command[i + 1] == ' ') ++i;
    }
    return collapsed;
}

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

std::string Command(Job job, bool debug, const std::string& compiler, const std::string& target,
                    const std::string& path) {
    std::string command = Quoted(compiler) + " ";
    if (job == Job::Run && debug) command += " -d ";
    if (job == Job::Check) command += " -c ";
    if (job == Job::Build) command += " -o " + Quoted(target) + " ";
    command += Quoted(path);
    if (job == Job::Run && !gCurrentProject->CommandLine.empty())
        command += " " + gCurrentProject->CommandLine;
    return CollapseBlanks(command);
}

void Append(const std::string& line) { gToolchainCalls.AppendOutput(line); }

void TellProblem(const std::string& text) {
    Append(text);
    Exclaim(text);
}

// A program with a console of its own. False, after a word in the Output pane, where there is no terminal.
bool RunInTerminal(const ProcessStart& start) {
    if (!gHost.processes->HasTerminal()) {
        Append("No terminal program was found: what runs is shown here.");
        return false;
    }
    if (const SystemError error = gHost.processes->StartInTerminal(start)) TellProblem(error.text);
    return true;
}

// Starts a child whose output the document's runner captures; what is in the way is told.
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
    TellProblem(problem);
}

void Notice(const std::string& text) { gEditorCalls.SetNotice(text); }

// A document runs one child at a time. True, after a word in the status bar, while one runs.
bool Busy(const frmDoc& document) {
    if (!document.ShellClass->Running()) return false;
    Notice("Process already running.");
    return true;
}

bool StartJob(Job job, std::string path, bool debug) {
    if (!DocumentActive() || !gCurrentProject || Busy(*ActiveForm())) return false;
    if (!gActiveCompiler) throw Failure(91, "No compiler is active");
    gHost.processes->SetEnvironment("BLITZPATH", gHost.desktop->ShortPath(gActiveCompiler->Folder()));
    if (!(gCurrentProject->SingleFile ? SingleFileToCompile(job, path) : ProjectFileToCompile(path)))
        return false;
    if (Options::gOnCompileSave == Options::CompileSavesAll) Mod_File::SaveAllFiles();
    std::string target;
    if (job == Job::Build) {
        target = AskForTarget(path);
        if (target.empty()) return false;
    }
    std::string compiler;
    if (!FindCompiler(compiler)) return false;

    const std::string command = Command(job, debug, compiler, target, path);
    gToolchainCalls.ClearOutput();
    if (job == Job::Run && gActiveCompiler->RealConsole && RunInTerminal({command, ""})) return false;
    frmDoc& document = *ActiveForm();
    StartChild(
        document,
        {job, path, gCurrentProject->SingleFile ? document.m_strDocumentWindowID : std::string(), target},
        {command, ""});
    return false;
}

} // namespace

bool Compile(const std::string& path, bool debug) {
    return Guarded("Compile", "Mod_Compiler", false, [&] {
        gLastCompiledFile = path;
        lastCompiled = DocumentActive() ? ActiveForm()->Serial : 0;
        return StartJob(Job::Run, path, debug);
    });
}

bool CheckForErrors(const std::string& path) {
    return Guarded("CheckForErrors", "Mod_Compiler", false,
                   [&] { return StartJob(Job::Check, path, false); });
}

bool CreateExe(const std::string& path) {
    return Guarded("CreateExe", "Mod_Compiler", false, [&] { return StartJob(Job::Build, path, false); });
}

void CompileLast() {
    if (gHost.dock == nullptr) return;
    // A document that was saved under another name since is still the one that was compiled.
    frmDoc* document = DocumentOfSerial(lastCompiled);
    if (document == nullptr) document = Mod_File::DocumentOfPath(gLastCompiledFile);
    if (document != nullptr) BringToFront(*document);
    if (DocumentActive()) Compile(ActiveForm()->FullFilename, false);
}

void RunLastCreated() {
    if (Options::gLastCreatedExe.empty()) return;
    if (gHost.files->Kind(Options::gLastCreatedExe) != PathKind::File) {
        Exclaim("File " + Options::gLastCreatedExe + " not found !");
        return;
    }
    // A program finds its pictures and sounds beside itself.
    const ProcessStart start{Quoted(Options::gLastCreatedExe), GetFolder(Options::gLastCreatedExe)};
    if (!gHost.processes->HasTerminal() && DocumentActive() && Busy(*ActiveForm())) return;
    gToolchainCalls.ClearOutput();
    if (RunInTerminal(start)) return;
    if (DocumentActive())
        StartChild(*ActiveForm(), {Job::Run, Options::gLastCreatedExe, {}, {}, false}, start);
    else if (const SystemError error = gHost.processes->StartDetached(start.command))
        TellProblem(error.text);
}

void StopRunning() {
    if (!DocumentActive()) return;
    if (!ActiveForm()->ShellClass->Running()) return Notice("No process to terminate.");
    if (ActiveForm()->ShellClass->Terminate()) Append("The program was stopped.");
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
        constexpr int MostMilliseconds = 10000;
        constexpr long long SmallestKeywordFile = 3000;
        const std::string target = AppPath("Conf\\" + compilerName + ".lng");
        if (gHost.files->Kind(target) == PathKind::None) Mod_File::CreateEmptyFile(target);
        {
            const WaitCursor wait;
            gHost.processes->RunIntoFile(Quoted(compiler) + " +k", target, MostMilliseconds);
        }
        if (gHost.files->Size(target) >= SmallestKeywordFile) {
            gCompilers.Item(compilerName)->LoadKeywords();
            gHost.dialogs->Show(
                {"Keyword definitions for this compiler successfully created !", MessageIcon::Information});
        } else {
            gHost.dialogs->Show(
                {" Error while creating keyword definitions file !\r\n\r\n See " + target + " for details",
                 MessageIcon::Critical});
        }
        if (gActiveDoc != nullptr) gActiveDoc->State.mOldStartLine = -100;
    });
}

} // namespace Mod_Compiler
