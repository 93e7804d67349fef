// Dialogs that answer from a script.
#include "support/FakeDialogs.h"

#include <gtest/gtest.h>

template <class Kind>
Kind FakeDialogs::Take(const std::string& what, Kind otherwise) {
    if (script_.empty() || !std::holds_alternative<Kind>(script_.front())) {
        ADD_FAILURE() << "Not scripted: " << what;
        return otherwise;
    }
    Kind answer = std::get<Kind>(script_.front());
    script_.pop_front();
    return answer;
}

void FakeDialogs::WillAnswer(MessageAnswer answer) { script_.emplace_back(answer); }
void FakeDialogs::WillOpen(std::vector<std::string> paths) { script_.emplace_back(Paths{std::move(paths)}); }
void FakeDialogs::WillSave(std::string path) { script_.emplace_back(SavePath{std::move(path)}); }
void FakeDialogs::WillChooseFolder(std::string path) { script_.emplace_back(FolderPath{std::move(path)}); }
void FakeDialogs::WillType(std::optional<std::string> text) { script_.emplace_back(Line{std::move(text)}); }

void FakeDialogs::ExpectUsedUp() const {
    EXPECT_TRUE(script_.empty()) << script_.size() << " scripted answers were not asked for";
}

MessageAnswer FakeDialogs::Show(const Message& message) {
    messages.push_back(message);
    return Take("the message \"" + message.text + '"', MessageAnswer::Cancel);
}

std::vector<std::string> FakeDialogs::OpenFiles(const FileQuestion& question) {
    questions.push_back(question);
    return Take("the open dialog \"" + question.title + '"', Paths{}).paths;
}

std::string FakeDialogs::SaveFile(const FileQuestion& question) {
    questions.push_back(question);
    return Take("the save dialog \"" + question.title + '"', SavePath{}).path;
}

std::string FakeDialogs::Folder(const std::string& title, const std::string&) {
    prompts.push_back(title);
    return Take("the folder dialog \"" + title + '"', FolderPath{}).path;
}

std::optional<std::string> FakeDialogs::Input(const std::string& prompt, const std::string&,
                                              const std::string&) {
    prompts.push_back(prompt);
    return Take("the question \"" + prompt + '"', Line{}).text;
}
