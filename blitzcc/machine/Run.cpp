// The machine's loop: one case for each operation.
// The frequent ones are carried out here; step() holds those that take long anyway.
#include "machine/Machine.h"
#include "parse/Numbers.h"

#include <algorithm>

namespace blitz {
namespace {

int32_t divided(int32_t a, int32_t b) {
    if (b == 0) fault("Division by zero");
    return b == -1 ? wrapSub(0, a) : a / b;
}

int32_t remainder(int32_t a, int32_t b) {
    if (b == 0) fault("Division by zero");
    return b == -1 ? 0 : a % b;
}

}

// clang-format off
#define BINARY(member, expr) { const auto b = (--top)->member; auto& a = top[-1].member; a = expr; break; }
#define COMPARE(member, op) { const auto b = (--top)->member; top[-1].integer = top[-1].member op b; break; }
#define JUMP_WHEN(op) { top -= 2; if (top[0].integer op top[1].integer) at = code + at->a - 1; break; }

// `at` is the current instruction, so that the caller knows where a fault occurred.
void Machine::execute(const Ins*& position) {
    const Ins* const code = code_.code.data();
    const FunctionCode& mainProgram = code_.functions[0];
    Value* slots = stack_.get();
    Value* top = enter(mainProgram, slots);
    Value* const globals = globals_.data();
    for (const Ins*& at = position;; ++at) {
        switch (at->op) {
        case Op::PushInt: top++->object = static_cast<uint32_t>(at->a); break;
        case Op::PushStr: *top++ = keep(constants_[static_cast<size_t>(at->a)]); break;
        case Op::PushNull: top++->object = 0; break;
        case Op::LoadL: *top++ = slots[at->a]; break;
        case Op::LoadLL: *top++ = slots[at->x]; *top++ = slots[at->a]; break;
        case Op::LoadLS: *top++ = keep(slots[at->a]); break;
        case Op::StoreL: slots[at->a] = *--top; break;
        case Op::StoreLS: { const Value old = slots[at->a]; slots[at->a] = *--top; drop(old); break; }
        case Op::LoadG: *top++ = globals[at->a]; break;
        case Op::LoadGS: *top++ = keep(globals[at->a]); break;
        case Op::StoreG: globals[at->a] = *--top; break;
        case Op::StoreGS: { const Value old = globals[at->a]; globals[at->a] = *--top; drop(old); break; }
        case Op::LoadE: { const Value value = element(*at, top); *top++ = value; break; }
        case Op::LoadES: { const Value value = element(*at, top); *top++ = keep(value); break; }
        case Op::StoreE: { Value& place = element(*at, top); place = *--top; break; }
        case Op::StoreES: { Value& place = element(*at, top); drop(place); place = *--top; break; }
        case Op::LoadF: top[-1] = need(top[-1]).fields[static_cast<size_t>(at->a)]; break;
        case Op::LoadFS: top[-1] = keep(need(top[-1]).fields[static_cast<size_t>(at->a)]); break;
        case Op::StoreF: { Value& place = need(top[-1]).fields[static_cast<size_t>(at->a)]; top -= 2; place = *top; break; }
        case Op::StoreFS: { Value& place = need(top[-1]).fields[static_cast<size_t>(at->a)]; top -= 2; drop(place); place = *top; break; }
        case Op::LoadV: --top; top[-1] = item(top[-1], top[0]); break;
        case Op::LoadVS: --top; top[-1] = keep(item(top[-1], top[0])); break;
        case Op::StoreV: { Value& place = item(top[-2], top[-1]); top -= 3; place = *top; break; }
        case Op::StoreVS: { Value& place = item(top[-2], top[-1]); top -= 3; drop(place); place = *top; break; }
        case Op::AddI: BINARY(integer, wrapAdd(a, b))
        case Op::SubI: BINARY(integer, wrapSub(a, b))
        case Op::MulI: BINARY(integer, wrapMul(a, b))
        case Op::DivI: BINARY(integer, divided(a, b))
        case Op::ModI: BINARY(integer, remainder(a, b))
        case Op::AndI: BINARY(integer, a & b)
        case Op::OrI: BINARY(integer, a | b)
        case Op::XorI: BINARY(integer, a ^ b)
        case Op::ShlI: BINARY(integer, shiftLeft(a, b))
        case Op::ShrI: BINARY(integer, shiftRight(a, b))
        case Op::SarI: BINARY(integer, shiftSigned(a, b))
        case Op::AddIC: top[-1].integer = wrapAdd(top[-1].integer, at->a); break;
        case Op::SubIC: top[-1].integer = wrapSub(top[-1].integer, at->a); break;
        case Op::MulIC: top[-1].integer = wrapMul(top[-1].integer, at->a); break;
        case Op::AddLC: slots[at->x].integer = wrapAdd(slots[at->x].integer, at->a); break;
        case Op::NegI: top[-1].integer = wrapSub(0, top[-1].integer); break;
        case Op::NotI: top[-1].integer = ~top[-1].integer; break;
        case Op::AbsI: if (top[-1].integer < 0) top[-1].integer = wrapSub(0, top[-1].integer); break;
        case Op::SgnI: top[-1].integer = (top[-1].integer > 0) - (top[-1].integer < 0); break;
        case Op::IsZero: top[-1].integer = top[-1].integer == 0; break;
        case Op::AddF: BINARY(real, a + b)
        case Op::SubF: BINARY(real, a - b)
        case Op::MulF: BINARY(real, a * b)
        case Op::DivF: BINARY(real, a / b)
        case Op::ModF: BINARY(real, std::fmod(a, b))
        case Op::PowF: BINARY(real, std::pow(a, b))
        case Op::NegF: top[-1].real = -top[-1].real; break;
        case Op::AbsF: top[-1].real = std::fabs(top[-1].real); break;
        case Op::SgnF: top[-1].real = static_cast<float>((top[-1].real > 0) - (top[-1].real < 0)); break;
        case Op::IsZeroF: top[-1].integer = top[-1].real == 0; break;
        case Op::EqI: COMPARE(integer, ==)
        case Op::NeI: COMPARE(integer, !=)
        case Op::LtI: COMPARE(integer, <)
        case Op::GtI: COMPARE(integer, >)
        case Op::LeI: COMPARE(integer, <=)
        case Op::GeI: COMPARE(integer, >=)
        case Op::EqF: COMPARE(real, ==)
        case Op::NeF: COMPARE(real, !=)
        case Op::LtF: COMPARE(real, <)
        case Op::GtF: COMPARE(real, >)
        case Op::LeF: COMPARE(real, <=)
        case Op::GeF: COMPARE(real, >=)
        case Op::IntToFloat: top[-1].real = static_cast<float>(top[-1].integer); break;
        case Op::IntToFloat1: top[-2].real = static_cast<float>(top[-2].integer); break;
        case Op::FloatToInt: top[-1].integer = floatToInt(top[-1].real); break;
        case Op::Jump: at = code + at->a - 1; break;
        case Op::JumpIf0: if ((--top)->integer == 0) at = code + at->a - 1; break;
        case Op::JumpIfNot0: if ((--top)->integer != 0) at = code + at->a - 1; break;
        case Op::JumpNeI: JUMP_WHEN(!=)
        case Op::JumpEqI: JUMP_WHEN(==)
        case Op::JumpGeI: JUMP_WHEN(>=)
        case Op::JumpLeI: JUMP_WHEN(<=)
        case Op::JumpGtI: JUMP_WHEN(>)
        case Op::JumpLtI: JUMP_WHEN(<)
        case Op::Call: {
            const FunctionCode& function = code_.functions[static_cast<size_t>(at->a)];
            Value* const newTop = enter(function, top);
            frames_.push_back({at, slots, &function});
            slots = top - function.parameters;
            top = newTop;
            at = code + function.entry - 1;
            break;
        }
        case Op::Return:
        case Op::ReturnStr:
        case Op::ReturnVoid: {
            const Value result = at->op == Op::ReturnVoid ? Value{} : top[-1];
            const Frame frame = frames_.back();
            leave(*frame.function, slots);
            frames_.pop_back();
            top = slots;
            *top++ = result;
            slots = frame.slots;
            at = frame.back;
            break;
        }
        case Op::CallCommand: callCommand(*at, top); break;
        case Op::Gosub: pushGosub(at); at = code + at->a - 1; break;
        case Op::ReturnSub: if (!popGosub(at)) fault("Return without Gosub"); break;
        case Op::ReturnSubOrCall: popGosub(at); break;
        case Op::Pop: --top; break;
        case Op::PopStr: drop(*--top); break;
        case Op::End: return;
        case Op::Stop: debugStop(at); break;
        default: step(*at, top, slots);
        }
    }
}

void Machine::step(const Ins& ins, Value*& top, Value* slots) {
    switch (ins.op) {
    case Op::DimArray: dimension(ins, top); break;
    case Op::Concat: --top; top[-1] = concatenated(top[-1], top[0]); break;
    case Op::EqS: --top; top[-1].integer = compared(top[-1], top[0]) == 0; break;
    case Op::NeS: --top; top[-1].integer = compared(top[-1], top[0]) != 0; break;
    case Op::LtS: --top; top[-1].integer = compared(top[-1], top[0]) < 0; break;
    case Op::GtS: --top; top[-1].integer = compared(top[-1], top[0]) > 0; break;
    case Op::LeS: --top; top[-1].integer = compared(top[-1], top[0]) <= 0; break;
    case Op::GeS: --top; top[-1].integer = compared(top[-1], top[0]) >= 0; break;
    case Op::EqO: --top; top[-1].integer = find(top[-1]) == find(top[0]); break;
    case Op::NeO: --top; top[-1].integer = find(top[-1]) != find(top[0]); break;
    case Op::IntToStr: case Op::FloatToStr: case Op::IntToStr1: case Op::FloatToStr1: case Op::StrToInt:
    case Op::StrToFloat: convertText(ins, top); break;
    case Op::New: *top++ = create(ins.a); break;
    case Op::First: *top++ = neighbour(types_[static_cast<size_t>(ins.a)].first, true); break;
    case Op::Last: *top++ = neighbour(types_[static_cast<size_t>(ins.a)].last, false); break;
    case Op::Before: top[-1] = neighbour(need(top[-1]).previous, false); break;
    case Op::After: top[-1] = neighbour(need(top[-1]).next, true); break;
    case Op::Delete: remove(*--top); break;
    case Op::DeleteEach: removeAll(ins.a); break;
    case Op::InsertBefore: case Op::InsertAfter:
        top -= 2;
        insert(top[0], top[1], ins.op == Op::InsertBefore);
        break;
    case Op::Handle: top[-1].integer = handleOf(top[-1]); break;
    case Op::Object: top[-1] = objectOf(top[-1].integer, ins.a); break;
    case Op::EachFirst: case Op::EachNext: each(ins, top, slots); break;
    case Op::EachEnd: pin(slots[ins.x], 0); break;
    case Op::ReadInt: case Op::ReadFloat: case Op::ReadStr: readData(ins, top); break;
    case Op::Restore: dataAt_ = static_cast<size_t>(ins.a); break;
    case Op::Library: fault("The library function " + constants_[static_cast<size_t>(ins.a)].string->text + " cannot be called here");
    default: fault("Unknown operation");
    }
}
// clang-format on

}
