// The samples and the data tree: formats that the editor reads, and programs that check and run.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path sourceRoot = ZOLTO_SOURCE_ROOT;
const fs::path projectFolder = sourceRoot / "examples" / "DeepVein";

std::string fileBytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

// The lines of a file that has to have CR LF throughout.
std::vector<std::string> crlfLines(const fs::path& path) {
    const std::string bytes = fileBytes(path);
    std::vector<std::string> lines;
    for (std::size_t at = 0; at <= bytes.size();) {
        const std::size_t end = std::min(bytes.find("\r\n", at), bytes.size());
        lines.push_back(bytes.substr(at, end - at));
        EXPECT_EQ(lines.back().find_first_of("\r\n"), std::string::npos) << path << ", line " << lines.size();
        at = end + 2;
    }
    return lines;
}

std::string attribute(const std::string& line, const std::string& key) {
    const std::size_t at = line.find(" " + key + "=\"");
    if (at == std::string::npos) return "";
    const std::size_t start = at + key.size() + 3;
    return line.substr(start, line.find('"', start) - start);
}

std::string lowered(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// The members of the sample project, as paths.
std::vector<fs::path> members() {
    std::vector<fs::path> paths;
    for (const std::string& line : crlfLines(projectFolder / "DeepVein.zpf")) {
        std::string path = attribute(line, "AbsPath");
        if (!path.ends_with(".bb")) continue;
        std::replace(path.begin(), path.end(), '\\', '/');
        paths.push_back(projectFolder / path);
    }
    return paths;
}

// The line numbers of a block's lines that begin with `prefix`.
std::vector<std::size_t> numbersOf(const std::vector<std::string>& lines, const std::string& prefix) {
    std::vector<std::size_t> numbers;
    for (const std::string& line : lines)
        for (std::size_t at = 3; line.starts_with(prefix) && at < line.size();) {
            numbers.push_back(std::stoul(line.substr(at + 1), nullptr, 16));
            at = std::min(line.find('#', at + 1), line.size());
        }
    return numbers;
}

TEST(SampleProject, ListsItsFilesByNameAndEachOnce) {
    std::vector<std::string> names;
    for (const fs::path& path : members()) {
        EXPECT_TRUE(fs::exists(path)) << path;
        names.push_back(lowered(path.filename().string()));
    }
    EXPECT_GE(names.size(), 10u);
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
    EXPECT_EQ(std::set(names.begin(), names.end()).size(), names.size());
    std::size_t onDisk = 0;
    for (const auto& entry : fs::recursive_directory_iterator(projectFolder))
        onDisk += entry.path().extension() == ".bb";
    EXPECT_EQ(names.size(), onDisk);
}

TEST(SampleProject, EndsEachFileInAValidParameterBlock) {
    std::size_t folds = 0, bookmarks = 0;
    for (const fs::path& path : members()) {
        const std::vector<std::string> lines = crlfLines(path);
        EXPECT_EQ(lines.back(), ";~C#ZoltoBasic") << path;
        EXPECT_EQ(std::count(lines.begin(), lines.end(), ";~Zolto Editor Parameters:"), 1) << path;
        const auto foldLines = numbersOf(lines, ";~F"), bookmarkLines = numbersOf(lines, ";~B");
        for (std::size_t number : foldLines) {
            const std::string& line = lines.at(number);
            EXPECT_TRUE(line.starts_with("Function ") || line.starts_with("Type ") ||
                        line.starts_with(";[Block"))
                << path << " " << number;
        }
        for (std::size_t number : bookmarkLines)
            EXPECT_FALSE(lines.at(number).empty()) << path << " " << number;
        folds += foldLines.size();
        bookmarks += bookmarkLines.size();
    }
    EXPECT_GT(folds, 20u);
    EXPECT_GT(bookmarks, 3u);
}

TEST(DataTree, HotCodesReadBackInStep) {
    const std::string bytes = fileBytes(sourceRoot / "data/Conf/hotcodes.dat");
    ASSERT_TRUE(bytes.starts_with("1\r\n"));
    const std::size_t count = std::stoul(bytes.substr(3));
    std::set<std::string> codes;
    std::size_t at = bytes.find("\r\n", 3) + 2, values = 0;
    for (; at < bytes.size(); ++values) {
        ASSERT_EQ(bytes[at], '"') << "value " << values;
        const std::size_t end = bytes.find('"', at + 1);
        ASSERT_EQ(bytes.substr(end + 1, 2), "\r\n") << "value " << values;
        const std::string value = bytes.substr(at + 1, end - at - 1);
        EXPECT_FALSE(value.empty());
        if (values % 2 == 0) {
            EXPECT_TRUE(codes.insert(lowered(value)).second) << value;
            EXPECT_TRUE(
                std::all_of(value.begin(), value.end(), [](unsigned char c) { return std::isalnum(c); }));
        }
        at = end + 3;
    }
    EXPECT_EQ(values, 2 * count);
    EXPECT_LE(count, 50u);
}

TEST(DataTree, SnippetsAreTextWithCrLf) {
    std::size_t count = 0;
    for (const auto& entry : fs::recursive_directory_iterator(sourceRoot / "data/Snippets"))
        if (entry.path().extension() == ".bb") {
            EXPECT_EQ(crlfLines(entry.path()).back(), "") << entry.path();
            ++count;
        }
    EXPECT_GE(count, 10u);
}

#ifdef BLITZCC_FILE

std::string quoted(const fs::path& path) { return std::string(1, '"').append(path.string()).append(1, '"'); }

// What the compiler prints, with the exit status in `status`.
std::string outputOf(const std::string& arguments, int& status) {
    std::string command = quoted(BLITZCC_FILE);
    command.append(" ").append(arguments).append(" < /dev/null");
    std::FILE* pipe = popen(command.c_str(), "r");
    std::string output;
    char buffer[4096];
    for (std::size_t size; (size = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;)
        output.append(buffer, size);
    status = pclose(pipe);
    return output;
}

TEST(SampleProject, RunsToTheSameEndEveryTime) {
    int status = 0;
    const std::string program = quoted(projectFolder / "DeepVein.bb");
    const std::string output = outputOf(program, status);
    EXPECT_EQ(status, 0);
    EXPECT_NE(output.find("The books agree at"), std::string::npos) << output;
    EXPECT_EQ(output, outputOf(program, status));
    EXPECT_NE(output, outputOf(program + " -seed 7", status));
    // The editor takes a line with a colon for an error while a compile is in progress.
    const std::size_t start = output.find("=====");
    ASSERT_NE(start, std::string::npos);
    EXPECT_EQ(output.find(':', start), std::string::npos);
}

TEST(Samples, CheckAsTheirCommentsSay) {
    int status = 0;
    outputOf("-c " + quoted(sourceRoot / "examples/guess.bb"), status);
    EXPECT_EQ(status, 0);
    const std::string fault = outputOf("-c " + quoted(sourceRoot / "examples/faulty.bb"), status);
    EXPECT_NE(fault.find("faulty.bb\":14:"), std::string::npos) << fault;
}

#endif

}
