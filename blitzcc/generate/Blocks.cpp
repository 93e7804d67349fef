// The generator's blocks: If, loops and Select. Each loop keeps the list of its Exit jumps, which lead past
// its end.
#include "generate/Generator.h"

namespace blitz {

void Generator::ifStatement(const Stmt& stmt) {
    Loop ends;
    for (size_t i = 0; i < stmt.exprs.size(); ++i) {
        at(stmt.exprs[i]->pos);
        condition(*stmt.exprs[i]);
        const size_t skip = jump(Op::JumpIf0);
        block(stmt.blocks[i]);
        if (i + 1 < stmt.blocks.size()) ends.exits.push_back(jump(Op::Jump));
        patch(skip);
    }
    if (stmt.blocks.size() > stmt.exprs.size()) block(stmt.blocks.back());
    patchAll(ends);
}

void Generator::whileStatement(const Stmt& stmt) {
    context_.loops.emplace_back();
    const size_t top = here();
    condition(*stmt.exprs[0]);
    const size_t skip = jump(Op::JumpIf0);
    block(stmt.blocks[0]);
    jump(Op::Jump, top);
    patch(skip);
    patchAll(context_.loops.back());
    context_.loops.pop_back();
}

void Generator::repeatStatement(const Stmt& stmt) {
    context_.loops.emplace_back();
    const size_t top = here();
    block(stmt.blocks[0]);
    if (stmt.exprs.empty()) {
        jump(Op::Jump, top);
    } else {
        at(stmt.exprs[0]->pos);
        here();
        condition(*stmt.exprs[0]);
        jump(Op::JumpIf0, top);
    }
    here();
    patchAll(context_.loops.back());
    context_.loops.pop_back();
}

void Generator::forStatement(const Stmt& stmt) {
    const Expr& variable = *stmt.exprs[0];
    if (variable.kind == ExprKind::Call) failAt(variable.pos, "A loop needs a variable");
    const Type type = targetType(variable);
    if (!type.isNumber()) failAt(variable.pos, "The variable of a loop must be a number");
    Constant step;
    step.integer = 1;
    if (stmt.exprs.size() > 3) step = constant(*stmt.exprs[3]);
    step = converted(step, type, stmt.exprs.back()->pos);
    const bool real = type.kind == Type::Kind::Float;
    const bool down = real ? step.real < 0 : step.integer < 0;

    expressionAs(*stmt.exprs[1], type);
    store(variable, type);
    const size_t enter = jump(Op::Jump);
    context_.loops.emplace_back();
    const size_t top = here();
    block(stmt.blocks[0]);
    at(stmt.pos);
    here();
    load(variable);
    push(step);
    emit(real ? Op::AddF : Op::AddI);
    store(variable, type);
    patch(enter);
    const Type value = load(variable);
    comparison(down ? Tok::GreaterEqual : Tok::LessEqual, value, *stmt.exprs[2], variable.pos);
    jump(Op::JumpIfNot0, top);
    here();
    patchAll(context_.loops.back());
    context_.loops.pop_back();
}

void Generator::forEachStatement(const Stmt& stmt) {
    const Expr& variable = *stmt.exprs[0];
    if (variable.kind == ExprKind::Call) failAt(variable.pos, "A loop needs a variable");
    const Type type{Type::Kind::Object, typeIndex(stmt.symbol, stmt.pos)};
    if (targetType(variable) != type)
        failAt(variable.pos, "The variable of the loop is not of type '" + symbols_.name(stmt.symbol) + "'");
    const uint32_t hidden = hiddenSlot(Storage::Plain);
    context_.code.pins.push_back(hidden);
    emit(Op::EachFirst, type.object, hidden);
    const size_t enter = jump(Op::Jump);
    context_.loops.emplace_back();
    const size_t top = here();
    store(variable, type);
    block(stmt.blocks[0]);
    at(stmt.pos);
    here();
    load(variable);
    emit(Op::EachNext, type.object, hidden);
    patch(enter);
    jump(Op::JumpIfNot0, top);
    here();
    patchAll(context_.loops.back());
    emit(Op::EachEnd, 0, hidden);
    context_.loops.pop_back();
}

void Generator::selectStatement(const Stmt& stmt) {
    const Type type = expression(*stmt.exprs[0]);
    if (type.isArray()) failAt(stmt.exprs[0]->pos, "An array cannot be selected by");
    const uint32_t hidden = hiddenSlot(type.isString() ? Storage::String : Storage::Plain);
    emit(type.isString() ? Op::StoreLS : Op::StoreL, static_cast<int32_t>(hidden));
    Loop ends;
    for (size_t i = 0; i < stmt.cases.size(); ++i) {
        Loop matches;
        for (const ExprPtr& value : stmt.cases[i]) {
            at(value->pos);
            here();
            emit(type.isString() ? Op::LoadLS : Op::LoadL, static_cast<int32_t>(hidden));
            comparison(Tok::Equal, type, *value, stmt.exprs[0]->pos);
            matches.exits.push_back(jump(Op::JumpIfNot0));
        }
        const size_t skip = jump(Op::Jump);
        patchAll(matches);
        block(stmt.blocks[i]);
        ends.exits.push_back(jump(Op::Jump));
        patch(skip);
    }
    if (stmt.blocks.size() > stmt.cases.size()) block(stmt.blocks.back());
    patchAll(ends);
}

}
