// Conversions and 32 bit arithmetic as the language has them: integers wrap around, floats round to
// the nearest integer, texts are read as far as they are numbers.
#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

namespace blitz {

inline int32_t wrapAdd(int32_t a, int32_t b) {
    return static_cast<int32_t>(static_cast<uint32_t>(a) + static_cast<uint32_t>(b));
}
inline int32_t wrapSub(int32_t a, int32_t b) {
    return static_cast<int32_t>(static_cast<uint32_t>(a) - static_cast<uint32_t>(b));
}
inline int32_t wrapMul(int32_t a, int32_t b) {
    return static_cast<int32_t>(static_cast<uint32_t>(a) * static_cast<uint32_t>(b));
}
inline int32_t shiftLeft(int32_t a, int32_t b) {
    return static_cast<int32_t>(static_cast<uint32_t>(a) << (static_cast<uint32_t>(b) & 31));
}
inline int32_t shiftRight(int32_t a, int32_t b) {
    return static_cast<int32_t>(static_cast<uint32_t>(a) >> (static_cast<uint32_t>(b) & 31));
}
inline int32_t shiftSigned(int32_t a, int32_t b) { return a >> (static_cast<uint32_t>(b) & 31); }

/// The nearest integer, ties to the even one; out of range or not a number gives the least integer.
inline int32_t floatToInt(float value) {
    if (!(value >= -2147483648.0f && value < 2147483648.0f)) return INT32_MIN;
    return static_cast<int32_t>(std::nearbyint(value));
}

/// The number that a text begins with, 0 if it begins with none; wraps around when too large.
int32_t textToInt(std::string_view text);
float textToFloat(std::string_view text);

/// A float with at most six digits and at least one decimal, e.g. 1.0 or 3.14159; beyond eight
/// digits before the point or three zeros behind it with an exponent.
std::string floatToText(float value);

}
