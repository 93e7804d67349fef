// Edits played into the first document through its view, as a user's actions.
#pragma once

#include <string>
#include <vector>

struct EditOperation {
    enum class Kind { Caret, Select, Type, NewLine, Backspace, Delete, Paste, Undo, Redo, Command, Settle };
    Kind kind = Kind::Settle;
    long from = 0; // byte offsets; the caret is here
    long to = 0;
    std::string text; // bytes to type or to paste, or a command's name
};

// Reads operations, one JSON object a line. False with a message that names the line when one is malformed or
// the file cannot be read.
bool ReadEdits(const std::string& path, std::vector<EditOperation>& operations, std::string& error);

// Plays the operations and settles; returns the duration of each in microseconds.
std::vector<long long> PlayEdits(const std::vector<EditOperation>& operations);
