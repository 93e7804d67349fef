// The symbol table. The chain index is the character sum itself: no name sums to 2048.
#include "engine/clsHash.h"

#include "engine/Mod_Lexer.h"
#include "engine/SymbolLine.h"
#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Text.h"

#include <algorithm>

Symbol* FoundItem = nullptr;

ClsFunkcija::ClsFunkcija() : Locals(std::make_shared<clsHash>()) {}
ClsType::ClsType() : Fields(std::make_shared<clsHash>()) {}

std::string clsInclude::KeyOf(std::string_view path) {
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string key;
    for (const char c : UCase(path)) {
        const auto byte = static_cast<std::uint8_t>(c);
        if (byte >= ' ' && byte <= '_' && c != '%') {
            key += c;
        } else {
            key += '%';
            key += digits[byte >> 4];
            key += digits[byte & 15];
        }
    }
    return key;
}

namespace {

constexpr std::size_t HashedCharacters = 22;
constexpr int FailureInvalidKey = 1001;
constexpr int MostInOneChain = 16;

// The sum as Add takes it: characters outside 32 to 127 count nothing.
int HashForAdd(std::string_view upperKey) {
    int sum = 0;
    for (std::size_t i = 0, n = upperKey.size() % HashedCharacters; i < n; ++i)
        sum += HashChar[static_cast<std::uint8_t>(upperKey[i])];
    return sum;
}

bool StandsOn(const Symbol& symbol, int line, std::intptr_t view) {
    return symbol.SciWndData == view && LineOf(symbol) == line;
}

bool StandsBehind(const Symbol& symbol, const Symbol& other) {
    if (symbol.SciWndData != other.SciWndData) return false;
    const int line = LineOf(symbol);
    const int otherLine = LineOf(other);
    return line != otherLine ? line > otherLine : symbol.Column > other.Column;
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
    return hashTbl_.empty() ? 0 : hashTbl_[hashTbl_.size() == 1 ? 0 : static_cast<std::size_t>(hash)];
}

int clsHash::FindInChain(std::string_view upperKey, int hash) const {
    int slot = ChainOf(hash);
    while (slot != 0 && (Slot(slot).Hash != hash || Slot(slot).Key != upperKey)) slot = Slot(slot).NextItem;
    return slot;
}

bool clsHash::ExistsU(std::string_view upperKey, int hash) {
    const int slot = FindInChain(upperKey, hash);
    if (slot == 0) return false;
    FoundItem = Slot(slot).Value.get();
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
        const SlotType& entry = Slot(slot);
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
    return slot == 0 ? nullptr : Slot(slot).Value;
}

SymbolPointer clsHash::ItemHandle(std::string_view key, int line, std::intptr_t view, int skip) {
    const int slot =
        FindWhere(key, [&](const Symbol& symbol) { return StandsOn(symbol, line, view) && skip-- == 0; });
    return slot == 0 ? nullptr : Slot(slot).Value;
}

int clsHash::TakeSlot() {
    if (slotTable_.empty()) {
        hashTbl_.assign(1, 0);
        slotTable_.emplace_back();
    }
    if (++count_ > MostInOneChain && hashTbl_.size() == 1) Spread();
    if (freeHead_ != 0) {
        const int slot = freeHead_;
        freeHead_ = Slot(slot).NextItem;
        return slot;
    }
    // Slots that were never used follow one another, so the next one is simply the next.
    const int slot = static_cast<int>(slotTable_.size());
    if (slot > capacity_) capacity_ += chunkSize_;
    slotTable_.emplace_back();
    return slot;
}

// Hooks a slot in at the end of its chain.
void clsHash::Append(int slot) {
    int& head = Head(Slot(slot).Hash);
    Slot(slot).NextItem = 0;
    if (head == 0)
        head = slot;
    else
        Slot(Slot(head).ChainTail).NextItem = slot;
    Slot(head).ChainTail = slot;
}

// Gives every hash a chain of its own.
void clsHash::Spread() {
    int slot = hashTbl_[0];
    hashTbl_.assign(static_cast<std::size_t>(hashSize_), 0);
    while (slot != 0) {
        const int next = Slot(slot).NextItem;
        Append(slot);
        slot = next;
    }
}

// A filled slot that is not in a chain yet.
int clsHash::NewSlot(std::string_view key, SymbolPointer record) {
    if (key.empty()) throw Failure(FailureInvalidKey, "Invalid key");
    std::string upper = UCase(key);
    const int hash = HashForAdd(IgnoreCase ? std::string_view(upper) : key);
    ChainOf(hash); // refuses a hash outside the table
    const int slot = TakeSlot();
    Slot(slot).Key = std::move(upper);
    Slot(slot).Value = std::move(record);
    Slot(slot).Hash = hash;
    return slot;
}

void clsHash::Add(std::string_view key, SymbolPointer record) { Append(NewSlot(key, std::move(record))); }

void clsHash::AddInOrder(std::string_view key, SymbolPointer record) {
    const int slot = NewSlot(key, std::move(record));
    const SlotType& added = Slot(slot);
    int& head = Head(added.Hash);
    int previous = 0;
    int next = head;
    while (next != 0 && (Slot(next).Hash != added.Hash || Slot(next).Key != added.Key ||
                         !StandsBehind(*Slot(next).Value, *added.Value))) {
        previous = next;
        next = Slot(next).NextItem;
    }
    if (next == 0) return Append(slot);
    Slot(slot).NextItem = next;
    if (previous == 0) {
        Slot(slot).ChainTail = Slot(head).ChainTail;
        head = slot;
    } else {
        Slot(previous).NextItem = slot;
    }
}

template <class Match>
void clsHash::Unlink(std::string_view key, const char* operation, Match match) {
    if (key.empty()) return;
    Guarded(operation, "clsHash", [&] {
        const std::string upper = UCase(key);
        const int hash = HashOfUpper(upper);
        int previous = 0;
        int slot = ChainOf(hash);
        while (slot != 0 &&
               (Slot(slot).Hash != hash || Slot(slot).Key != upper || !match(*Slot(slot).Value))) {
            previous = slot;
            slot = Slot(slot).NextItem;
        }
        if (slot == 0) throw Failure(FailureMissingKey, "No such element");
        SlotType& entry = Slot(slot);
        int& head = Head(hash);
        if (previous == 0) {
            head = entry.NextItem;
            if (head != 0) Slot(head).ChainTail = entry.ChainTail;
        } else {
            Slot(previous).NextItem = entry.NextItem;
            if (Slot(head).ChainTail == slot) Slot(head).ChainTail = previous;
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

void clsHash::RemoveRecord(std::string_view key, const Symbol& record) {
    Unlink(key, "RemoveRecord", [&](const Symbol& symbol) { return &symbol == &record; });
}

// The live slots by hash, namesakes oldest first.
std::vector<int> clsHash::Ordered() const {
    std::vector<int> slots;
    slots.reserve(static_cast<std::size_t>(count_));
    for (int slot : hashTbl_)
        for (; slot != 0; slot = Slot(slot).NextItem) slots.push_back(slot);
    if (hashTbl_.size() == 1)
        std::stable_sort(slots.begin(), slots.end(),
                         [this](int a, int b) { return Slot(a).Hash < Slot(b).Hash; });
    return slots;
}

std::vector<std::string> clsHash::Keys() const {
    std::vector<std::string> keys;
    for (const int slot : Ordered()) keys.push_back(Slot(slot).Key);
    return keys;
}

std::vector<SymbolPointer> clsHash::Items() const {
    std::vector<SymbolPointer> items;
    for (const int slot : Ordered()) items.push_back(Slot(slot).Value);
    return items;
}
