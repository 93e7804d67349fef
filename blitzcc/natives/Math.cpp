// The commands on numbers and chance; angles are in degrees.
// The random numbers repeat for a seed, as programs rely on it for their levels.
#include "natives/Natives.h"

#include "parse/Numbers.h"

#include <cmath>

namespace blitz {
namespace {

using Args = const Value*;

constexpr double degree = 3.14159265358979323846 / 180;

// A right angle's multiples come out exact, which a conversion to radians would spoil.
double sine(double degrees) {
    const double turn = std::fmod(degrees, 360);
    if (std::fmod(turn, 180) == 0) return 0;
    return std::sin(turn * degree);
}

Value mathSin(Machine&, Args a, size_t) {
    return floatValue(static_cast<float>(sine(static_cast<double>(a[0].real))));
}
Value mathCos(Machine&, Args a, size_t) {
    return floatValue(static_cast<float>(sine(static_cast<double>(a[0].real) + 90)));
}
Value mathTan(Machine&, Args a, size_t) {
    return floatValue(static_cast<float>(std::tan(static_cast<double>(a[0].real) * degree)));
}
float inDegrees(double radians) { return static_cast<float>(radians / degree); }
Value mathASin(Machine&, Args a, size_t) {
    return floatValue(inDegrees(std::asin(static_cast<double>(a[0].real))));
}
Value mathACos(Machine&, Args a, size_t) {
    return floatValue(inDegrees(std::acos(static_cast<double>(a[0].real))));
}
Value mathATan(Machine&, Args a, size_t) {
    return floatValue(inDegrees(std::atan(static_cast<double>(a[0].real))));
}
Value mathATan2(Machine&, Args a, size_t) {
    return floatValue(inDegrees(std::atan2(static_cast<double>(a[0].real), static_cast<double>(a[1].real))));
}
Value mathSqr(Machine&, Args a, size_t) { return floatValue(std::sqrt(a[0].real)); }
Value mathExp(Machine&, Args a, size_t) { return floatValue(std::exp(a[0].real)); }
Value mathLog(Machine&, Args a, size_t) { return floatValue(std::log(a[0].real)); }
Value mathLog10(Machine&, Args a, size_t) { return floatValue(std::log10(a[0].real)); }
Value mathFloor(Machine&, Args a, size_t) { return floatValue(std::floor(a[0].real)); }
Value mathCeil(Machine&, Args a, size_t) { return floatValue(std::ceil(a[0].real)); }

// A multiplicative generator of period 2^31 - 2, from 0 up to but not including 1.
float randomPart(Machine& m) {
    uint32_t& state = m.randomState();
    state = static_cast<uint32_t>(uint64_t{state} * 48271 % 2147483647);
    return static_cast<float>(state & 65535) / 65536.0f + 0.5f / 65536.0f;
}

Value mathRnd(Machine& m, Args a, size_t given) {
    const float from = given > 1 ? a[0].real : 0;
    const float to = given > 1 ? a[1].real : a[0].real;
    return floatValue(from + (to - from) * randomPart(m));
}

Value mathRand(Machine& m, Args a, size_t given) {
    int32_t from = given > 1 ? a[0].integer : 1;
    int32_t to = given > 1 ? a[1].integer : a[0].integer;
    if (to < from) std::swap(from, to);
    const auto count = static_cast<double>(int64_t{to} - from + 1);
    randomPart(m);
    return intValue(
        wrapAdd(from, static_cast<int32_t>(static_cast<int64_t>(m.randomState() / 2147483647.0 * count))));
}

Value mathSeedRnd(Machine& m, Args a, size_t) {
    const uint32_t seed = static_cast<uint32_t>(a[0].integer) & 0x7fffffff;
    m.randomState() = seed == 0 || seed == 0x7fffffff ? 1 : seed;
    return intValue(0);
}

Value mathRndSeed(Machine& m, Args, size_t) { return intValue(static_cast<int32_t>(m.randomState())); }

constexpr NativeEntry entries[] = {
    {"Sin", mathSin},         {"Cos", mathCos},   {"Tan", mathTan},     {"ASin", mathASin},
    {"ACos", mathACos},       {"ATan", mathATan}, {"ATan2", mathATan2}, {"Sqr", mathSqr},
    {"Exp", mathExp},         {"Log", mathLog},   {"Log10", mathLog10}, {"Floor", mathFloor},
    {"Ceil", mathCeil},       {"Rnd", mathRnd},   {"Rand", mathRand},   {"SeedRnd", mathSeedRnd},
    {"RndSeed", mathRndSeed},
};

}

NativeTable mathNatives() { return {entries, std::size(entries)}; }

}
