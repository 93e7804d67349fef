// Brings a stored arrangement up to the present one: what the program learned since it was saved is added.
#include "host/qt/Layout.h"

#include <algorithm>
#include <set>

namespace {

template <class Record>
Record* Named(std::vector<Record>& records, const std::string& name) {
    const auto at = std::find_if(records.begin(), records.end(),
                                 [&](const Record& record) { return record.name == name; });
    return at == records.end() ? nullptr : &*at;
}

std::set<std::string> Placed(const Layout& layout) {
    std::set<std::string> names;
    for (const LayoutCommand& command : layout.commands)
        for (const LayoutEntry& entry : command.entries) names.insert(entry.command);
    for (const LayoutBar& bar : layout.bars)
        for (const LayoutEntry& entry : bar.entries) names.insert(entry.command);
    return names;
}

// Adds the present entries that stand nowhere in the stored arrangement, each behind its neighbour.
void AddEntries(const LayoutEntries& present, LayoutEntries& stored, const std::set<std::string>& placed) {
    for (auto entry = present.begin(); entry != present.end(); ++entry) {
        if (placed.count(entry->command) != 0) continue;
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

}

void AddWhatIsNew(const Layout& present, Layout& stored) {
    const std::set<std::string> placed = Placed(stored);
    for (const LayoutCommand& command : present.commands) {
        LayoutCommand* known = Named(stored.commands, command.name);
        if (!known) {
            stored.commands.push_back(command);
            continue;
        }
        // What a user cannot change follows the program; keys, marks and places follow the file.
        known->kind = command.kind;
        known->category = command.category;
        known->icon = command.icon;
        known->tip = command.tip;
        known->width = command.width;
        AddEntries(command.entries, known->entries, placed);
    }
    for (const LayoutBar& bar : present.bars) {
        if (LayoutBar* known = Named(stored.bars, bar.name))
            AddEntries(bar.entries, known->entries, placed);
        else
            stored.bars.push_back(bar);
    }
    for (const LayoutPane& pane : present.panes)
        if (!Named(stored.panes, pane.name)) stored.panes.push_back(pane);
    if (stored.start.empty()) stored.start = present.start;
}
