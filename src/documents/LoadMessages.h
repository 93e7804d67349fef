// What could not be loaded: said at once, or, where many things are loaded together, all of it in one
// message.
#pragma once

#include "host/Dialogs.h"

#include <string>
#include <vector>

namespace Mod_File {

// Shows a message with one button about something that could not be loaded, or hands it to the gathering
// that is under way.
void TellLoadFailure(const Message& message);
// The same for a file that is missing or cannot be read.
void TellUnloadable(const std::string& path);

// Gathers these messages for as long as it lives. One at a time.
class LoadMessages {
public:
    LoadMessages();
    ~LoadMessages();
    LoadMessages(const LoadMessages&) = delete;
    LoadMessages& operator=(const LoadMessages&) = delete;

    void Add(const Message& message);
    // Names what the messages to come are about, for those that don't say it.
    void About(const std::string& path) { about_ = path; }
    // Shows what was gathered: a single message as it is, several as one, none not at all.
    void Show();

private:
    std::vector<Message> messages_;
    std::string about_;
};

} // namespace Mod_File
