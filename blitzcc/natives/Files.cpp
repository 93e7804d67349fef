// The commands on open files.
// Names are found without regard to case; numbers are little endian.
#include "natives/Natives.h"

#include "parse/Sources.h"

#include <cstring>
#include <filesystem>

namespace blitz {

OpenFile& openFile(Machine& machine, int32_t handle) {
    const auto entry = machine.files().files.find(handle);
    if (entry == machine.files().files.end()) fault("File handle is not valid");
    return entry->second;
}

namespace {

using Args = const Value*;

Value opened(Machine& m, const std::string& name, const char* mode) {
    const std::string path = targetPath(name);
    std::error_code error;
    if (std::filesystem::is_directory(path, error)) return intValue(0);
    std::FILE* const stream = std::fopen(path.c_str(), mode);
    if (!stream) return intValue(0);
    FileStore& store = m.files();
    store.files[++store.lastHandle].stream = stream;
    return intValue(store.lastHandle);
}

Value fileRead(Machine& m, Args a, size_t) { return opened(m, Machine::text(a[0]), "rb"); }
Value fileWrite(Machine& m, Args a, size_t) { return opened(m, Machine::text(a[0]), "wb"); }
Value fileOpen(Machine& m, Args a, size_t) { return opened(m, Machine::text(a[0]), "r+b"); }

Value fileClose(Machine& m, Args a, size_t) {
    std::fclose(openFile(m, a[0].integer).stream);
    m.files().files.erase(a[0].integer);
    return intValue(0);
}

// The stream of a handle; between reading and writing it must be positioned anew.
std::FILE* streamFor(Machine& m, int32_t handle, int use) {
    OpenFile& file = openFile(m, handle);
    if (file.lastUse != 0 && file.lastUse != use) std::fseek(file.stream, 0, SEEK_CUR);
    file.lastUse = use;
    return file.stream;
}

template <typename T>
T get(Machine& m, Args a) {
    T value{};
    if (std::fread(&value, sizeof value, 1, streamFor(m, a[0].integer, 'r')) != 1) value = {};
    return value;
}

template <typename T>
Value put(Machine& m, Args a, T value) {
    std::fwrite(&value, sizeof value, 1, streamFor(m, a[0].integer, 'w'));
    return intValue(0);
}

Value readByte(Machine& m, Args a, size_t) { return intValue(get<uint8_t>(m, a)); }
Value readShort(Machine& m, Args a, size_t) { return intValue(get<uint16_t>(m, a)); }
Value readInt(Machine& m, Args a, size_t) { return intValue(get<int32_t>(m, a)); }
Value readFloat(Machine& m, Args a, size_t) { return floatValue(get<float>(m, a)); }
Value writeByte(Machine& m, Args a, size_t) { return put(m, a, static_cast<uint8_t>(a[1].integer)); }
Value writeShort(Machine& m, Args a, size_t) { return put(m, a, static_cast<uint16_t>(a[1].integer)); }
Value writeInt(Machine& m, Args a, size_t) { return put(m, a, a[1].integer); }
Value writeFloat(Machine& m, Args a, size_t) { return put(m, a, a[1].real); }

Value readLine(Machine& m, Args a, size_t) {
    std::FILE* const stream = streamFor(m, a[0].integer, 'r');
    std::string line;
    for (int c = std::fgetc(stream); c != EOF && c != '\n'; c = std::fgetc(stream))
        if (c != '\r') line.push_back(static_cast<char>(c));
    return m.makeString(std::move(line));
}

Value writeLine(Machine& m, Args a, size_t) {
    const std::string line = Machine::text(a[1]) + "\r\n";
    std::fwrite(line.data(), 1, line.size(), streamFor(m, a[0].integer, 'w'));
    return intValue(0);
}

Value readString(Machine& m, Args a, size_t) {
    const auto length = get<int32_t>(m, a);
    if (length < 0 || length > (1 << 28)) fault("The file holds no string here");
    std::string text;
    char part[4096];
    for (auto left = static_cast<size_t>(length); left > 0;) {
        const size_t count =
            std::fread(part, 1, std::min(left, sizeof part), openFile(m, a[0].integer).stream);
        if (count == 0) break;
        text.append(part, count);
        left -= count;
    }
    return m.makeString(std::move(text));
}

Value writeString(Machine& m, Args a, size_t) {
    const std::string& text = Machine::text(a[1]);
    put(m, a, static_cast<int32_t>(text.size()));
    std::fwrite(text.data(), 1, text.size(), openFile(m, a[0].integer).stream);
    return intValue(0);
}

Value fileEof(Machine& m, Args a, size_t) {
    std::FILE* const stream = streamFor(m, a[0].integer, 'r');
    const int c = std::fgetc(stream);
    if (c == EOF) return intValue(1);
    std::ungetc(c, stream);
    return intValue(0);
}

Value fileAvail(Machine& m, Args a, size_t) {
    std::FILE* const stream = streamFor(m, a[0].integer, 'r');
    const long at = std::ftell(stream);
    std::fseek(stream, 0, SEEK_END);
    const long size = std::ftell(stream);
    std::fseek(stream, at, SEEK_SET);
    return intValue(static_cast<int32_t>(size - at));
}

Value filePos(Machine& m, Args a, size_t) {
    return intValue(static_cast<int32_t>(std::ftell(openFile(m, a[0].integer).stream)));
}

Value fileSeek(Machine& m, Args a, size_t) {
    OpenFile& file = openFile(m, a[0].integer);
    std::fseek(file.stream, a[1].integer, SEEK_SET);
    file.lastUse = 0;
    return intValue(a[1].integer);
}

constexpr NativeEntry entries[] = {
    {"ReadFile", fileRead},       {"WriteFile", fileWrite}, {"OpenFile", fileOpen},
    {"CloseFile", fileClose},     {"ReadByte", readByte},   {"ReadShort", readShort},
    {"ReadInt", readInt},         {"ReadFloat", readFloat}, {"WriteByte", writeByte},
    {"WriteShort", writeShort},   {"WriteInt", writeInt},   {"WriteFloat", writeFloat},
    {"ReadLine", readLine},       {"WriteLine", writeLine}, {"ReadString", readString},
    {"WriteString", writeString}, {"Eof", fileEof},         {"ReadAvail", fileAvail},
    {"FilePos", filePos},         {"SeekFile", fileSeek},
};

}

NativeTable fileNatives() { return {entries, std::size(entries)}; }

}
