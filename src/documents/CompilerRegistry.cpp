// The registry of compilers: reading compilers.dat, and making one the active one.
#include "documents/CompilerRegistry.h"

#include "engine/ClsCompiler.h"
#include "host/Desktop.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/SettingsStore.h"

#include <cstdlib>

namespace Mod_Main {

namespace {

constexpr int FailureEndOfFile = 62;

// Values in the order in which they stand, one a line: texts in quotes, numbers and booleans bare.
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
    const std::string path = AppPath("Conf\\compilers.dat");
    if (gHost.files->Kind(path) != PathKind::File) {
        gHost.dialogs->Show({"File 'Compilers.dat' is missing or invalid !", MessageIcon::Critical});
        gHost.desktop->EndProcess(1);
    }
    // A damaged file leaves what was read until then.
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

bool SetActiveCompiler(const std::string& name) {
    return Guarded("SetActiveCompiler", "Mod_Main", false, [&] {
        if (gActiveCompiler && EqualNoCase(gActiveCompiler->Name, name)) return true;
        gActiveCompiler = gCompilers.Item(name);
        if (gActiveCompiler->SetDefaultKeywords()) return true;
        if (EqualNoCase(name, DefaultCompiler)) return false;
        gActiveCompiler = gCompilers.Item(DefaultCompiler);
        return gActiveCompiler->SetDefaultKeywords();
    });
}

} // namespace Mod_Main
