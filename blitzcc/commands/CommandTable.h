// The commands of the language with their parameters and results.
// The tables in commands/ are the only source: the vocabulary, the checker and the runner read them.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace blitz {

/// The kind of a parameter or result, as its mark says: % # $.
enum class ValueKind : uint8_t { Int, Float, String };

struct Command {
    std::string name;            // without the mark of its result
    std::string_view definition; // as in the table
    std::vector<ValueKind> parameters;
    size_t required = 0; // parameters without those that may be left out
    ValueKind result = ValueKind::Int;
    bool hasResult = false;
};

/// A flat table of definitions such as "Left$ (string$,count%)" or "Print [string$]".
struct DefinitionTable {
    const char* const* definitions;
    size_t count;
};

/// Takes a definition apart. Brackets round all parameters tell that the command has a result.
Command parseDefinition(std::string_view definition);

class CommandTable {
public:
    /// The commands of all tables; made at the first call.
    static const CommandTable& instance();

    /// The index of a command by its name in lower case, or -1.
    int find(const std::string& lowered) const;
    const std::vector<Command>& commands() const { return commands_; }

private:
    CommandTable();

    std::vector<Command> commands_;
    std::unordered_map<std::string, int> byName_;
};

/// The vocabulary: reserved words and commands, one definition a line with CR LF.
std::string vocabulary();

DefinitionTable coreCommands();
DefinitionTable fileCommands();
DefinitionTable inputCommands();
DefinitionTable networkCommands();
DefinitionTable graphicsCommands();
DefinitionTable soundCommands();
DefinitionTable sceneCommands();
DefinitionTable meshCommands();
DefinitionTable windowCommands();
DefinitionTable systemCommands();

}
