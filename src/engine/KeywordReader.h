// Reads one definition line of a keyword file.
#pragma once

#include "engine/Keywords.h"

#include <memory>
#include <string_view>

// The keyword that a line defines; the line has no blanks at its ends. An empty line and parameter text
// of more than 255 characters are failures.
std::shared_ptr<ClsBBFunkcija> ReadKeyword(std::string_view line);
