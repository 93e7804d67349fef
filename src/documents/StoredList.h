// A list of texts in a section of the settings store, under the keys "1", "2" and so on.
#pragma once

#include <string>
#include <vector>

// All entries, over small gaps in their numbers.
std::vector<std::string> ReadStoredList(const std::string& section);
// Writes the entries and deletes those that stood behind them. Writes nothing that has not changed.
void WriteStoredList(const std::string& section, const std::vector<std::string>& entries);
