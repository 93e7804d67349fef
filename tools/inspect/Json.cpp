// JSON text, element by element.
#include "Json.h"

#include "host/Text.h"

#include <cstdint>
#include <cstdio>

void Json::Separate() {
    if (!first_) text_ += ", ";
    first_ = false;
}

Json& Json::Open(char bracket) {
    Separate();
    text_ += bracket;
    first_ = true;
    return *this;
}

Json& Json::Close(char bracket) {
    text_ += bracket;
    first_ = false;
    return *this;
}

Json& Json::Key(std::string_view key) {
    Separate();
    Quote(key);
    text_ += ": ";
    first_ = true;
    return *this;
}

Json& Json::String(std::string_view bytes) {
    Separate();
    Quote(bytes);
    return *this;
}

Json& Json::FileName(std::string_view bytes) {
    Separate();
    Quote(bytes, IsUtf8(bytes));
    return *this;
}

Json& Json::Number(long long number) {
    Separate();
    text_ += std::to_string(number);
    return *this;
}

Json& Json::Bool(bool value) {
    Separate();
    text_ += value ? "true" : "false";
    return *this;
}

Json& Json::Line() {
    if (!first_) text_ += ",";
    text_ += "\n ";
    first_ = true;
    return *this;
}

void Json::Quote(std::string_view bytes, bool keepHigh) {
    text_ += '"';
    for (const char c : bytes) {
        const auto byte = static_cast<std::uint8_t>(c);
        if (c == '"' || c == '\\') {
            text_ += '\\';
            text_ += c;
        } else if (byte < 32 || byte == 127 || (byte > 127 && !keepHigh)) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(byte));
            text_ += escape;
        } else {
            text_ += c;
        }
    }
    text_ += '"';
}
