// The one road between bytes and what a widget shows.
#pragma once

#include "host/Text.h"

#include <QFile>
#include <QString>
#include <string>
#include <string_view>

// Text for a widget: valid UTF-8 as UTF-8, else Windows-1252.
inline QString Shown(std::string_view bytes) { return QString::fromStdString(ToUtf8(bytes)); }

// What a person typed, as UTF-8 bytes.
inline std::string Typed(const QString& text) { return text.toStdString(); }

// A path in the file system's own bytes, and back.
inline QString PathText(const std::string& path) { return QFile::decodeName(path.c_str()); }
inline std::string PathBytes(const QString& path) { return QFile::encodeName(path).toStdString(); }
