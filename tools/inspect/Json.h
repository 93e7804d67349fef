// Writes JSON text. A byte of a string is the code point of the same value, so any bytes can be shown.
#pragma once

#include <string>
#include <string_view>

class Json {
public:
    Json& Object() { return Open('{'); }
    Json& EndObject() { return Close('}'); }
    Json& Array() { return Open('['); }
    Json& EndArray() { return Close(']'); }
    Json& Key(std::string_view key);
    Json& String(std::string_view bytes);
    // The name of a file: its characters where the bytes are UTF-8, else as any text.
    Json& FileName(std::string_view bytes);
    Json& Number(long long number);
    Json& Bool(bool value);
    // A break between the elements of a long list, for the eye.
    Json& Line();

    const std::string& Text() const { return text_; }

private:
    Json& Open(char bracket);
    Json& Close(char bracket);
    void Separate();
    void Quote(std::string_view bytes, bool keepHigh = false);

    std::string text_;
    bool first_ = true; // nothing precedes the next element
};
