// The parser: tokens of the main file and its includes to one tree.
// It throws CompileError at the first malformed statement.
#pragma once

#include "parse/Ast.h"
#include "parse/Lexer.h"
#include "parse/Sources.h"

#include <unordered_map>
#include <unordered_set>

namespace blitz {

class Parser {
public:
    Parser(Sources& sources, Symbols& symbols) : sources_(sources), symbols_(symbols) {}

    /// Parses the loaded main file and all that it includes. Throws CompileError.
    Program parse();

private:
    // The place of a statement decides which statements are allowed.
    enum class Scope { Main, Inner, Line };

    // Counts the levels of nesting, so that a deeply nested source ends in a message.
    class Level {
    public:
        explicit Level(Parser& parser);
        ~Level() { --parser_.level_; }
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;

    private:
        Parser& parser_;
    };

    const Token& token(size_t ahead = 0) const { return lexer_->peek(ahead); }
    Tok kind(size_t ahead = 0) const { return token(ahead).kind; }
    bool atTerminator() const;
    void advance() { lexer_->advance(); }
    bool accept(Tok wanted);
    Pos expect(Tok wanted);
    Symbol expectName(const char* what);
    [[noreturn]] void unexpected(const std::string& wanted) const;
    TypeMark typeMark();

    // Statements.
    void parseFile(uint32_t file, Block& block);
    void statements(Block& block, Scope scope);
    bool statement(Block& block, Scope scope);
    bool simpleStatement(Stmt& stmt);
    bool jumpStatement(Stmt& stmt);
    bool blockStatement(Stmt& stmt);
    bool topStatement(Scope scope);
    void nameStatement(Stmt& stmt);
    void callArguments(Expr& call);
    bool wholeInBrackets() const;
    void includeStatement(Block& block);
    void insertStatement(Stmt& stmt);
    void deleteStatement(Stmt& stmt);
    void dimStatement(Stmt& stmt);

    // Blocks and declarations.
    void ifStatement(Stmt& stmt);
    void forStatement(Stmt& stmt);
    void selectStatement(Stmt& stmt);
    void repeatStatement(Stmt& stmt);
    void body(Block& block, Tok closer, const Pos& opener, const char* openerName);
    void close(Tok closer, const Pos& opener, const char* openerName);
    void typeDeclaration();
    void functionDeclaration();
    void declarationList(std::vector<Declaration>& list);
    Declaration declaration();
    void skipLines();

    // Expressions.
    ExprPtr expression();
    ExprPtr logical();
    ExprPtr comparison();
    ExprPtr sum();
    ExprPtr shift();
    ExprPtr product();
    ExprPtr power();
    ExprPtr unary();
    ExprPtr primary();
    ExprPtr literal();
    ExprPtr typed(ExprKind kind);
    ExprPtr variable();
    ExprPtr variableTail(ExprPtr base);
    void expressionList(std::vector<ExprPtr>& list);
    bool startsExpression() const;
    ExprPtr make(ExprKind kind) const;
    ExprPtr finish(ExprPtr node);
    ExprPtr binary(ExprPtr left, Tok op, ExprPtr right);

    Sources& sources_;
    Symbols& symbols_;
    Program program_;
    Lexer* lexer_ = nullptr;                    // of the file at hand
    std::unordered_map<Symbol, size_t> arrays_; // the names that Dim has met so far
    int level_ = 0;
    bool inFunction_ = false;
};

}
