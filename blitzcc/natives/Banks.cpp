// The commands on memory banks.
// Every access is checked against the bank's size; numbers are little endian.
#include "natives/Natives.h"

#include <algorithm>
#include <cstring>

namespace blitz {
namespace {

using Args = const Value*;

std::vector<uint8_t>& bank(Machine& m, int32_t handle) {
    const auto entry = m.banks().banks.find(handle);
    if (entry == m.banks().banks.end()) fault("Bank does not exist");
    return entry->second;
}

size_t checkedSize(int32_t size) {
    if (size < 0 || size > (1 << 30)) fault("Illegal size of a bank");
    return static_cast<size_t>(size);
}

template <typename T>
T peek(Machine& m, Args a) {
    T value;
    std::memcpy(&value, bankBytes(m, a[0].integer, a[1].integer, sizeof value), sizeof value);
    return value;
}

template <typename T>
Value poke(Machine& m, Args a, T value) {
    std::memcpy(bankBytes(m, a[0].integer, a[1].integer, sizeof value), &value, sizeof value);
    return intValue(0);
}

Value bankCreate(Machine& m, Args a, size_t) {
    BankStore& store = m.banks();
    store.banks[++store.lastHandle].resize(checkedSize(a[0].integer));
    return intValue(store.lastHandle);
}

Value bankFree(Machine& m, Args a, size_t) {
    bank(m, a[0].integer);
    m.banks().banks.erase(a[0].integer);
    return intValue(0);
}

Value bankResize(Machine& m, Args a, size_t) {
    bank(m, a[0].integer).resize(checkedSize(a[1].integer));
    return intValue(0);
}

Value bankSize(Machine& m, Args a, size_t) {
    return intValue(static_cast<int32_t>(bank(m, a[0].integer).size()));
}

Value bankCopy(Machine& m, Args a, size_t) {
    const uint8_t* const from = bankBytes(m, a[0].integer, a[1].integer, a[4].integer);
    uint8_t* const to = bankBytes(m, a[2].integer, a[3].integer, a[4].integer);
    std::memmove(to, from, static_cast<size_t>(a[4].integer));
    return intValue(0);
}

Value peekByte(Machine& m, Args a, size_t) { return intValue(peek<uint8_t>(m, a)); }
Value peekShort(Machine& m, Args a, size_t) { return intValue(peek<uint16_t>(m, a)); }
Value peekInt(Machine& m, Args a, size_t) { return intValue(peek<int32_t>(m, a)); }
Value peekFloat(Machine& m, Args a, size_t) { return floatValue(peek<float>(m, a)); }
Value pokeByte(Machine& m, Args a, size_t) { return poke(m, a, static_cast<uint8_t>(a[2].integer)); }
Value pokeShort(Machine& m, Args a, size_t) { return poke(m, a, static_cast<uint16_t>(a[2].integer)); }
Value pokeInt(Machine& m, Args a, size_t) { return poke(m, a, a[2].integer); }
Value pokeFloat(Machine& m, Args a, size_t) { return poke(m, a, a[2].real); }

Value bankRead(Machine& m, Args a, size_t) {
    uint8_t* const to = bankBytes(m, a[0].integer, a[2].integer, a[3].integer);
    std::FILE* const stream = openFile(m, a[1].integer).stream;
    return intValue(static_cast<int32_t>(std::fread(to, 1, static_cast<size_t>(a[3].integer), stream)));
}

Value bankWrite(Machine& m, Args a, size_t) {
    const uint8_t* const from = bankBytes(m, a[0].integer, a[2].integer, a[3].integer);
    std::FILE* const stream = openFile(m, a[1].integer).stream;
    return intValue(static_cast<int32_t>(std::fwrite(from, 1, static_cast<size_t>(a[3].integer), stream)));
}

constexpr NativeEntry entries[] = {
    {"CreateBank", bankCreate}, {"FreeBank", bankFree},  {"ResizeBank", bankResize}, {"BankSize", bankSize},
    {"CopyBank", bankCopy},     {"PeekByte", peekByte},  {"PeekShort", peekShort},   {"PeekInt", peekInt},
    {"PeekFloat", peekFloat},   {"PokeByte", pokeByte},  {"PokeShort", pokeShort},   {"PokeInt", pokeInt},
    {"PokeFloat", pokeFloat},   {"ReadBytes", bankRead}, {"WriteBytes", bankWrite},
};

}

uint8_t* bankBytes(Machine& machine, int32_t handle, int32_t offset, int32_t count) {
    std::vector<uint8_t>& bytes = bank(machine, handle);
    if (offset < 0 || count < 0 || int64_t{offset} + count > static_cast<int64_t>(bytes.size()))
        fault("Offset out of the range of the bank");
    return bytes.data() + offset;
}

NativeTable bankNatives() { return {entries, std::size(entries)}; }

}
