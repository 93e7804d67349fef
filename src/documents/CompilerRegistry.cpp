// Reading compilers.dat, and choosing the active compiler.
#include "documents/CompilerRegistry.h"

#include "documents/LoadMessages.h"
#include "engine/ClsCompiler.h"
#include "host/Desktop.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/SettingsStore.h"
#include "host/Text.h"

#include <cstdlib>
#include <set>

namespace Mod_Main {

namespace {

constexpr int FailureEndOfFile = 62;

std::set<std::string> reportedNames; // names in upper case

// Reads one value from each line: texts in quotes, numbers and booleans without.
class RecordReader {
public:
    explicit RecordReader(std::string text) : text_(std::move(text)) {}

    std::string Next() {
        if (at_ >= text_.size()) throw Failure(FailureEndOfFile, "Input past end of file");
        const std::size_t end = std::min(text_.find_first_of("\r\n", at_), text_.size());
        std::string value(TrimBlanks(std::string_view(text_).substr(at_, end - at_)));
        at_ = text_.find_first_not_of("\r\n", end);
        if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
            value = value.substr(1, value.size() - 2);
        return value;
    }

private:
    std::string text_;
    std::size_t at_ = 0;
};

} // namespace

void LoadCompilers() {
    reportedNames.clear();
    const std::string path = AppPath("Conf\\compilers.dat");
    if (gHost.files->Kind(path) != PathKind::File) {
        gHost.dialogs->Show({"File 'Compilers.dat' is missing or invalid !", MessageIcon::Critical});
        gHost.desktop->EndProcess(1);
    }
    // The compilers in front of a damaged place are kept.
    Guarded("LoadCompilers", "Mod_Main", [&] {
        RecordReader reader(gHost.files->Read(path));
        reader.Next();
        const int count = std::atoi(reader.Next().c_str());
        for (int i = 0; i < count; ++i) {
            auto compiler = std::make_shared<ClsCompiler>();
            compiler->Name = reader.Next();
            compiler->Path = reader.Next();
            compiler->HelpPath = reader.Next();
            compiler->RealConsole = reader.Next() == "#TRUE#";
            const std::string name = compiler->Name;
            gCompilers.Add(std::move(compiler), name);
        }
    });
    DefaultCompiler = gHost.settings->Get("Options", "DefaultCompiler", "");
    if (!gCompilers.Exist_Key(DefaultCompiler))
        DefaultCompiler = gCompilers.Count() > 0 ? gCompilers.Item(0)->Name : std::string();
}

namespace {

// Reports a name only once, and not each time a document of its project comes to the front.
void ReportUnknownOnce(const std::string& name) {
    if (!reportedNames.insert(UCase(name)).second) return;
    Mod_File::TellLoadFailure(
        {"The compiler \"" + name + "\" is not registered here. The default compiler, \"" + DefaultCompiler +
             "\", is used instead.\r\nTo change that for good, choose a compiler in the "
             "box of the tool bar.",
         MessageIcon::Exclamation});
}

} // namespace

bool SetActiveCompiler(const std::string& name) {
    return Guarded("SetActiveCompiler", "Mod_Main", false, [&] {
        if (gActiveCompiler && EqualNoCase(gActiveCompiler->Name, name)) return true;
        const auto& byDefault = gCompilers.Item(DefaultCompiler);
        const auto compiler = gCompilers.Find(name);
        if (!compiler) ReportUnknownOnce(name);
        if (compiler && !compiler->Refused && compiler->SetDefaultKeywords()) {
            gActiveCompiler = compiler;
            return true;
        }
        gActiveCompiler = byDefault;
        return compiler != byDefault && byDefault->SetDefaultKeywords();
    });
}

} // namespace Mod_Main
