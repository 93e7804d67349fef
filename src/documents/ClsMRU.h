// A short list of recently used texts, stored in the settings.
#pragma once

#include <string>
#include <vector>

class ClsMRU {
public:
    explicit ClsMRU(std::string name) : Name(std::move(name)) {}

    std::string Name;
    int Number = 5;           // the greatest number of entries
    bool AsFavorites = false; // a full list refuses new entries with a message, and the order never changes

    // Adds a text as the first entry and removes an entry that differs in case alone. In a list of
    // favourites, a new text becomes the last entry.
    void Add(const std::string& text);
    void Remove(const std::string& text);
    void Clear() { items_.clear(); }
    int Count() const { return static_cast<int>(items_.size()); }
    // Index from 1, newest entry first. Throws FailureOutOfRange.
    const std::string& IndexItem(int index) const;
    const std::vector<std::string>& Items() const { return items_; }

    // Reads section "<Name>MRU" with keys "1", "2" and so on. An empty section leaves the list unchanged.
    void Load();
    void Save() const;

private:
    std::vector<std::string>::iterator Find(const std::string& text);

    std::vector<std::string> items_;
};

// Searched texts, replacement texts and program arguments. Written by the find dialog and the command line
// box.
extern ClsMRU MRUFind;
extern ClsMRU MRUReplace;
extern ClsMRU MRUCommandLine;
