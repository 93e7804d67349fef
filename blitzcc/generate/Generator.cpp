// The generator's base: emission of instructions and their joining into fewer, quicker ones. Instructions
// before a jump's target are never joined with those after it.
#include "generate/Generator.h"

#include <algorithm>
#include <bit>

namespace blitz {

Generator::Generator(const Program& program, Symbols& symbols, const Decls& decls)
    : program_(program), symbols_(symbols), decls_(decls) {}

Code Generator::generate() {
    declareConstants();
    declareTypes();
    declareArrays();
    declareFunctions();
    declareData();
    code_.functions.resize(program_.functions.size() + 1);
    generateMain();
    for (size_t i = 0; i < program_.functions.size(); ++i) generateFunction(i);
    return std::move(code_);
}

size_t Generator::here() { return barrier_ = code_.code.size(); }

void Generator::emit(Op op, int32_t a, uint32_t x) {
    if (x > 0xFFFF) failAt(pos_, "The program is too large");
    if (!fuse(op, a, x)) {
        code_.code.push_back({op, static_cast<uint16_t>(x), a});
        code_.places.push_back(static_cast<uint64_t>(pos_.file) << 32 | pos_.line);
    }
    // No instruction leaves more than two values, so this bounds the stack of the statement.
    const size_t bound = (code_.code.size() - std::min(statementAt_, code_.code.size())) * 2 + 8;
    context_.code.stack = std::max(context_.code.stack, static_cast<uint32_t>(bound));
}

bool Generator::fuse(Op op, int32_t a, uint32_t x) {
    if (code_.code.size() <= barrier_) return false;
    Ins& last = code_.code.back();
    if (op == Op::LoadL && last.op == Op::LoadL && last.a < 0xFFFF) {
        last = {Op::LoadLL, static_cast<uint16_t>(last.a), a};
        return true;
    }
    if (op == Op::StoreL && last.op == Op::AddIC && a < 0xFFFF && code_.code.size() >= barrier_ + 2) {
        const Ins& before = code_.code[code_.code.size() - 2];
        if (before.op != Op::LoadL || before.a != a) return false;
        const int32_t step = last.a;
        code_.code.pop_back();
        code_.places.pop_back();
        code_.code.back() = {Op::AddLC, static_cast<uint16_t>(a), step};
        return true;
    }
    if (op == Op::JumpIf0 || op == Op::JumpIfNot0) return fuseJump(op, a);
    return x == 0 && fuseArithmetic(op);
}

bool Generator::fuseArithmetic(Op op) {
    Ins& last = code_.code.back();
    if (last.op != Op::PushInt) return false;
    switch (op) {
    case Op::AddI: last.op = Op::AddIC; return true;
    case Op::SubI: last.op = Op::SubIC; return true;
    case Op::MulI: last.op = Op::MulIC; return true;
    case Op::NegI: last.a = static_cast<int32_t>(0u - static_cast<uint32_t>(last.a)); return true;
    case Op::NegF: last.a = static_cast<int32_t>(static_cast<uint32_t>(last.a) ^ 0x80000000u); return true;
    case Op::IntToFloat: last.a = std::bit_cast<int32_t>(static_cast<float>(last.a)); return true;
    default: return false;
    }
}

bool Generator::fuseJump(Op op, int32_t target) {
    Ins& last = code_.code.back();
    if (last.op < Op::EqI || last.op > Op::GeI) return false;
    static constexpr Op whenTrue[] = {Op::JumpEqI, Op::JumpNeI, Op::JumpLtI,
                                      Op::JumpGtI, Op::JumpLeI, Op::JumpGeI};
    static constexpr Op whenFalse[] = {Op::JumpNeI, Op::JumpEqI, Op::JumpGeI,
                                       Op::JumpLeI, Op::JumpGtI, Op::JumpLtI};
    const auto index = static_cast<size_t>(last.op) - static_cast<size_t>(Op::EqI);
    last = {op == Op::JumpIf0 ? whenFalse[index] : whenTrue[index], 0, target};
    return true;
}

size_t Generator::jump(Op op, size_t target) {
    emit(op, static_cast<int32_t>(target));
    return code_.code.size() - 1;
}

void Generator::patchAll(const Loop& loop) {
    for (const size_t exit : loop.exits) patch(exit);
}

int32_t Generator::stringIndex(const std::string& text) {
    const auto [entry, isNew] = stringIndex_.try_emplace(text, static_cast<int32_t>(code_.strings.size()));
    if (isNew) code_.strings.push_back(text);
    return entry->second;
}

}
