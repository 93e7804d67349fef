// Replaces the content of one file so that a failure at any moment leaves the old content or the new.
#pragma once

#include <string>
#include <string_view>

// Throws a Failure with the system's text. Keeps symbolic links and the mode, and where the file has them
// hard links, extended attributes and a foreign owner. What isn't a regular file is refused.
void SafeWrite(const std::string& path, std::string_view bytes);
