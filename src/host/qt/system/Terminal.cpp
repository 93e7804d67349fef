// Terminal programs, which differ in how they receive a command.
#include "host/qt/system/Terminal.h"

#include "host/qt/system/CommandText.h"
#include "host/qt/system/QtText.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <cstdlib>

namespace {

struct TerminalRow {
    const char* name;
    const char* option; // precedes the command; empty for none
};

// In the order in which they are tried. What is not named here takes "-e", as xterm does.
constexpr TerminalRow Terminals[] = {
    {"x-terminal-emulator", "-e"},
    {"xdg-terminal-exec", ""},
    {"gnome-terminal", "--"},
    {"kgx", "--"},
    {"ptyxis", "--"},
    {"konsole", "-e"},
    {"xfce4-terminal", "-x"},
    {"mate-terminal", "-x"},
    {"terminator", "-x"},
    {"lxterminal", "-e"},
    {"qterminal", "-e"},
    {"tilix", "-e"},
    {"alacritty", "-e"},
    {"kitty", ""},
    {"foot", ""},
    {"wezterm", "-e"},
    {"urxvt", "-e"},
    {"st", "-e"},
    {"xterm", "-e"},
};

const char* OptionOf(const QString& name) {
    for (const TerminalRow& row : Terminals)
        if (name == row.name) return row.option;
    return "-e";
}

std::vector<std::string> WithOption(std::vector<std::string> terminal) {
    const char* option = OptionOf(QFileInfo(PathText(terminal.front())).fileName());
    if (*option != '\0') terminal.emplace_back(option);
    return terminal;
}

}

std::vector<std::string> FindTerminal() {
    if (const char* own = std::getenv("TERMINAL")) {
        std::vector<std::string> terminal = SplitCommand(own);
        if (!terminal.empty() && !QStandardPaths::findExecutable(PathText(terminal.front())).isEmpty())
            return WithOption(std::move(terminal));
    }
    for (const TerminalRow& row : Terminals)
        if (!QStandardPaths::findExecutable(row.name).isEmpty()) return WithOption({row.name});
    return {};
}

std::vector<std::string> InTerminal(std::vector<std::string> terminal,
                                    const std::vector<std::string>& arguments) {
    for (const char* word :
         {"sh", "-c", "\"$@\"; printf '\\nPress Enter to close this window.'; read -r line", "sh"})
        terminal.emplace_back(word);
    terminal.insert(terminal.end(), arguments.begin(), arguments.end());
    return terminal;
}
