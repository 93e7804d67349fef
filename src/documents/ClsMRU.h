// A short list of texts that were used last, kept in the settings store.
#pragma once

#include <string>
#include <vector>

class ClsMRU {
public:
    explicit ClsMRU(std::string name) : Name(std::move(name)) {}

    std::string Name;
    int Number = 5;           // most entries
    bool AsFavorites = false; // keeps its order, and refuses a new entry when full, with a message

    // Puts a text first; one that differs from an entry only in case takes its place. In a list of favourites
    // a new text comes last.
    void Add(const std::string& text);
    void Remove(const std::string& text);
    void Clear() { items_.clear(); }
    int Count() const { return static_cast<int>(items_.size()); }
    // From 1, newest first. Fails with FailureOutOfRange.
    const std::string& IndexItem(int index) const;
    const std::vector<std::string>& Items() const { return items_; }

    // Section "<Name>MRU", keys "1", "2" and so on. An empty section leaves the list as it is.
    void Load();
    void Save() const;

private:
    std::vector<std::string>::iterator Find(const std::string& text);

    std::vector<std::string> items_;
};

// What was searched for, what replaced it, and the arguments of programs. Written by the find dialog and by
// the command line box.
extern ClsMRU MRUFind;
extern ClsMRU MRUReplace;
extern ClsMRU MRUCommandLine;
