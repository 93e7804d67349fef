// Messages about files that could not be loaded.
#include "documents/LoadMessages.h"

#include "host/Host.h"

namespace Mod_File {

namespace {

constexpr const char* Unloadable = "Could not load file:\r\n";
constexpr const char* UnloadableTitle = "File Could Not Be Loaded!";
constexpr std::size_t MostShown = 12; // lines; more do not fit on every screen

LoadMessages* gathering = nullptr;

} // namespace

void TellLoadFailure(const Message& message) {
    if (gathering != nullptr)
        gathering->Add(message);
    else
        gHost.dialogs->Show(message);
}

void TellUnloadable(const std::string& path) {
    TellLoadFailure({Unloadable + path, MessageIcon::Critical, UnloadableTitle});
}

LoadMessages::LoadMessages() { gathering = this; }

LoadMessages::~LoadMessages() { gathering = nullptr; }

void LoadMessages::Add(const Message& message) {
    messages_.push_back(message);
    std::string& text = messages_.back().text;
    if (!about_.empty() && text.find(about_) == std::string::npos) text += "\r\n" + about_;
}

void LoadMessages::Show() {
    gathering = nullptr;
    if (messages_.size() == 1) gHost.dialogs->Show(messages_.front());
    if (messages_.size() < 2) return;
    // The missing files come first, in one list; the other messages follow.
    std::string files, others;
    std::size_t shown = 0;
    for (const Message& message : messages_) {
        if (++shown > MostShown) break;
        const bool file = message.text.starts_with(Unloadable);
        std::string& text = file ? files : others;
        if (!text.empty()) text += "\r\n";
        text += file ? message.text.substr(std::string_view(Unloadable).size()) : message.text;
    }
    if (!files.empty()) files.insert(0, Unloadable);
    if (!files.empty() && !others.empty()) files += "\r\n\r\n";
    if (messages_.size() > MostShown)
        others += "\r\n... and " + std::to_string(messages_.size() - MostShown) + " more";
    gHost.dialogs->Show({files + others, MessageIcon::Critical, UnloadableTitle});
}

} // namespace Mod_File
