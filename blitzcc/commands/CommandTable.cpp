// Joins the tables of commands and takes their definitions apart.
// A parameter ends with its mark; those within square brackets may be left out.
#include "commands/CommandTable.h"

#include "parse/Tokens.h"

namespace blitz {

Command parseDefinition(std::string_view definition) {
    Command command;
    command.definition = definition;
    const size_t blank = definition.find(' ');
    std::string_view name = definition.substr(0, blank);
    if (name.back() == '#') command.result = ValueKind::Float;
    if (name.back() == '$') command.result = ValueKind::String;
    if (name.back() == '#' || name.back() == '$') name.remove_suffix(1);
    command.name = name;
    if (blank == std::string_view::npos) return command;
    command.hasResult = definition[blank + 1] == '(';
    bool optional = false;
    for (const char c : definition.substr(blank + 1)) {
        if (c == '[') optional = true;
        if (c == ']') optional = false;
        if (c != '%' && c != '#' && c != '$') continue;
        command.parameters.push_back(c == '%'   ? ValueKind::Int
                                     : c == '#' ? ValueKind::Float
                                                : ValueKind::String);
        if (!optional) command.required = command.parameters.size();
    }
    return command;
}

const CommandTable& CommandTable::instance() {
    static const CommandTable table;
    return table;
}

CommandTable::CommandTable() {
    for (const DefinitionTable& table :
         {coreCommands(), fileCommands(), inputCommands(), networkCommands(), graphicsCommands(),
          soundCommands(), sceneCommands(), meshCommands(), windowCommands(), systemCommands()}) {
        for (size_t i = 0; i < table.count; ++i) {
            commands_.push_back(parseDefinition(table.definitions[i]));
            byName_.emplace(lowerText(commands_.back().name), static_cast<int>(commands_.size()) - 1);
        }
    }
}

int CommandTable::find(const std::string& lowered) const {
    const auto entry = byName_.find(lowered);
    return entry == byName_.end() ? -1 : entry->second;
}

std::string vocabulary() {
    std::string text;
    for (const ReservedWord& word : reservedWords()) {
        text += word.name;
        // These are reserved words, yet they read like commands.
        if (word.token == Tok::KwAbs || word.token == Tok::KwSgn) text += " (value#)";
        if (word.token == Tok::KwStr) text += "$ (value$)";
        text += "\r\n";
    }
    for (const Command& command : CommandTable::instance().commands()) {
        text += command.definition;
        text += "\r\n";
    }
    return text;
}

}
