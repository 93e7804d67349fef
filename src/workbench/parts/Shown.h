// The only conversion from bytes to text on show.
#pragma once

#include "host/Text.h"

#include <QString>
#include <string>
#include <string_view>

// Decodes valid UTF-8 as UTF-8, and anything else as Windows-1252.
inline QString Shown(std::string_view bytes) { return QString::fromStdString(ToUtf8(bytes)); }
