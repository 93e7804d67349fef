// Dialogs that answer from a script. An unscripted dialog fails the test, and so does an unused answer.
#pragma once

#include "host/Dialogs.h"

#include <deque>
#include <string>
#include <variant>
#include <vector>

class FakeDialogs : public Dialogs {
public:
    // Scripted answers, in the order in which they will be needed.
    void WillAnswer(MessageAnswer answer);
    void WillOpen(std::vector<std::string> paths);
    void WillSave(std::string path);
    void WillChooseFolder(std::string path);
    void WillType(std::optional<std::string> text);
    // Fails the test if answers are left.
    void ExpectUsedUp() const;

    MessageAnswer Show(const Message& message) override;
    std::vector<std::string> OpenFiles(const FileQuestion& question) override;
    std::string SaveFile(const FileQuestion& question) override;
    std::string Folder(const std::string& title, const std::string& start) override;
    std::optional<std::string> Input(const std::string& prompt, const std::string& title,
                                     const std::string& preset) override;

    // The exact texts of the questions.
    std::vector<Message> messages;
    std::vector<FileQuestion> questions;
    std::vector<std::string> prompts;

private:
    struct Paths {
        std::vector<std::string> paths;
    };
    struct SavePath {
        std::string path;
    };
    struct FolderPath {
        std::string path;
    };
    struct Line {
        std::optional<std::string> text;
    };
    using Answer = std::variant<MessageAnswer, Paths, SavePath, FolderPath, Line>;

    template <class Kind>
    Kind Take(const std::string& what, Kind otherwise);

    std::deque<Answer> script_;
};
