// The tree that the parser makes of a program: expressions, statements and declarations.
// The nodes hold what was written; names are resolved by the generator.
#pragma once

#include "parse/Tokens.h"

#include <memory>

namespace blitz {

/// The type mark behind a name as written: a%, a#, a$, a.Thing or none.
struct TypeMark {
    enum class Kind : uint8_t { None, Int, Float, String, Named };
    Kind kind = Kind::None;
    Symbol name = 0;
};

enum class ExprKind : uint8_t {
    Int,    // integer
    Float,  // real
    String, // text
    Null,
    Name,    // variable or constant
    Call,    // symbol(kids)
    Element, // element of a Dim array: symbol(kids)
    Index,   // element of a fixed array: kids[0] [ kids[1] ]
    Field,   // kids[0] \ symbol
    New,     // of type symbol, like First and Last
    First,
    Last,
    Object, // Object.symbol(kids[0])
    Unary,  // op kids[0]: sign, ~, Not, Abs, Sgn, Int, Float, Str, Before, After, Handle
    Binary, // kids[0] op kids[1]
};

struct Expr;
using ExprPtr = std::unique_ptr<Expr>;

struct Expr {
    ExprKind kind = ExprKind::Int;
    Tok op = Tok::End;
    TypeMark mark;
    Symbol symbol = 0;
    int32_t integer = 0;
    float real = 0;
    uint32_t depth = 1;    // levels of the tree below and with this node
    std::string_view text; // into the source
    Pos pos;
    std::vector<ExprPtr> kids;
};

/// A declared variable, parameter, field or constant.
struct Declaration {
    Symbol name = 0;
    TypeMark mark;
    Pos pos;
    ExprPtr value; // initial value or default
    ExprPtr size;  // the [n] of a fixed array
};

enum class StmtKind : uint8_t {
    Assign,  // exprs[0] = exprs[1]
    Call,    // exprs[0] is a Call
    If,      // exprs[i] -> blocks[i]; one more block is the Else
    While,   // exprs[0], blocks[0]
    Repeat,  // blocks[0], exprs[0] if Until
    For,     // exprs: variable, from, to, [step]
    ForEach, // exprs[0] variable, symbol the type
    Select,  // exprs[0], cases, blocks; one more block is the Default
    Goto,    // symbol, like Gosub, Restore and Label
    Gosub,
    Restore, // hasSymbol: a label was given
    Label,
    Return, // exprs[0] if a value was given
    Exit,
    Local, // declarations
    Global,
    Dim,    // exprs[0] is an Element
    Read,   // exprs
    Delete, // exprs[0]
    DeleteEach,
    Insert, // exprs[0] Before or After (op) exprs[1]
    End,
    Stop,
};

struct Stmt;
using Block = std::vector<Stmt>;

struct Stmt {
    StmtKind kind = StmtKind::End;
    Tok op = Tok::End;
    bool hasSymbol = false;
    Symbol symbol = 0;
    uint32_t dataIndex = 0; // a label: the first Data item after it
    Pos pos;
    std::vector<ExprPtr> exprs;
    std::vector<std::vector<ExprPtr>> cases;
    std::vector<Block> blocks;
    std::vector<Declaration> declarations;
};

struct TypeDecl {
    Symbol name = 0;
    Pos pos;
    std::vector<Declaration> fields;
};

struct FunctionDecl {
    Symbol name = 0;
    TypeMark mark;
    Pos pos;
    Pos endPos;
    std::vector<Declaration> parameters;
    Block body;
};

/// An array named by Dim; the mark and the count of dimensions must be the same at each Dim.
struct ArrayDecl {
    Symbol name = 0;
    TypeMark mark;
    Pos pos;
    size_t dimensions = 0;
};

/// A whole program with all its included files.
struct Program {
    Block main;
    Pos endPos;
    std::vector<TypeDecl> types;
    std::vector<FunctionDecl> functions;
    std::vector<ArrayDecl> arrays;
    std::vector<Declaration> constants;
    std::vector<ExprPtr> data;
};

}
