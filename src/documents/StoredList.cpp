// A list of texts in a section of the settings store.
#include "documents/StoredList.h"

#include "host/Host.h"
#include "host/SettingsStore.h"

#include <algorithm>

namespace {

// No stored text, for it could not be typed or be a path.
const std::string Missing("\0missing", 8);

} // namespace

std::vector<std::string> ReadStoredList(const std::string& section) {
    std::vector<std::string> entries;
    for (;;) {
        std::string text = gHost.settings->Get(section, std::to_string(entries.size() + 1), Missing);
        if (text == Missing) return entries;
        entries.push_back(std::move(text));
    }
}

void WriteStoredList(const std::string& section, const std::vector<std::string>& entries) {
    const std::vector<std::string> before = ReadStoredList(section);
    for (std::size_t i = 0; i < std::max(before.size(), entries.size()); ++i) {
        const std::string key = std::to_string(i + 1);
        if (i >= entries.size())
            gHost.settings->Delete(section, key);
        else if (i >= before.size() || before[i] != entries[i])
            gHost.settings->Save(section, key, entries[i]);
    }
}
