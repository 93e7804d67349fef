// A list of texts in a section of the settings.
#include "documents/StoredList.h"

#include "host/Host.h"
#include "host/SettingsStore.h"

namespace {

// Marks a missing key. No stored text holds a NUL byte.
const std::string Missing("\0missing", 8);
constexpr int LongestGap = 10; // successive keys that a user may have deleted by hand

} // namespace

std::vector<std::string> ReadStoredList(const std::string& section) {
    std::vector<std::string> entries;
    int gap = 0;
    for (int key = 1; gap < LongestGap; ++key) {
        std::string text = gHost.settings->Get(section, std::to_string(key), Missing);
        gap = text == Missing ? gap + 1 : 0;
        if (gap == 0) entries.push_back(std::move(text));
    }
    return entries;
}

void WriteStoredList(const std::string& section, const std::vector<std::string>& entries) {
    int gap = 0;
    for (std::size_t i = 0; i < entries.size() || gap < LongestGap; ++i) {
        const std::string key = std::to_string(i + 1);
        const std::string before = gHost.settings->Get(section, key, Missing);
        gap = before == Missing ? gap + 1 : 0;
        if (i < entries.size() && before != entries[i]) gHost.settings->Save(section, key, entries[i]);
        if (i >= entries.size() && gap == 0) gHost.settings->Delete(section, key);
    }
}
