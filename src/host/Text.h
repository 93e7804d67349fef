// Text as bytes: letter case, blanks and separators, and the two encodings that a text may be in.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// Whether two texts differ in the case of A to Z at most.
bool EqualNoCase(std::string_view a, std::string_view b);

// The text with a to z in upper case, or A to Z in lower case. All other bytes stay as they are.
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);

// The text without the blanks and tabs at its ends.
std::string_view TrimBlanks(std::string_view text);

// The pieces between separators, empty ones included: one more than there are separators.
std::vector<std::string> Split(std::string_view text, char separator);

// Whether the bytes are well-formed UTF-8: no overlong forms, no surrogates.
bool IsUtf8(std::string_view bytes);

// The text as UTF-8: unchanged if it is valid UTF-8, else with each byte read as Windows-1252.
std::string ToUtf8(std::string_view bytes);

// The text as UTF-8, with each byte read as Windows-1252.
std::string SingleBytesToUtf8(std::string_view bytes);

// The character of a byte in Windows-1252. A byte without a character gives its own number.
char16_t CharacterOf(unsigned char byte);
std::string CharacterInUtf8(unsigned char byte);

// Converts UTF-8 to Windows-1252. False, with `bytes` unchanged, if a character has no byte there.
bool FromUtf8ToSingleBytes(std::string_view utf8, std::string& bytes);
