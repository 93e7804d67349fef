// Reading and writing numbers as text.
// The form of floats is the one that programs print and compare with.
#include "parse/Numbers.h"

#include <cstdio>
#include <cstdlib>

namespace blitz {

int32_t textToInt(std::string_view text) {
    size_t at = 0;
    while (at < text.size() && (text[at] == ' ' || (text[at] >= '\t' && text[at] <= '\r'))) ++at;
    const bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
    uint32_t value = 0;
    for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at)
        value = value * 10 + static_cast<uint32_t>(text[at] - '0');
    return static_cast<int32_t>(negative ? 0u - value : value);
}

float textToFloat(std::string_view text) {
    // Only plain decimal numbers count: no hexadecimal, no names of infinities.
    size_t end = 0;
    while (end < text.size() && (text[end] == ' ' || (text[end] >= '\t' && text[end] <= '\r'))) ++end;
    const size_t from = end;
    while (end < text.size() &&
           (std::string_view("0123456789.+-eE").find(text[end]) != std::string_view::npos))
        ++end;
    return static_cast<float>(std::strtod(std::string(text.substr(from, end - from)).c_str(), nullptr));
}

std::string floatToText(float value) {
    if (std::isnan(value)) return "NaN";
    if (std::isinf(value)) return value > 0 ? "Infinity" : "-Infinity";
    char scientific[32];
    std::snprintf(scientific, sizeof scientific, "%.5e", static_cast<double>(value));
    const std::string text = scientific;
    const size_t e = text.find('e');
    const int exponent = std::atoi(text.c_str() + e + 1);
    const bool negative = text[0] == '-';
    std::string digits = text.substr(negative ? 1 : 0, e - (negative ? 1 : 0));
    digits.erase(1, 1);
    while (digits.size() > 1 && digits.back() == '0') digits.pop_back();
    std::string result(negative && value != 0 ? 1 : 0, '-');
    if (exponent < -4 || exponent > 7) {
        char power[16];
        std::snprintf(power, sizeof power, "e%c%03d", exponent < 0 ? '-' : '+', std::abs(exponent));
        result.append(digits, 0, 1);
        if (digits.size() > 1) result.append(".").append(digits, 1);
        result += power;
    } else if (exponent < 0) {
        result.append("0.").append(static_cast<size_t>(-exponent - 1), '0').append(digits);
    } else {
        const auto whole = static_cast<size_t>(exponent) + 1;
        if (digits.size() < whole) digits.append(whole - digits.size(), '0');
        result.append(digits, 0, whole).append(".");
        result += digits.size() > whole ? digits.substr(whole) : "0";
    }
    return result;
}

}
