// The generator's calls: the program's functions first, then library functions, then commands.
// Arguments are converted to their parameters' types; those left out get their defaults.
#include "generate/Generator.h"

namespace blitz {

Type Generator::call(const Expr& expr, bool wantsResult) {
    if (const auto entry = functionByName_.find(expr.symbol); entry != functionByName_.end())
        return callFunction(expr, functions_[static_cast<size_t>(entry->second)], entry->second);
    const std::string lowered = lowerText(symbols_.name(expr.symbol));
    if (const LibraryFunction* function = decls_.find(lowered))
        return callCommand(expr, function->command, -1, wantsResult);
    auto [cached, isNew] = commandByName_.try_emplace(expr.symbol, -1);
    if (isNew) cached->second = CommandTable::instance().find(lowered);
    if (cached->second < 0) failAt(expr.pos, "Function '" + symbols_.name(expr.symbol) + "' not found");
    const Command& command = CommandTable::instance().commands()[static_cast<size_t>(cached->second)];
    return callCommand(expr, command, cached->second, wantsResult);
}

Type Generator::callFunction(const Expr& expr, const FunctionInfo& function, int32_t index) {
    checkMark(expr.mark, function.result, expr.pos, expr.symbol);
    const size_t count = function.parameters.size();
    if (expr.kids.size() > count)
        failAt(expr.pos, "Too many parameters for function '" + symbols_.name(expr.symbol) + "'");
    if (expr.kids.size() < function.required)
        failAt(expr.pos, "Not enough parameters for function '" + symbols_.name(expr.symbol) + "'");
    for (size_t i = 0; i < count; ++i) {
        if (i < expr.kids.size())
            expressionAs(*expr.kids[i], function.parameters[i]);
        else
            push(function.defaults[i - function.required]);
    }
    at(expr.pos);
    emit(Op::Call, index + 1);
    return function.result;
}

void Generator::commandArguments(const Expr& expr, const Command& command) {
    if (expr.kids.size() > command.parameters.size())
        failAt(expr.pos, "Too many parameters for '" + command.name + "'");
    if (expr.kids.size() < command.required)
        failAt(expr.pos, "Not enough parameters for '" + command.name + "'");
    for (size_t i = 0; i < command.parameters.size(); ++i) {
        const ValueKind kind = command.parameters[i];
        Type type;
        if (kind != ValueKind::Int)
            type.kind = kind == ValueKind::Float ? Type::Kind::Float : Type::Kind::String;
        if (i < expr.kids.size())
            expressionAs(*expr.kids[i], type);
        else
            emit(Op::PushNull);
    }
}

Type Generator::callCommand(const Expr& expr, const Command& command, int32_t index, bool wantsResult) {
    Type result;
    if (command.result != ValueKind::Int)
        result.kind = command.result == ValueKind::Float ? Type::Kind::Float : Type::Kind::String;
    checkMark(expr.mark, result, expr.pos, expr.symbol);
    if (wantsResult && !command.hasResult) failAt(expr.pos, "'" + command.name + "' has no result");
    commandArguments(expr, command);
    at(expr.pos);
    if (index < 0)
        emit(Op::Library, stringIndex(command.name));
    else
        emit(Op::CallCommand, index, static_cast<uint32_t>(expr.kids.size()));
    return result;
}

}
