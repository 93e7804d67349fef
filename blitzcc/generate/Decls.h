// Reads the declarations of user libraries (*.decls), which add functions to the language.
// Their functions are checked like commands; running one ends the program with a message.
#pragma once

#include "commands/CommandTable.h"

#include <deque>

namespace blitz {

struct LibraryFunction {
    Command command;
    std::string library;
};

class Decls {
public:
    /// The text of all *.decls files of a folder, in any case; a missing folder holds none.
    static std::string folderText(const std::string& folder);
    /// Reads the text of one file or of several; a malformed line is passed over.
    void readText(std::string_view text);
    /// The function with that name in lower case, or null.
    const LibraryFunction* find(const std::string& lowered) const;

private:
    void readLine(std::string_view line);

    std::deque<LibraryFunction> functions_;
    std::unordered_map<std::string, size_t> byName_;
    std::string library_;
};

}
