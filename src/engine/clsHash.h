// The container of every symbol table: a chained hash that distinguishes namesakes by marker handle and view.
// The colourers compute a name's hash once and search up to six tables with it.
#pragma once

#include "engine/Symbols.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

using SymbolPointer = std::shared_ptr<Symbol>;

// The record that the last successful look-up found. Written by Exists, ExistsU and ExistsHash.
extern Symbol* FoundItem;

// The hash of an upper-case key: the sum of its first (length modulo 22) characters. Below 2048 for
// every name.
int HashOfUpper(std::string_view upperKey);

class clsHash {
public:
    clsHash() { SetSize(2048, 256, 256); }

    bool IgnoreCase = true; // upper-case keys in Add

    // Makes the table anew and empty. A size at or below 0 keeps the current value.
    void SetSize(int hashSize, int listSize, int chunkSize);

    // Look-ups with the hash in hand; the first entry with the key wins and becomes FoundItem.
    // A hash outside the table is a failure (9).
    bool Exists(std::string_view key, int hash);
    bool ExistsU(std::string_view upperKey, int hash);
    bool ExistsOnly(std::string_view, int) { return false; }

    // Look-ups that compute the hash. ExistsOnlyHash leaves FoundItem alone.
    bool ExistsHash(std::string_view key);
    bool ExistsOnlyHash(std::string_view key);
    bool ExistsCodeExplorer(std::string_view key, int handle, std::intptr_t view);

    // Adds at the end of the key's chain; namesakes are kept. An empty key is failure 1001.
    void Add(std::string_view key, SymbolPointer record);
    // Inserts before the namesakes of its view that are further down in the text, so that edits keep the
    // order of a load.
    void AddInOrder(std::string_view key, SymbolPointer record);

    // The first entry with the key; null when there is none.
    SymbolPointer ItemHash(std::string_view key);
    // Returns the entry with this key whose marker is on that line (from 0) of that view, after `skip` others
    // on the line; null if there is none.
    SymbolPointer ItemHandle(std::string_view key, int line, std::intptr_t view, int skip = 0);

    // Take an entry out. No match is reported as failure 5 and changes nothing; an empty key does nothing.
    void Remove(std::string_view key, int line, std::intptr_t view);
    void RemovePoHandle(std::string_view key, int handle);
    // For a record in hand: namesakes of other views may have its handle too.
    void RemoveRecord(std::string_view key, const Symbol& record);
    void RemoveAll() { SetSize(hashSize_, listSize_, chunkSize_); }

    int Count() const { return count_; }
    int Capacity() const { return capacity_; } // slots, live and free

    // All entries in hash order: chains from 0 up, each from head to tail.
    std::vector<std::string> Keys() const;
    std::vector<SymbolPointer> Items() const;
    // Visits every record, in no order that means anything.
    template <class Visit>
    void ForEach(Visit visit) const {
        for (int slot : hashTbl_)
            for (; slot != 0; slot = Slot(slot).NextItem) visit(*Slot(slot).Value);
    }

    std::string LastKey; // the last upper-cased key

private:
    struct SlotType {
        std::string Key; // always upper-case
        SymbolPointer Value;
        int Hash = 0;
        int NextItem = 0;  // next of the chain or of the free list; slot 0 is never used
        int ChainTail = 0; // in a chain's head: its last entry
    };

    const SlotType& Slot(int index) const { return slotTable_[static_cast<std::size_t>(index)]; }
    SlotType& Slot(int index) { return slotTable_[static_cast<std::size_t>(index)]; }
    int& Head(int hash) { return hashTbl_[hashTbl_.size() == 1 ? 0 : static_cast<std::size_t>(hash)]; }
    int ChainOf(int hash) const;
    int FindInChain(std::string_view upperKey, int hash) const;
    template <class Match>
    int FindWhere(std::string_view key, Match match);
    template <class Match>
    void Unlink(std::string_view key, const char* operation, Match match);
    int TakeSlot();
    int NewSlot(std::string_view key, SymbolPointer record);
    void Append(int slot);
    void Spread();
    std::vector<int> Ordered() const;

    // Heads of the chains. A small table has a single chain for all its entries: most functions and types
    // hold a handful of names, and a full set of heads for each of them would cost more than the names.
    std::vector<int> hashTbl_;
    std::vector<SlotType> slotTable_;
    int freeHead_ = 0; // slots that were given back
    int capacity_ = 0; // slots that the table counts as its own
    int hashSize_ = 2048;
    int listSize_ = 256;
    int chunkSize_ = 256;
    int count_ = 0;
};
