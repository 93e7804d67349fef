// Brings a stored arrangement up to the present one: what the program learned since it was saved is added.
#include "host/qt/layout/Layout.h"

#include <algorithm>
#include <set>

namespace {

template <class Record>
Record* Named(std::vector<Record>& records, const std::string& name) {
    const auto at = std::find_if(records.begin(), records.end(),
                                 [&](const Record& record) { return record.name == name; });
    return at == records.end() ? nullptr : &*at;
}

// Adds the factory's entries that the stored arrangement was never offered, each after its neighbour.
void AddEntries(const LayoutEntries& present, LayoutEntries& stored, const std::set<std::string>& offered) {
    for (auto entry = present.begin(); entry != present.end(); ++entry) {
        if (offered.count(entry->command) != 0) continue;
        auto place = stored.end();
        for (auto before = entry; before != present.begin();) {
            --before;
            const auto at = std::find_if(stored.begin(), stored.end(), [&](const LayoutEntry& other) {
                return other.command == before->command;
            });
            if (at == stored.end()) continue;
            place = at + 1;
            break;
        }
        if (entry == present.begin()) place = stored.begin();
        stored.insert(place, *entry);
    }
}

// The keys that a new command takes over go from the one that had them.
void TakeKeys(const LayoutCommand& added, Layout& stored) {
    LayoutCommand* from = Named(stored.commands, added.keysFrom);
    if (!from) return;
    std::erase_if(from->shortcuts, [&](const std::string& key) {
        return std::find(added.shortcuts.begin(), added.shortcuts.end(), key) != added.shortcuts.end();
    });
}

// A place that the program itself gave a command, and gives it no longer.
void RemoveWithdrawn(const Layout& factory, Layout& stored) {
    std::set<std::string> withdrawn(stored.offered.begin(), stored.offered.end());
    for (const std::string& name : PlacedCommands(factory)) withdrawn.erase(name);
    const auto remove = [&](LayoutEntries& entries) {
        std::erase_if(entries, [&](const LayoutEntry& entry) { return withdrawn.count(entry.command) != 0; });
    };
    for (LayoutCommand& command : stored.commands) remove(command.entries);
    for (LayoutBar& bar : stored.bars) remove(bar.entries);
}

// A key that the user gave to another command stays with that one.
void DropTakenKeys(LayoutCommand& added, const Layout& stored) {
    std::erase_if(added.shortcuts, [&](const std::string& key) {
        return std::any_of(stored.commands.begin(), stored.commands.end(), [&](const LayoutCommand& other) {
            return std::find(other.shortcuts.begin(), other.shortcuts.end(), key) != other.shortcuts.end();
        });
    });
}

}

std::vector<std::string> PlacedCommands(const Layout& layout) {
    std::set<std::string> names;
    for (const LayoutCommand& command : layout.commands)
        for (const LayoutEntry& entry : command.entries) names.insert(entry.command);
    for (const LayoutBar& bar : layout.bars)
        for (const LayoutEntry& entry : bar.entries) names.insert(entry.command);
    return {names.begin(), names.end()};
}

void AddWhatIsNew(const Layout& factory, Layout& stored) {
    RemoveWithdrawn(factory, stored);
    std::set<std::string> offered(stored.offered.begin(), stored.offered.end());
    for (const std::string& name : PlacedCommands(stored)) offered.insert(name);
    for (const LayoutCommand& command : factory.commands) {
        LayoutCommand* known = Named(stored.commands, command.name);
        if (!known) {
            LayoutCommand added = command;
            TakeKeys(added, stored);
            DropTakenKeys(added, stored);
            stored.commands.push_back(std::move(added));
            continue;
        }
        // What a user cannot change follows the program; keys, marks and places follow the file.
        known->kind = command.kind;
        known->category = command.category;
        known->icon = command.icon;
        known->tip = command.tip;
        known->width = command.width;
        AddEntries(command.entries, known->entries, offered);
    }
    for (const LayoutBar& bar : factory.bars) {
        if (LayoutBar* known = Named(stored.bars, bar.name))
            AddEntries(bar.entries, known->entries, offered);
        else
            stored.bars.push_back(bar);
    }
    for (const LayoutPane& pane : factory.panes)
        if (!Named(stored.panes, pane.name)) stored.panes.push_back(pane);
    if (stored.start.empty()) stored.start = factory.start;
    stored.offered = PlacedCommands(factory);
}
