// The one road between bytes and what a form shows.
#pragma once

#include "host/Text.h"

#include <QString>
#include <string>
#include <string_view>

// Text for a widget: valid UTF-8 as UTF-8, else Windows-1252.
inline QString Shown(std::string_view bytes) { return QString::fromStdString(ToUtf8(bytes)); }
