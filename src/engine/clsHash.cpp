// The symbol table. The chain index is the character sum itself: no name sums to 2048.
#include "engine/clsHash.h"

#include "engine/Mod_Lexer.h"
#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Paths.h"
#include "sci/Mod_Sci.h"

Symbol* FoundItem = nullptr;

namespace {

constexpr std::size_t HashedCharacters = 22;
constexpr int FailureInvalidKey = 1001;

// The sum as Add takes it: characters outside 32 to 127 count nothing.
int HashForAdd(std::string_view upperKey) {
    int sum = 0;
    for (std::size_t i = 0, n = upperKey.size() % HashedCharacters; i < n; ++i)
        sum += HashChar[static_cast<std::uint8_t>(upperKey[i])];
    return sum;
}

bool StandsOn(const Symbol& symbol, int line, std::intptr_t view) {
    return symbol.SciWndData == view &&
           Mod_Sci::SendTo(view, SCI_MARKERLINEFROMHANDLE, symbol.Handle) == line;
}

} // namespace

int HashOfUpper(std::string_view upperKey) {
    int sum = 0;
    for (std::size_t i = 0, n = upperKey.size() % HashedCharacters; i < n; ++i)
        sum += static_cast<std::uint8_t>(upperKey[i]);
    return sum;
}

void clsHash::SetSize(int hashSize, int listSize, int chunkSize) {
    hashSize_ = hashSize;
    if (listSize > 0) listSize_ = listSize;
    if (chunkSize > 0) chunkSize_ = chunkSize;
    hashTbl_.clear();
    slotTable_.clear();
    freeHead_ = 0;
    count_ = 0;
    capacity_ = listSize_;
}

int clsHash::ChainOf(int hash) const {
    if (hash < 0 || hash >= hashSize_) throw Failure(FailureOutOfRange, "Subscript out of range");
    return hashTbl_.empty() ? 0 : hashTbl_[static_cast<std::size_t>(hash)];
}

int clsHash::FindInChain(std::string_view upperKey, int hash) const {
    int slot = ChainOf(hash);
    while (slot != 0) {
        const SlotType& entry = slotTable_[static_cast<std::size_t>(slot)];
        if (entry.Key == upperKey) break;
        slot = entry.NextItem;
    }
    return slot;
}

bool clsHash::ExistsU(std::string_view upperKey, int hash) {
    const int slot = FindInChain(upperKey, hash);
    if (slot == 0) return false;
    FoundItem = slotTable_[static_cast<std::size_t>(slot)].Value.get();
    return true;
}

bool clsHash::Exists(std::string_view key, int hash) {
    LastKey = UCase(key);
    return ExistsU(LastKey, hash);
}

bool clsHash::ExistsHash(std::string_view key) {
    LastKey = UCase(key);
    return ExistsU(LastKey, HashOfUpper(LastKey));
}

bool clsHash::ExistsOnlyHash(std::string_view key) {
    LastKey = UCase(key);
    return FindInChain(LastKey, HashOfUpper(LastKey)) != 0;
}

template <class Match>
int clsHash::FindWhere(std::string_view key, Match match) {
    LastKey = UCase(key);
    int slot = ChainOf(HashOfUpper(LastKey));
    while (slot != 0) {
        const SlotType& entry = slotTable_[static_cast<std::size_t>(slot)];
        if (entry.Key == LastKey && match(*entry.Value)) break;
        slot = entry.NextItem;
    }
    return slot;
}

bool clsHash::ExistsCodeExplorer(std::string_view key, int handle, std::intptr_t view) {
    return FindWhere(key, [&](const Symbol& symbol) {
               return symbol.Handle == handle && symbol.SciWndData == view;
           }) != 0;
}

SymbolPointer clsHash::ItemHash(std::string_view key) {
    const int slot = FindWhere(key, [](const Symbol&) { return true; });
    return slot == 0 ? nullptr : slotTable_[static_cast<std::size_t>(slot)].Value;
}

SymbolPointer clsHash::ItemHandle(std::string_view key, int line, std::intptr_t view) {
    const int slot = FindWhere(key, [&](const Symbol& symbol) { return StandsOn(symbol, line, view); });
    return slot == 0 ? nullptr : slotTable_[static_cast<std::size_t>(slot)].Value;
}

SymbolPointer clsHash::ItemDeclaredOn(std::string_view key, int line, std::intptr_t view) {
    int candidates = 0;
    int last = 0;
    LastKey = UCase(key);
    for (int slot = ChainOf(HashOfUpper(LastKey)); slot != 0;
         slot = slotTable_[static_cast<std::size_t>(slot)].NextItem) {
        const SlotType& entry = slotTable_[static_cast<std::size_t>(slot)];
        if (entry.Key != LastKey || entry.Value->SciWndData != view) continue;
        ++candidates;
        last = slot;
    }
    if (candidates == 1) return slotTable_[static_cast<std::size_t>(last)].Value;
    return candidates == 0 ? nullptr : ItemHandle(key, line, view);
}

int clsHash::TakeSlot() {
    if (slotTable_.empty()) {
        hashTbl_.assign(static_cast<std::size_t>(hashSize_), 0);
        slotTable_.emplace_back();
    }
    ++count_;
    if (freeHead_ != 0) {
        const int slot = freeHead_;
        freeHead_ = slotTable_[static_cast<std::size_t>(slot)].NextItem;
        return slot;
    }
    // Slots that were never used follow one another, so the next one is simply the next.
    const int slot = static_cast<int>(slotTable_.size());
    if (slot > capacity_) capacity_ += chunkSize_;
    slotTable_.emplace_back();
    return slot;
}

void clsHash::Add(std::string_view key, SymbolPointer record) {
    if (key.empty()) throw Failure(FailureInvalidKey, "Invalid key");
    std::string upper = UCase(key);
    const int hash = HashForAdd(IgnoreCase ? std::string_view(upper) : key);
    ChainOf(hash);

    const int slot = TakeSlot();
    SlotType& entry = slotTable_[static_cast<std::size_t>(slot)];
    entry.Key = std::move(upper);
    entry.Value = std::move(record);
    entry.NextItem = 0;
    int& head = hashTbl_[static_cast<std::size_t>(hash)];
    if (head == 0)
        head = slot;
    else
        slotTable_[static_cast<std::size_t>(slotTable_[static_cast<std::size_t>(head)].ChainTail)].NextItem =
            slot;
    slotTable_[static_cast<std::size_t>(head)].ChainTail = slot;
}

template <class Match>
void clsHash::Unlink(std::string_view key, const char* operation, Match match) {
    if (key.empty()) return;
    Guarded(operation, "clsHash", [&] {
        const std::string upper = UCase(key);
        const int hash = HashOfUpper(upper);
        int previous = 0;
        int slot = ChainOf(hash);
        while (slot != 0) {
            SlotType& entry = slotTable_[static_cast<std::size_t>(slot)];
            if (entry.Key == upper && match(*entry.Value)) break;
            previous = slot;
            slot = entry.NextItem;
        }
        if (slot == 0) throw Failure(FailureMissingKey, "No such element");
        SlotType& entry = slotTable_[static_cast<std::size_t>(slot)];
        int& head = hashTbl_[static_cast<std::size_t>(hash)];
        if (previous == 0) {
            head = entry.NextItem;
            if (head != 0) slotTable_[static_cast<std::size_t>(head)].ChainTail = entry.ChainTail;
        } else {
            slotTable_[static_cast<std::size_t>(previous)].NextItem = entry.NextItem;
            SlotType& first = slotTable_[static_cast<std::size_t>(head)];
            if (first.ChainTail == slot) first.ChainTail = previous;
        }
        // The slot keeps its key and its record until it is taken again.
        entry.NextItem = freeHead_;
        freeHead_ = slot;
        --count_;
    });
}

void clsHash::Remove(std::string_view key, int line, std::intptr_t view) {
    Unlink(key, "Remove", [&](const Symbol& symbol) { return StandsOn(symbol, line, view); });
}

void clsHash::RemovePoHandle(std::string_view key, int handle) {
    Unlink(key, "RemovePoHandle", [&](const Symbol& symbol) { return symbol.Handle == handle; });
}

std::vector<std::string> clsHash::Keys() const {
    std::vector<std::string> keys;
    for (int slot : hashTbl_)
        for (; slot != 0; slot = slotTable_[static_cast<std::size_t>(slot)].NextItem)
            keys.push_back(slotTable_[static_cast<std::size_t>(slot)].Key);
    return keys;
}

std::vector<SymbolPointer> clsHash::Items() const {
    std::vector<SymbolPointer> items;
    for (int slot : hashTbl_)
        for (; slot != 0; slot = slotTable_[static_cast<std::size_t>(slot)].NextItem)
            items.push_back(slotTable_[static_cast<std::size_t>(slot)].Value);
    return items;
}
