// An arrangement of the main window as it stands in a layout file: commands, bars, panes and where they are.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

enum class CommandKind { Item, Popup, Combo, EditCombo, List, Windows, Status, Progress, Clock };

// One place in a bar or a pop-up.
struct LayoutEntry {
    std::string command;
    bool beginGroup = false;
    bool operator==(const LayoutEntry&) const = default;
};
using LayoutEntries = std::vector<LayoutEntry>;

struct LayoutCommand {
    std::string name;
    CommandKind kind = CommandKind::Item;
    std::string caption = {};
    std::string category = {};
    std::string icon = {}; // name in the icon theme
    std::string tip = {};
    std::vector<std::string> shortcuts = {};
    std::optional<bool> checked = {}; // set for what has a check mark
    bool visible = true;
    int width = 0;              // pixels of a combo or a status pane; 0: by its content
    LayoutEntries entries = {}; // of a pop-up
    bool operator==(const LayoutCommand&) const = default;
};

enum class BarKind { Menu, Tool, Status };

struct LayoutBar {
    std::string name;
    BarKind kind = BarKind::Tool;
    std::string caption = {};
    bool visible = true;
    LayoutEntries entries = {};
    bool operator==(const LayoutBar&) const = default;
};

struct LayoutPane {
    std::string name;
    std::string caption = {};
    std::string icon = {};
    std::string area = "bottom"; // left, right, top or bottom
    bool visible = true;
    bool operator==(const LayoutPane&) const = default;
};

struct Layout {
    std::vector<LayoutCommand> commands;
    std::vector<LayoutBar> bars;
    std::vector<LayoutPane> panes;
    std::vector<std::string> start; // commands offered while no document is open
    std::string windowState;        // the toolkit's own record of sizes and places, base64
    bool operator==(const Layout&) const = default;
};

// Reads an arrangement whole. Throws a Failure that names what is wrong with it.
Layout ParseLayout(std::string_view bytes);
std::string WriteLayout(const Layout& layout);

// Adds to a stored arrangement what the present one has and it does not know: commands, bars and panes that
// are newer than the file. So an arrangement of an older version of the program keeps working.
void AddWhatIsNew(const Layout& present, Layout& stored);
