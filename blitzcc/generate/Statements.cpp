// The generator's simple statements: assignments, calls, jumps, data and objects.
// Between statements the stack is empty, so that jumps may go anywhere in a function.
#include "generate/Generator.h"

namespace blitz {

void Generator::block(const Block& statements) {
    for (const Stmt& stmt : statements) statement(stmt);
}

void Generator::statement(const Stmt& stmt) {
    at(stmt.pos);
    statementAt_ = code_.code.size();
    switch (stmt.kind) {
    case StmtKind::Assign: return assignStatement(stmt);
    case StmtKind::Call: return callStatement(stmt);
    case StmtKind::If: return ifStatement(stmt);
    case StmtKind::While: return whileStatement(stmt);
    case StmtKind::Repeat: return repeatStatement(stmt);
    case StmtKind::For: return forStatement(stmt);
    case StmtKind::ForEach: return forEachStatement(stmt);
    case StmtKind::Select: return selectStatement(stmt);
    case StmtKind::Goto:
    case StmtKind::Gosub:
    case StmtKind::Exit:
    case StmtKind::End:
    case StmtKind::Stop: return jumpStatement(stmt);
    case StmtKind::Label: return label(stmt);
    case StmtKind::Return: return returnStatement(stmt);
    case StmtKind::Local:
    case StmtKind::Global: return localStatement(stmt);
    case StmtKind::Dim: return dimStatement(stmt);
    case StmtKind::Read:
    case StmtKind::Restore: return dataStatement(stmt);
    case StmtKind::Delete:
    case StmtKind::DeleteEach:
    case StmtKind::Insert: return objectStatement(stmt);
    }
}

void Generator::assignStatement(const Stmt& stmt) {
    // The target's name is declared before its value is generated, because it comes first in the text.
    const Expr& target = *stmt.exprs[0];
    if (target.kind == ExprKind::Name) variableFor(target);
    const Type type = expression(*stmt.exprs[1]);
    if (type.isArray()) failAt(stmt.exprs[1]->pos, "An array cannot be assigned");
    at(stmt.pos);
    store(target, type);
}

void Generator::callStatement(const Stmt& stmt) {
    const Type type = call(*stmt.exprs[0], false);
    emit(type.isString() ? Op::PopStr : Op::Pop);
}

void Generator::localStatement(const Stmt& stmt) {
    const bool global = stmt.kind == StmtKind::Global;
    for (const Declaration& item : stmt.declarations) {
        Type value;
        const Type type = declaredType(item);
        if (item.value) {
            value = expression(*item.value);
            convert(value, type, item.value->pos);
        }
        // In the main program the names of both kinds share one space.
        const Variable variable = declare(item.name, type, global, item.pos);
        if (!item.value) continue;
        const Op plain = global ? Op::StoreG : Op::StoreL;
        const Op counted = global ? Op::StoreGS : Op::StoreLS;
        emit(type.isString() ? counted : plain, static_cast<int32_t>(variable.slot));
    }
}

void Generator::dimStatement(const Stmt& stmt) {
    const Expr& expr = *stmt.exprs[0];
    const ArrayInfo& info = array(expr);
    if (typeOf(expr.mark, expr.pos) != info.type)
        failAt(expr.pos, "Type mismatch, '" + symbols_.name(expr.symbol) + "' is an array of another type");
    for (const ExprPtr& size : expr.kids) expressionAs(*size, {});
    at(stmt.pos);
    emit(Op::DimArray, static_cast<int32_t>(info.index), static_cast<uint32_t>(info.dimensions));
    for (const Block& more : stmt.blocks) block(more);
}

void Generator::dataStatement(const Stmt& stmt) {
    if (stmt.kind == StmtKind::Restore) {
        if (stmt.hasSymbol) context_.jumps.push_back({code_.code.size(), stmt.symbol, stmt.pos});
        here();
        emit(Op::Restore);
        return;
    }
    for (const ExprPtr& target : stmt.exprs) {
        const Type type = target->kind == ExprKind::Call ? Type{} : targetType(*target);
        if (type.isObject()) failAt(target->pos, "Objects cannot be read from data");
        emit(type.isString() ? Op::ReadStr : type.kind == Type::Kind::Float ? Op::ReadFloat : Op::ReadInt);
        store(*target, type);
    }
}

void Generator::objectStatement(const Stmt& stmt) {
    if (stmt.kind == StmtKind::DeleteEach) return emit(Op::DeleteEach, typeIndex(stmt.symbol, stmt.pos));
    const Type type = expression(*stmt.exprs[0]);
    if (!type.isObject()) failAt(stmt.exprs[0]->pos, "An object is needed here");
    if (stmt.kind == StmtKind::Delete) return emit(Op::Delete);
    const Type place = expression(*stmt.exprs[1]);
    if (type.kind == Type::Kind::Null || type != place)
        failAt(stmt.exprs[1]->pos, "Both objects must be of the same type");
    at(stmt.pos);
    emit(stmt.op == Tok::KwBefore ? Op::InsertBefore : Op::InsertAfter);
}

void Generator::jumpStatement(const Stmt& stmt) {
    switch (stmt.kind) {
    case StmtKind::End: return emit(Op::End);
    case StmtKind::Stop: return emit(Op::Stop);
    case StmtKind::Exit:
        if (context_.loops.empty()) failAt(stmt.pos, "'Exit' must appear inside a loop");
        context_.loops.back().exits.push_back(jump(Op::Jump));
        return;
    default: break;
    }
    if (stmt.kind == StmtKind::Gosub) context_.hasGosub = true;
    const size_t ins = jump(stmt.kind == StmtKind::Goto ? Op::Jump : Op::Gosub);
    context_.jumps.push_back({ins, stmt.symbol, stmt.pos});
    here();
}

void Generator::label(const Stmt& stmt) {
    const LabelInfo info{static_cast<int32_t>(here()), static_cast<int32_t>(stmt.dataIndex)};
    if (!context_.labels.try_emplace(stmt.symbol, info).second)
        failAt(stmt.pos, "Duplicate label '" + symbols_.name(stmt.symbol) + "'");
}

void Generator::returnStatement(const Stmt& stmt) {
    if (context_.isMain) {
        if (!stmt.exprs.empty()) failAt(stmt.exprs[0]->pos, "The main program cannot return a value");
        return emit(Op::ReturnSub);
    }
    if (stmt.exprs.empty()) {
        if (context_.hasGosub) emit(Op::ReturnSubOrCall);
        return emit(Op::ReturnVoid);
    }
    expressionAs(*stmt.exprs[0], context_.result);
    emit(context_.result.isString() ? Op::ReturnStr : Op::Return);
}

}
