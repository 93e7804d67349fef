// What a running program has open: files, folders and memory banks.
#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace blitz {

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

}
