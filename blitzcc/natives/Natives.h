// The commands that the runner can carry out, by name.
// A command without an entry here ends the program with a message.
#pragma once

#include "machine/Machine.h"

#include <cstdio>
#include <optional>

namespace blitz {

struct NativeEntry {
    const char* name;
    Native function;
};

struct NativeTable {
    const NativeEntry* entries;
    size_t count;
};

NativeTable textNatives();
NativeTable mathNatives();
NativeTable systemNatives();
NativeTable fileNatives();
NativeTable folderNatives();
NativeTable bankNatives();

/// An open file of the program.
struct OpenFile {
    std::FILE* stream = nullptr;
    int lastUse = 0; // 'r' or 'w': a switch between them needs a seek
};

/// The open files and folders by the handles that the program holds.
struct FileStore {
    std::map<int32_t, OpenFile> files;
    struct Folder {
        std::vector<std::string> names;
        size_t next = 0;
    };
    std::map<int32_t, Folder> folders;
    int32_t lastHandle = 0;

    FileStore() = default;
    FileStore(const FileStore&) = delete;
    FileStore& operator=(const FileStore&) = delete;
    ~FileStore();
};

/// The memory banks by the handles that the program holds.
struct BankStore {
    std::map<int32_t, std::vector<uint8_t>> banks;
    int32_t lastHandle = 0;
};

/// Values of the kinds that commands return.
inline Value intValue(int32_t integer) {
    Value value{};
    value.integer = integer;
    return value;
}
inline Value floatValue(float real) {
    Value value{};
    value.real = real;
    return value;
}

/// The open file of a handle. Throws Fault.
OpenFile& openFile(Machine& machine, int32_t handle);
/// The bytes of a bank from offset on, count of them. Throws Fault when they are not all in it.
uint8_t* bankBytes(Machine& machine, int32_t handle, int32_t offset, int32_t count);

}
