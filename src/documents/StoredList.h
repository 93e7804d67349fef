// A list of texts in a section of the settings, with the keys "1", "2" and so on.
#pragma once

#include <string>
#include <vector>

// Reads all entries. Small gaps in the numbers are skipped.
std::vector<std::string> ReadStoredList(const std::string& section);
// Writes the entries that have changed, and deletes the keys after the last entry.
void WriteStoredList(const std::string& section, const std::vector<std::string>& entries);
