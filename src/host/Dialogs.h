// What the program asks a person: messages, files, one line of text. Every call blocks until answered.
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
    MessageAnswer byDefault = MessageAnswer::Ok; // Ok stands for the first button
};

struct FileQuestion {
    std::string title;
    std::string filter;   // pairs "label|patterns", divided by "|"
    std::string fileName; // what stands in the name box
    std::string folder;   // where the dialog starts; empty: where it was last
    bool multiple = false;
};

class Dialogs {
public:
    virtual ~Dialogs() = default;

    // Shows a message and answers the button; Cancel where it was dismissed, whatever buttons it has.
    virtual MessageAnswer Show(const Message& message) = 0;
    // Asks for files that exist. Empty on cancel.
    virtual std::vector<std::string> OpenFiles(const FileQuestion& question) = 0;
    // Asks for a name to write to, and before overwriting. Empty on cancel.
    virtual std::string SaveFile(const FileQuestion& question) = 0;
    // Asks for a folder that exists. Empty on cancel.
    virtual std::string Folder(const std::string& title, const std::string& start) = 0;
    // Asks for one line of text. Nothing on cancel.
    virtual std::optional<std::string> Input(const std::string& prompt, const std::string& title,
                                             const std::string& preset) = 0;
};
