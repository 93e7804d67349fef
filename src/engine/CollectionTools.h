// An ordered keyed collection of shared records; a missing key is failure number 5.
#pragma once

#include "host/Failure.h"
#include "host/Text.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

// Names are one key whatever their case; paths that differ in case can be two files.
enum class KeysAre { Names, Paths };

template <class Record>
class CollectionTools {
public:
    using Pointer = std::shared_ptr<Record>;

    explicit CollectionTools(KeysAre keys = KeysAre::Names) : keys_(keys) {}

    // Adds a record under a key, before the entry at `before` or at the end (-1). Fails with
    // FailureDuplicateKey for a key in use.
    void Add(Pointer record, const std::string& key, int before = -1) {
        if (Exist_Key(key))
            throw Failure(FailureDuplicateKey,
                          "This key is already associated with an element of this collection");
        Entry entry{key, std::move(record)};
        if (before < 0 || before >= Count())
            entries_.push_back(std::move(entry));
        else
            entries_.insert(entries_.begin() + before, std::move(entry));
    }

    void RemoveKey(const std::string& key) { entries_.erase(Require(key)); }
    void RemoveIndex(int index) { entries_.erase(entries_.begin() + Checked(index)); }
    void RemoveAll() { entries_.clear(); }
    int Count() const { return static_cast<int>(entries_.size()); }

    const Pointer& Item(const std::string& key) const {
        return const_cast<CollectionTools*>(this)->Require(key)->record;
    }
    const Pointer& Item(int index) const { return entries_[Checked(index)].record; }
    const std::string& Key(int index) const { return entries_[Checked(index)].key; }

    // The record under a key, null where there is none.
    Pointer Find(const std::string& key) const {
        auto at = const_cast<CollectionTools*>(this)->Locate(key);
        return at == entries_.end() ? nullptr : at->record;
    }
    bool Exist_Key(const std::string& key) const { return Find(key) != nullptr; }
    bool Exist_Item(const Record* record) const {
        return std::any_of(entries_.begin(), entries_.end(),
                           [&](const Entry& entry) { return entry.record.get() == record; });
    }

    struct Entry {
        std::string key;
        Pointer record;
    };
    auto begin() const { return entries_.begin(); }
    auto end() const { return entries_.end(); }

private:
    using Entries = std::vector<Entry>;

    typename Entries::iterator Locate(const std::string& key) {
        return std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
            return keys_ == KeysAre::Paths ? entry.key == key : EqualNoCase(entry.key, key);
        });
    }
    typename Entries::iterator Require(const std::string& key) {
        auto at = Locate(key);
        if (at == entries_.end()) throw Failure(FailureMissingKey, "Invalid procedure call or argument");
        return at;
    }
    std::size_t Checked(int index) const {
        if (index < 0 || index >= Count()) throw Failure(FailureOutOfRange, "Subscript out of range");
        return static_cast<std::size_t>(index);
    }

    KeysAre keys_;
    Entries entries_;
};
