// The syntax of project and workspace files: a line begins a block and a line ends it; values are in double
// quotes, without escapes.
#pragma once

#include <string>
#include <vector>

// The lines of a text without their line ends, which are CR LF or LF.
std::vector<std::string> BlockLines(const std::string& text);
// Returns ` key="value"`, with a blank in front.
std::string BlockValue(const char* key, const std::string& value);
std::string BlockBoolean(bool value);
bool IsBlockTrue(const std::string& text);
// The value of key="..." in a line; empty if the key is missing.
std::string BlockAttribute(const std::string& line, const std::string& key);
