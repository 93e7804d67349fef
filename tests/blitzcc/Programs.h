// Helpers of the tests: a folder for a program's files, and what checking and running it gives.
// Sources are written to disk, as the compiler reads them from there.
#pragma once

#include "Driver.h"
#include "natives/Natives.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdlib.h>

namespace blitz::test {

/// A folder of its own for each test, removed with all its files at the end.
class ProgramTest : public ::testing::Test {
protected:
    ProgramTest() {
        char name[] = "/tmp/blitzcc-test-XXXXXX";
        folder_ = mkdtemp(name);
    }
    ~ProgramTest() override {
        std::filesystem::current_path("/"); // a program may have gone into the folder
        std::filesystem::remove_all(folder_);
    }

    /// Writes a file of the program and gives its path.
    std::string put(const std::string& name, const std::string& text) const {
        const std::string path = folder_ + "/" + name;
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << text;
        return path;
    }

    std::string get(const std::string& name) const {
        std::ifstream in(folder_ + "/" + name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    /// "" when the program checks clean, else "file:line: message" with the file's plain name.
    std::string check(const std::string& text) const {
        put("main.bb", text);
        Sources sources;
        std::string reason;
        if (!sources.loadMain(folder_ + "/main.bb", reason)) return reason;
        try {
            compile(sources, folder_ + "/userlibs");
            return {};
        } catch (const CompileError& error) {
            last_ = error;
            const std::filesystem::path path = sources.files().at(error.pos.file).path;
            return path.filename().string() + ":" + std::to_string(error.pos.line) + ": " + error.message;
        }
    }

    /// What the program prints, lines ended by LF; an error ends it as "line n: message".
    std::string run(const std::string& text, const RunOptions& options = {}) const {
        put("main.bb", text);
        Sources sources;
        std::string reason;
        if (!sources.loadMain(folder_ + "/main.bb", reason)) return reason;
        Output output(-1);
        std::string ending;
        try {
            const Code code = compile(sources, folder_ + "/userlibs");
            Machine(code, output, options, allNatives()).run();
        } catch (const CompileError& error) {
            ending = "compile error, line " + std::to_string(error.pos.line) + ": " + error.message;
        } catch (const RuntimeError& error) {
            ending = "line " + std::to_string(error.line) + ": " + error.message;
        }
        std::string printed = output.collected();
        for (size_t at = 0; (at = printed.find("\r\n", at)) != std::string::npos;) printed.erase(at, 1);
        return printed + ending;
    }

    std::string folder_;
    mutable CompileError last_;
};

}
