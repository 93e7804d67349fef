// Checks a parsed program and makes its code in one walk over the tree.
// Names become slots, types are checked and converted; the first fault is thrown as CompileError.
#pragma once

#include "generate/Code.h"
#include "generate/Decls.h"
#include "parse/Ast.h"

namespace blitz {

/// A value's type; size >= 0 makes it a fixed array of that type with size + 1 elements.
struct Type {
    enum class Kind : uint8_t { Int, Float, String, Object, Null };
    Kind kind = Kind::Int;
    int32_t object = -1; // index of the type when Kind::Object
    int32_t size = -1;

    bool isArray() const { return size >= 0; }
    bool isNumber() const { return !isArray() && kind <= Kind::Float; }
    bool isString() const { return !isArray() && kind == Kind::String; }
    bool isObject() const { return !isArray() && kind >= Kind::Object; }
    bool operator==(const Type&) const = default;
};

/// The value of a constant expression.
struct Constant {
    Type type;
    int32_t integer = 0;
    float real = 0;
    std::string text;
};

class Generator {
public:
    Generator(const Program& program, Symbols& symbols, const Decls& decls);

    /// Checks the program and returns its code. Throws CompileError.
    Code generate();

private:
    struct Variable {
        enum class Where : uint8_t { Local, Global, Constant } where = Where::Local;
        Type type;
        uint32_t slot = 0; // or the index into constants_
    };
    struct FieldInfo {
        Type type;
        uint32_t index = 0;
    };
    struct TypeInfo {
        std::unordered_map<Symbol, FieldInfo> fields;
    };
    struct ArrayInfo {
        Type type;
        uint32_t index = 0;
        size_t dimensions = 0;
    };
    struct FunctionInfo {
        const FunctionDecl* decl = nullptr;
        Type result;
        std::vector<Type> parameters;
        size_t required = 0;
        std::vector<Constant> defaults; // of the parameters after the required ones
    };
    struct LabelInfo {
        int32_t target = 0;
        int32_t data = 0;
    };
    struct PendingJump {
        size_t ins = 0;
        Symbol label = 0;
        Pos pos;
    };
    struct Loop {
        std::vector<size_t> exits;
    };
    // What belongs to the function (or the main program) being generated.
    struct Context {
        FunctionCode code;
        Type result;
        bool isMain = true;
        bool hasGosub = false;
        std::unordered_map<Symbol, Variable> variables;
        std::unordered_map<Symbol, LabelInfo> labels;
        std::vector<PendingJump> jumps;
        std::vector<Loop> loops;
    };

    // Declarations.
    void declareConstants();
    void declareTypes();
    void declareFields(size_t index);
    void declareArrays();
    void declareFunctions();
    void declareData();
    void generateMain();
    void generateFunction(size_t index);
    void finishContext();
    Type typeOf(const TypeMark& mark, const Pos& pos) const;
    Type declaredType(const Declaration& item);
    int32_t typeIndex(Symbol name, const Pos& pos) const;
    Variable& declare(Symbol name, const Type& type, bool global, const Pos& pos);
    uint32_t hiddenSlot(Storage storage);
    const Variable* findVariable(Symbol name) const;
    Variable variableFor(const Expr& name);
    void checkMark(const TypeMark& mark, const Type& type, const Pos& pos, Symbol name) const;
    std::string typeName(const Type& type) const;

    // Constants.
    Constant constant(const Expr& expr);
    Constant constantUnary(const Expr& expr);
    Constant constantBinary(const Expr& expr);
    Constant converted(Constant value, const Type& type, const Pos& pos) const;
    void push(const Constant& value);

    // Expressions: each leaves its value on the stack.
    Type expression(const Expr& expr);
    void expressionAs(const Expr& expr, const Type& type);
    void condition(const Expr& expr);
    Type unary(const Expr& expr);
    Type signOrConversion(const Expr& expr);
    Type binary(const Expr& expr);
    Type arithmetic(const Expr& expr);
    Type comparison(Tok op, const Type& left, const Expr& right, const Pos& pos);
    Type bitwise(const Expr& expr);
    Type joined(const Type& left, const Expr& right, Tok op, const Pos& pos);
    Type load(const Expr& expr);
    void store(const Expr& target, const Type& value);
    Type targetType(const Expr& target);
    Type address(const Expr& expr);
    const FieldInfo& field(const Expr& expr, const Type& object) const;
    const ArrayInfo& array(const Expr& expr);
    void convert(const Type& from, const Type& to, const Pos& pos);
    Type call(const Expr& expr, bool wantsResult);
    Type callFunction(const Expr& expr, const FunctionInfo& function, int32_t index);
    Type callCommand(const Expr& expr, const Command& command, int32_t index, bool wantsResult);
    void commandArguments(const Expr& expr, const Command& command);

    // Statements.
    void block(const Block& statements);
    void statement(const Stmt& stmt);
    void jumpStatement(const Stmt& stmt);
    void dataStatement(const Stmt& stmt);
    void objectStatement(const Stmt& stmt);
    void callStatement(const Stmt& stmt);
    void assignStatement(const Stmt& stmt);
    void localStatement(const Stmt& stmt);
    void dimStatement(const Stmt& stmt);
    void returnStatement(const Stmt& stmt);
    void ifStatement(const Stmt& stmt);
    void whileStatement(const Stmt& stmt);
    void repeatStatement(const Stmt& stmt);
    void forStatement(const Stmt& stmt);
    void forEachStatement(const Stmt& stmt);
    void selectStatement(const Stmt& stmt);
    void label(const Stmt& stmt);

    // Emission.
    void emit(Op op, int32_t a = 0, uint32_t x = 0);
    bool fuse(Op op, int32_t a, uint32_t x);
    bool fuseArithmetic(Op op);
    bool fuseJump(Op op, int32_t target);
    size_t jump(Op op, size_t target = 0);
    size_t here();
    void patch(size_t jump) { code_.code[jump].a = static_cast<int32_t>(here()); }
    void patchAll(const Loop& loop);
    void at(const Pos& pos) { pos_ = pos; }
    int32_t stringIndex(const std::string& text);

    const Program& program_;
    Symbols& symbols_;
    const Decls& decls_;
    Code code_;
    Context context_;
    Pos pos_;
    size_t barrier_ = 0; // instructions before it are jumped to, so not to be fused
    size_t statementAt_ = 0;
    std::unordered_map<Symbol, Variable> globals_;
    std::vector<Constant> constants_;
    std::unordered_map<Symbol, int32_t> typeByName_;
    std::vector<TypeInfo> types_;
    std::unordered_map<Symbol, ArrayInfo> arrays_;
    std::unordered_map<Symbol, int32_t> functionByName_;
    std::vector<FunctionInfo> functions_;
    std::unordered_map<Symbol, LabelInfo> mainLabels_;
    std::unordered_map<std::string, int32_t> stringIndex_;
    std::unordered_map<Symbol, int> commandByName_;
};

}
