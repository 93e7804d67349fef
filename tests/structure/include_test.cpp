// The floors of src/: a file includes its own floor and lower ones, the toolkit stays in three places, and no
// two modules include each other. A header and its source count as one module.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

using Tree = std::map<std::string, std::string>; // path below src/ -> content

const std::vector<std::string> Floors{"host",      "sci",       "engine",    "editor",
                                      "documents", "toolchain", "workbench", "app"};

std::string FolderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

std::string ModuleOf(const std::string& path) { return path.substr(0, path.rfind('.')); }

int Height(const std::string& path) {
    const auto at = std::find(Floors.begin(), Floors.end(), path.substr(0, path.find('/')));
    return at == Floors.end() ? -1 : static_cast<int>(at - Floors.begin());
}

struct Include {
    std::string name;
    bool quoted;
};

std::vector<Include> IncludesOf(const std::string& content) {
    static const std::regex pattern(R"(^[ \t]*#[ \t]*include[ \t]*([<"])([^>"]+)[>"])");
    std::vector<Include> includes;
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);) {
        std::smatch match;
        if (std::regex_search(line, match, pattern)) includes.push_back({match[2], match[1] == "\""});
    }
    return includes;
}

// The file of the tree that an include means; empty for one from outside.
std::string Resolve(const Tree& tree, const std::string& from, const Include& include) {
    if (!include.quoted) return {};
    if (tree.count(include.name)) return include.name;
    const std::string beside = FolderOf(from) + "/" + include.name;
    return tree.count(beside) ? beside : std::string();
}

bool IsToolkit(const Include& include) {
    static const std::regex pattern("(^|/)(Q[A-Za-z0-9]+|q[a-z0-9_]+\\.h|Qsci/.*)$|^Qt[A-Za-z0-9]*/");
    return std::regex_search(include.name, pattern);
}

std::vector<std::string> FloorFaults(const Tree& tree) {
    std::vector<std::string> faults;
    for (const auto& [path, content] : tree) {
        const bool toolkitAllowed =
            path.starts_with("host/qt/") || path.starts_with("workbench/") || path.starts_with("app/");
        for (const Include& include : IncludesOf(content)) {
            const std::string target = Resolve(tree, path, include);
            const std::string fault = path + " includes " + include.name;
            if (target.empty()) {
                const bool generated = include.name.starts_with("moc_");
                if (include.quoted && !generated) faults.push_back(fault + ", which is not in src/");
                if (!include.quoted && IsToolkit(include) && !toolkitAllowed) faults.push_back(fault);
                continue;
            }
            // The platform's implementation stands on the two lowest floors, and on itself.
            const int height = path.starts_with("host/qt/") ? Height("sci/") : Height(path);
            if (Height(target) < 0 || Height(target) > height) faults.push_back(fault);
            if (target.starts_with("host/qt/") && !path.starts_with("host/qt/") && !path.starts_with("app/"))
                faults.push_back(fault);
        }
    }
    return faults;
}

using Graph = std::map<std::string, std::set<std::string>>;

Graph ModulesOf(const Tree& tree) {
    Graph graph;
    for (const auto& [path, content] : tree)
        for (const Include& include : IncludesOf(content)) {
            const std::string target = Resolve(tree, path, include);
            if (!target.empty() && ModuleOf(target) != ModuleOf(path))
                graph[ModuleOf(path)].insert(ModuleOf(target));
        }
    return graph;
}

// All that a module reaches by one include or more.
std::set<std::string> Reached(const Graph& graph, const std::string& module) {
    std::set<std::string> reached;
    std::vector<std::string> open{module};
    while (!open.empty()) {
        const auto at = graph.find(open.back());
        open.pop_back();
        if (at == graph.end()) continue;
        for (const std::string& next : at->second)
            if (reached.insert(next).second) open.push_back(next);
    }
    return reached;
}

// The groups of modules that include each other, each as its names in order, divided by blanks.
std::set<std::string> Circles(const Tree& tree) {
    const Graph graph = ModulesOf(tree);
    std::map<std::string, std::set<std::string>> reached;
    for (const auto& entry : graph) reached[entry.first] = Reached(graph, entry.first);
    std::set<std::string> circles;
    for (const auto& [module, others] : reached) {
        if (!others.count(module)) continue;
        std::string circle;
        for (const std::string& other : others)
            if (reached[other].count(module)) circle += (circle.empty() ? "" : " ") + other;
        circles.insert(circle);
    }
    return circles;
}

Tree ReadTree(const fs::path& root) {
    Tree tree;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
        std::ostringstream content;
        content << std::ifstream(entry.path(), std::ios::binary).rdbuf();
        tree[fs::relative(entry.path(), root).generic_string()] = content.str();
    }
    return tree;
}

struct SourceTreeTest : testing::Test {
    Tree tree = ReadTree(fs::path(ZOLTO_SOURCE_ROOT) / "src");
};

TEST_F(SourceTreeTest, EveryFileStandsOnAFloor) {
    ASSERT_GT(tree.size(), 100u);
    for (const auto& entry : tree) EXPECT_GE(Height(entry.first), 0) << entry.first;
}

TEST_F(SourceTreeTest, NoFileIncludesAHigherFloorOrTheToolkitOutOfItsPlace) {
    for (const std::string& fault : FloorFaults(tree)) ADD_FAILURE() << fault;
}

TEST_F(SourceTreeTest, NoModulesIncludeEachOther) { EXPECT_EQ(Circles(tree), std::set<std::string>{}); }

// The checks find what they are there for.
TEST(IncludeCheckTest, FaultsAreFound) {
    const Tree clean{{"host/Files.h", "#include <string>\n"},
                     {"host/qt/QtFiles.h", "#include \"host/Files.h\"\n#include <QFile>\n"},
                     {"engine/Lexer.h", ""},
                     {"engine/Lexer.cpp", "#include \"engine/Lexer.h\"\n#include \"host/Files.h\"\n"},
                     {"app/main.cpp", "#include \"host/qt/QtFiles.h\"\n#include <QtWidgets/QLabel>\n"}};
    EXPECT_EQ(FloorFaults(clean), std::vector<std::string>{});
    const auto faultsWith = [&](const std::string& path, const std::string& line) {
        Tree tree = clean;
        tree[path] += line;
        return FloorFaults(tree).size();
    };
    EXPECT_EQ(faultsWith("host/Files.h", "  #  include \"engine/Lexer.h\"\n"), 1u);
    EXPECT_EQ(faultsWith("host/qt/QtFiles.h", "#include \"engine/Lexer.h\"\n"), 1u);
    EXPECT_EQ(faultsWith("engine/Lexer.cpp", "#include \"host/qt/QtFiles.h\"\n"), 1u);
    EXPECT_EQ(faultsWith("engine/Lexer.cpp", "#include \"../tools/x.h\"\n"), 1u);
    for (const char* name : {"<QString>", "<QtCore/QString>", "<qglobal.h>", "<Qsci/qsciscintillabase.h>"})
        EXPECT_EQ(faultsWith("engine/Lexer.h", std::string("#include ") + name + "\n"), 1u) << name;
}

TEST(IncludeCheckTest, CirclesAreFound) {
    Tree tree{{"a/One.h", "#include \"a/Two.h\"\n"},
              {"a/Two.h", "#include \"a/Three.h\"\n"},
              {"a/Three.h", ""},
              {"a/Three.cpp", "#include \"a/Three.h\"\n"},
              {"a/Root.h", "#include \"a/One.h\"\n"}};
    EXPECT_EQ(Circles(tree), std::set<std::string>{});
    tree["a/Three.cpp"] += "#include \"a/One.h\"\n"; // the headers alone have no circle
    tree["b/X.h"] = "#include \"b/Y.h\"\n";
    tree["b/Y.cpp"] = "#include \"b/X.h\"\n#include \"a/One.h\"\n";
    tree["b/Y.h"] = "";
    EXPECT_EQ(Circles(tree), (std::set<std::string>{"a/One a/Three a/Two", "b/X b/Y"}));
}

}
