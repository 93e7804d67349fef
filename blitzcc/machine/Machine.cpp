// The machine's frame: its set-up, calls of functions and commands, data and errors.
// Memory of strings and arrays is pooled here, so that ending at any place frees all of it.
#include "machine/Machine.h"

#include "commands/CommandTable.h"
#include "parse/Numbers.h"
#include "parse/Tokens.h"

#include <algorithm>
#include <cassert>

namespace blitz {

// Values of the stack (8 MB) and calls that may be under way.
static constexpr size_t stackValues = 1 << 20;
static constexpr size_t deepestCall = 100'000;

Machine::Machine(const Code& code, Output& output, RunOptions options,
                 const std::vector<NativeTable>& natives)
    : code_(code), output_(output), options_(std::move(options)), stack_(new Value[stackValues]),
      limit_(stack_.get() + stackValues), globals_(code.globals), arrays_(code.arrays.size()), objects_(1),
      types_(code.types.size()) {
    prepareNatives(natives);
    for (const std::string& text : code.strings) constants_.push_back(makeString(text));
    for (const VectorInfo& info : code.globalVectors) globals_[info.slot].vector = makeVector(info);
}

void Machine::prepareNatives(const std::vector<NativeTable>& tables) {
    const CommandTable& table = CommandTable::instance();
    natives_.resize(table.commands().size());
    for (const Command& command : table.commands()) {
        uint32_t mask = 0;
        for (size_t i = 0; i < command.parameters.size(); ++i)
            if (command.parameters[i] == ValueKind::String) mask |= 1u << i;
        stringMasks_.push_back(mask);
        argumentCounts_.push_back(static_cast<uint8_t>(command.parameters.size()));
    }
    for (const NativeTable& natives : tables)
        for (size_t i = 0; i < natives.count; ++i) {
            const int command = table.find(lowerText(natives.entries[i].name));
            assert(command >= 0 && "a routine without an entry in the command table");
            if (command >= 0) natives_[static_cast<size_t>(command)] = natives.entries[i].function;
        }
}

void Machine::run() {
    const Ins* at = code_.code.data();
    try {
        execute(at);
    } catch (const Ended&) {
    } catch (const Fault& error) {
        stopAt(at, error.message);
    } catch (const std::bad_alloc&) {
        stopAt(at, "Out of memory");
    } catch (const std::length_error&) {
        stopAt(at, "Out of memory");
    }
}

void Machine::stopAt(const Ins* at, const std::string& message) const {
    const uint64_t place = code_.places[static_cast<size_t>(at - code_.code.data())];
    throw RuntimeError{static_cast<uint32_t>(place >> 32), static_cast<uint32_t>(place), message};
}

void Machine::debugStop(const Ins* at) {
    if (!options_.debug) return;
    const uint64_t place = code_.places[static_cast<size_t>(at - code_.code.data())];
    output_.endLine();
    output_.line("Stop in line " + std::to_string(static_cast<uint32_t>(place)));
    output_.flush();
}

void Machine::end() { throw Ended{}; }

// Makes the frame of a function whose arguments are on top of the stack; gives the new top.
Value* Machine::enter(const FunctionCode& function, Value* top) {
    Value* const slots = top - function.parameters;
    if (frames_.size() >= deepestCall ||
        limit_ - slots < static_cast<ptrdiff_t>(function.slots) + static_cast<ptrdiff_t>(function.stack))
        fault("Stack overflow");
    Value* const newTop = slots + function.slots;
    std::fill(top, newTop, Value{});
    for (const VectorInfo& info : function.vectors) slots[info.slot].vector = makeVector(info);
    return newTop;
}

void Machine::leave(const FunctionCode& function, Value* slots) {
    for (const uint32_t slot : function.strings) drop(slots[slot]);
    for (const VectorInfo& info : function.vectors) freeVector(slots[info.slot].vector);
    for (const uint32_t slot : function.pins) pin(slots[slot], 0);
    while (!gosubs_.empty() && gosubs_.back().second >= frames_.size()) gosubs_.pop_back();
}

void Machine::callCommand(const Ins& ins, Value*& top) {
    const auto index = static_cast<size_t>(ins.a);
    top -= argumentCounts_[index];
    if (!natives_[index])
        fault("The command " + CommandTable::instance().commands()[index].name +
              " needs a screen, sound, network or window, and programs run here without them");
    const Value result = natives_[index](*this, top, ins.x);
    for (uint32_t mask = stringMasks_[index], i = 0; mask != 0; mask >>= 1, ++i)
        if (mask & 1) drop(top[i]);
    *top++ = result;
}

void Machine::pushGosub(const Ins* back) {
    if (gosubs_.size() >= deepestCall) fault("Too many Gosubs without Return");
    gosubs_.emplace_back(back, frames_.size());
}

bool Machine::popGosub(const Ins*& at) {
    if (gosubs_.empty() || gosubs_.back().second != frames_.size()) return false;
    at = gosubs_.back().first;
    gosubs_.pop_back();
    return true;
}

const DataItem& Machine::nextData() {
    if (dataAt_ >= code_.data.size()) fault("Out of data");
    return code_.data[dataAt_++];
}

void Machine::readData(const Ins& ins, Value*& top) {
    const DataItem& item = nextData();
    Value value{};
    const bool isInt = item.kind == DataItem::Kind::Int;
    const bool isFloat = item.kind == DataItem::Kind::Float;
    if (ins.op == Op::ReadInt)
        value.integer = isInt ? item.integer : isFloat ? floatToInt(item.real) : textToInt(item.text);
    else if (ins.op == Op::ReadFloat)
        value.real = isInt ? static_cast<float>(item.integer) : isFloat ? item.real : textToFloat(item.text);
    else
        value = makeString(isInt     ? std::to_string(item.integer)
                           : isFloat ? floatToText(item.real)
                                     : item.text);
    *top++ = value;
}

}
