// The registry of compilers while the user edits it: a copy, until it is applied.
#pragma once

#include "engine/ClsCompiler.h"

#include <memory>
#include <string>
#include <vector>

class CompilerEdit {
public:
    struct Entry {
        std::string name, path, helpPath;
        bool realConsole = false;
        std::shared_ptr<ClsCompiler> known; // the registered compiler; null for a new one
        std::string keywords;               // the name of its keyword file until Apply
    };

    CompilerEdit();

    std::vector<Entry>& Entries() { return entries_; }
    const std::string& Default() const { return default_; }
    void SetDefault(std::size_t index) { default_ = entries_.at(index).name; }

    // Whether there is room for one more. Shows a message if not.
    bool MayAdd() const;
    // Adds a compiler with a new name and no path, and returns whether the name was free; shows a message if
    // not.
    bool Add(const std::string& name);
    // False, after a message, if the name is in use or names no file.
    bool Rename(std::size_t index, const std::string& name);
    // False, after a message, for the default compiler and for the only one.
    bool Remove(std::size_t index);
    // Sets the folder of a compiler, and that of its help with it.
    void SetPath(std::size_t index, const std::string& path);

    // Writes Conf\compilers.dat, DefaultCompiler and the names of keyword files, and makes the list the
    // registry. Projects and documents follow the new names. Throws a Failure, with nothing changed, if the
    // file cannot be written. Writes gCompilers, gActiveCompiler and DefaultCompiler.
    void Apply();

private:
    bool IsFree(const std::string& name, const char* message) const;

    std::vector<Entry> entries_;
    std::string default_;
};
