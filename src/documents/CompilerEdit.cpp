// Editing the registry of compilers. The file is written first, because everything else can be made from it.
#include "documents/CompilerEdit.h"

#include "documents/CompilerRegistry.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "host/Dialogs.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/SettingsStore.h"
#include "host/Text.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t MostCompilers = 32;

using Renamed = std::vector<std::pair<std::string, std::string>>; // old and new name

void Refuse(const std::string& text, const std::string& title = {}) {
    gHost.dialogs->Show({.text = text, .icon = MessageIcon::Exclamation, .title = title});
}

std::string KeywordFile(const std::string& name) { return AppPath("Conf\\" + name + ".lng"); }

// A name is also that of a file, and stands in a line between quotes.
bool IsName(const std::string& name) {
    return !name.empty() && name.find_first_of("/\\\"\r\n") == std::string::npos;
}

std::string FileText(const std::vector<CompilerEdit::Entry>& entries) {
    std::string text = "1\r\n" + std::to_string(entries.size()) + "\r\n";
    for (const CompilerEdit::Entry& entry : entries) {
        for (const std::string& value : {entry.name, entry.path, entry.helpPath})
            text += '"' + value + "\"\r\n";
        text += entry.realConsole ? "#TRUE#\r\n" : "#FALSE#\r\n";
    }
    return text;
}

// Two compilers may have exchanged their names, so each file gets a name that no compiler has in between.
void RenameKeywordFiles(const Renamed& names) {
    const auto between = [](const std::string& name) { return KeywordFile(name) + ".renamed"; };
    for (const auto& [old, now] : names)
        if (gHost.files->Kind(KeywordFile(old)) == PathKind::File)
            gHost.files->Rename(KeywordFile(old), between(now));
    for (const auto& [old, now] : names)
        if (gHost.files->Kind(between(now)) == PathKind::File)
            gHost.files->Rename(between(now), KeywordFile(now));
}

void RenameInProjects(const Renamed& names) {
    const auto follow = [&](std::string& name) {
        const auto at = std::find_if(names.begin(), names.end(),
                                     [&](const auto& pair) { return EqualNoCase(pair.first, name); });
        if (at == names.end()) return false;
        name = at->second;
        return true;
    };
    for (const auto& project : gProjects) {
        if (follow(project.record->Compiler) && !project.record->SingleFile) project.record->Dirty = true;
        for (const auto& source : project.record->Sources) follow(source.record->CompilerUsed);
    }
}

}

CompilerEdit::CompilerEdit() : default_(DefaultCompiler) {
    for (const auto& compiler : gCompilers) {
        const auto& known = compiler.record;
        entries_.push_back(
            {known->Name, known->Path, known->HelpPath, known->RealConsole, known, known->Name});
    }
}

bool CompilerEdit::IsFree(const std::string& name, const char* message) const {
    const bool taken = std::any_of(entries_.begin(), entries_.end(),
                                   [&](const Entry& entry) { return EqualNoCase(entry.name, name); });
    if (taken)
        Refuse(message, "Invalid name");
    else if (!IsName(name))
        Refuse("A name cannot hold a slash, a backslash or a quote.", "Invalid name");
    return !taken && IsName(name);
}

bool CompilerEdit::MayAdd() const {
    if (entries_.size() <= MostCompilers) return true;
    Refuse("You can't have more than 32 compilers!");
    return false;
}

bool CompilerEdit::Add(const std::string& name) {
    if (!IsFree(name, "A Compiler with this name already exists")) return false;
    entries_.push_back({name, {}, {}, false, nullptr, name});
    return true;
}

bool CompilerEdit::Rename(std::size_t index, const std::string& name) {
    Entry& entry = entries_.at(index);
    if (name == entry.name) return true;
    // Another case of the same name is free.
    if (!(EqualNoCase(name, entry.name) && IsName(name)) &&
        !IsFree(name, "A Compiler with this name already exists!"))
        return false;
    if (EqualNoCase(default_, entry.name)) default_ = name;
    entry.name = name;
    return true;
}

bool CompilerEdit::Remove(std::size_t index) {
    if (entries_.size() == 1) {
        Refuse("You must have at least one compiler!");
        return false;
    }
    if (EqualNoCase(entries_.at(index).name, default_)) {
        Refuse("You are not allowed to remove the default compiler !\r\nPlease mark other compiler as "
               "default first...");
        return false;
    }
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(index));
    return true;
}

void CompilerEdit::SetPath(std::size_t index, const std::string& path) {
    entries_.at(index).path = path;
    entries_.at(index).helpPath = CollapseSeparators(path + "/help");
}

void CompilerEdit::Apply() {
    gHost.files->Write(AppPath("Conf\\compilers.dat"), FileText(entries_));
    gHost.settings->Save("Options", "DefaultCompiler", default_);
    DefaultCompiler = default_;
    Renamed names, files;
    for (Entry& entry : entries_) {
        if (entry.known && entry.known->Name != entry.name) names.emplace_back(entry.known->Name, entry.name);
        if (entry.keywords != entry.name) files.emplace_back(entry.keywords, entry.name);
        entry.keywords = entry.name;
    }
    gCompilers.RemoveAll();
    for (Entry& entry : entries_) {
        if (!entry.known) entry.known = std::make_shared<ClsCompiler>();
        entry.known->Name = entry.name;
        entry.known->Path = entry.path;
        entry.known->HelpPath = entry.helpPath;
        entry.known->RealConsole = entry.realConsole;
        gCompilers.Add(entry.known, entry.name);
    }
    RenameInProjects(names);
    // The active compiler may have been removed.
    if (gActiveCompiler && gCompilers.Find(gActiveCompiler->Name) != gActiveCompiler)
        Mod_Main::SetActiveCompiler(DefaultCompiler);
    RenameKeywordFiles(files);
}
