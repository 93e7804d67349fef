// Bytes of unknown origin as UTF-8, for whoever shows them.
#pragma once

#include <string>
#include <string_view>

// Whether the bytes are well-formed UTF-8: no overlong forms, no surrogates.
bool IsUtf8(std::string_view bytes);

// The bytes themselves where they are valid UTF-8, else each byte read as Windows-1252.
std::string ToUtf8(std::string_view bytes);

// Each byte read as Windows-1252.
std::string SingleBytesToUtf8(std::string_view bytes);

// The character of a byte in Windows-1252; a byte that has none there gives its own number.
char16_t CharacterOf(unsigned char byte);
std::string CharacterInUtf8(unsigned char byte);

// UTF-8 as Windows-1252. False, with `bytes` left alone, when a character has no byte there.
bool FromUtf8ToSingleBytes(std::string_view utf8, std::string& bytes);
