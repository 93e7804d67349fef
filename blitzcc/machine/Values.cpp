// The machine's strings and arrays. Released ones are kept for the next use; a string that no one else holds
// grows in place.
#include "machine/Machine.h"
#include "parse/Numbers.h"

namespace blitz {

// Elements of one array; more is taken for a mistake.
static constexpr int64_t largestArray = 64 << 20;

const std::string& Machine::text(Value value) {
    static const std::string none;
    return value.string ? value.string->text : none;
}

Value Machine::makeString(std::string text) {
    Value value{};
    if (text.empty()) return value;
    if (unusedStrings_.empty()) {
        value.string = &strings_.emplace_back();
    } else {
        value.string = unusedStrings_.back();
        unusedStrings_.pop_back();
        value.string->references = 1;
    }
    value.string->text = std::move(text);
    return value;
}

void Machine::recycle(Str* string) {
    // Long texts give their memory back, short ones are overwritten later.
    if (string->text.capacity() > 256)
        std::string().swap(string->text);
    else
        string->text.clear();
    unusedStrings_.push_back(string);
}

Value Machine::concatenated(Value left, Value right) {
    if (!right.string) return left;
    if (!left.string) return right;
    if (left.string->text.size() + right.string->text.size() > (1u << 30)) fault("The string is too long");
    if (left.string->references == 1) {
        left.string->text += right.string->text;
        drop(right);
        return left;
    }
    std::string joined;
    joined.reserve(left.string->text.size() + right.string->text.size());
    joined += left.string->text;
    joined += right.string->text;
    drop(left);
    drop(right);
    return makeString(std::move(joined));
}

int Machine::compared(Value left, Value right) {
    const int order = left.string == right.string ? 0 : text(left).compare(text(right));
    drop(left);
    drop(right);
    return order;
}

// The conversions from and to strings, of the top or the value below it.
void Machine::convertText(const Ins& ins, Value* top) {
    switch (ins.op) {
    case Op::IntToStr: top[-1] = makeString(std::to_string(top[-1].integer)); break;
    case Op::FloatToStr: top[-1] = makeString(floatToText(top[-1].real)); break;
    case Op::IntToStr1: top[-2] = makeString(std::to_string(top[-2].integer)); break;
    case Op::FloatToStr1: top[-2] = makeString(floatToText(top[-2].real)); break;
    case Op::StrToInt: {
        const int32_t number = textToInt(text(top[-1]));
        drop(top[-1]);
        top[-1].integer = number;
        break;
    }
    default: {
        const float number = textToFloat(text(top[-1]));
        drop(top[-1]);
        top[-1].real = number;
    }
    }
}

Vec* Machine::makeVector(const VectorInfo& info) {
    const auto size = static_cast<size_t>(info.size);
    auto& unused = unusedVectors_[{size, info.strings}];
    if (!unused.empty()) {
        Vec* const vector = unused.back();
        unused.pop_back();
        return vector;
    }
    Vec& vector = vectors_.emplace_back();
    vector.strings = info.strings;
    vector.items.resize(size);
    return &vector;
}

void Machine::freeVector(Vec* vector) {
    if (!vector) return;
    clearValues(vector->items, vector->strings);
    unusedVectors_[{vector->items.size(), vector->strings}].push_back(vector);
}

void Machine::clearValues(std::vector<Value>& values, bool strings) {
    for (Value& value : values) {
        if (strings) drop(value);
        value = {};
    }
}

void Machine::dimension(const Ins& ins, Value*& top) {
    Array& array = arrays_[static_cast<size_t>(ins.a)];
    top -= ins.x;
    int64_t count = 1;
    array.sizes.assign(ins.x, 0);
    for (size_t i = 0; i < ins.x; ++i) {
        if (top[i].integer < 0) fault("Illegal size of an array");
        array.sizes[i] = top[i].integer;
        count *= int64_t{top[i].integer} + 1;
        if (count > largestArray) fault("The array is too large");
    }
    clearValues(array.items, code_.arrays[static_cast<size_t>(ins.a)]);
    array.items.assign(static_cast<size_t>(count), Value{});
}

Value& Machine::element(const Ins& ins, Value*& top) {
    Array& array = arrays_[static_cast<size_t>(ins.a)];
    top -= ins.x;
    if (array.sizes.empty()) fault("The array has not been dimensioned");
    size_t index = 0;
    for (size_t i = ins.x; i-- > 0;) {
        const auto wanted = static_cast<uint32_t>(top[i].integer);
        const auto size = static_cast<uint32_t>(array.sizes[i]);
        if (wanted > size) fault("Array index out of bounds");
        index = index * (size + 1) + wanted;
    }
    return array.items[index];
}

Value& Machine::item(Value vector, Value index) {
    if (static_cast<uint32_t>(index.integer) >= vector.vector->items.size())
        fault("Array index out of bounds");
    return vector.vector->items[static_cast<size_t>(index.integer)];
}

}
