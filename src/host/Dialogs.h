// Questions to the user: messages, files, one line of text. Every call returns when the user has answered.
#pragma once

#include <optional>
#include <string>
#include <vector>

enum class MessageIcon { None, Information, Question, Exclamation, Critical };
enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Cancel, Yes, No };

struct Message {
    std::string text;
    MessageIcon icon = MessageIcon::None;
    std::string title = {}; // empty: the program's name
    MessageButtons buttons = MessageButtons::Ok;
    MessageAnswer byDefault = MessageAnswer::Ok; // the button that Enter presses; Ok means the first one
};

struct FileQuestion {
    std::string title;
    std::string filter;   // pairs "label|patterns", separated by "|"
    std::string fileName; // initial text of the name box
    std::string folder;   // initial folder; empty: the one that was used last
    bool multiple = false;
};

class Dialogs {
public:
    virtual ~Dialogs() = default;

    // Shows a message and returns the button that was pressed. A dismissed message returns Cancel, even if it
    // has no such button.
    virtual MessageAnswer Show(const Message& message) = 0;
    // Asks for existing files. Empty on cancel.
    virtual std::vector<std::string> OpenFiles(const FileQuestion& question) = 0;
    // Asks for a file to write, and asks again before an existing one is overwritten. Empty on cancel.
    virtual std::string SaveFile(const FileQuestion& question) = 0;
    // Asks for an existing folder. Empty on cancel.
    virtual std::string Folder(const std::string& title, const std::string& start) = 0;
    // Asks for one line of text. Nothing on cancel.
    virtual std::optional<std::string> Input(const std::string& prompt, const std::string& title,
                                             const std::string& preset) = 0;
};
