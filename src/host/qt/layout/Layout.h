// An arrangement of the main window as in a layout file: commands, bars, panes and their places.
#pragma once

#include "host/qt/layout/LayoutDocuments.h"

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
    std::string keysFrom = {};        // an older command whose keys it takes over where it is new
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
    std::string tabbedWith = {}; // a pane of the same area that it shares a tab bar with
    bool autoHidden = false;     // rolled away to the edge of its area
    int extent = 0;              // pixels that it takes of the window; 0: as it needs
    bool operator==(const LayoutPane&) const = default;
};

struct Layout {
    std::vector<LayoutCommand> commands;
    std::vector<LayoutBar> bars;
    std::vector<LayoutPane> panes;
    std::vector<std::string> start;   // commands offered while no document is open
    std::vector<std::string> offered; // commands that the program's own arrangement had a place for
    LayoutDocuments documents;
    std::string windowState; // the toolkit's own record of sizes and places, base64
    bool operator==(const Layout&) const = default;
};

// Reads an arrangement whole. Throws a Failure that names what is wrong with it.
Layout ParseLayout(std::string_view bytes);
std::string WriteLayout(const Layout& layout);

// Returns the commands of a bar or pop-up, each once.
std::vector<std::string> PlacedCommands(const Layout& layout);
// Adds to a stored arrangement what the factory's has and it does not know: commands, bars and panes that
// are newer than the file. So an arrangement of an older version of the program keeps working, and what the
// user took away stays away. What the factory's had a place for and has no longer leaves the stored one,
// once.
void AddWhatIsNew(const Layout& factory, Layout& stored);
