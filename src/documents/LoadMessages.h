// Messages about files that could not be loaded: shown at once, or collected into one message while many
// files are loaded.
#pragma once

#include "host/Dialogs.h"

#include <string>
#include <vector>

namespace Mod_File {

// Shows a message about a failed load, or adds it to the present LoadMessages.
void TellLoadFailure(const Message& message);
// The same with the standard text for a missing or unreadable file.
void TellUnloadable(const std::string& path);

// Collects the messages during its lifetime. There is at most one at a time.
class LoadMessages {
public:
    LoadMessages();
    ~LoadMessages();
    LoadMessages(const LoadMessages&) = delete;
    LoadMessages& operator=(const LoadMessages&) = delete;

    void Add(const Message& message);
    // Sets the path that is added to messages that do not name one.
    void About(const std::string& path) { about_ = path; }
    // Shows the collected messages: one unchanged, several as one.
    void Show();

private:
    std::vector<Message> messages_;
    std::string about_;
};

} // namespace Mod_File
