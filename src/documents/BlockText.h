// The form of project and workspace files: blocks between whole lines, values between quotes without
// escaping.
#pragma once

#include <string>
#include <vector>

// The lines of a text whose lines end in CR LF or LF, without their ends.
std::vector<std::string> BlockLines(const std::string& text);
// A blank, and key="value".
std::string BlockValue(const char* key, const std::string& value);
std::string BlockBoolean(bool value);
bool IsBlockTrue(const std::string& text);
// The value of key="..." in a line, empty where it is not there.
std::string BlockAttribute(const std::string& line, const std::string& key);
