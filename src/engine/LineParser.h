// The state of one call of Parseline. For the engine's own files.
#pragma once

#include "engine/ClsCompiler.h"
#include "engine/Levels.h"
#include "engine/Mod_Lexer.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/clsHash.h"

#include <memory>
#include <string>
#include <vector>

namespace Mod_Parse {

class LineParser {
public:
    LineParser(int line, bool sequential);
    int Run();

private:
    using Word = ClsBBFunkcija::Word;

    Token& At(int index) const;
    bool NextIsName() const;
    int AddMarker(int marker);
    void Rewrite(int index, const std::string& spelling);

    void NextToken();
    void Identifier();
    void Block(const std::string& word, int foldMarker, int delta);
    void EndScope(Word word);
    void Indent();

    void Dispatch(Word word);
    void Label();
    void Include();
    void Function();
    int BuildFunction(ClsFunkcija& function);
    void End();
    void EndFunction();
    void EndType();
    void Type();
    void Declarations(Word word);
    void OpenDeclarations(Word word);
    void Place(Word word, std::shared_ptr<Symbol> record);
    void KnowType();
    void MoveBelow();
    void Fill(Symbol& record, int name, int handle, int scopesBefore = 0) const;
    void FillTail(Symbol& record, const NameTail& tail, bool isVariable) const;

    int line_;
    bool sequential_;
    bool indents_ = true;
    int handle_ = 0;
    int lineStart_ = 0;
    int length_ = 0;
    static std::string text_; // parses do not nest
    int index_ = 1;
    int count_ = 0;
    Levels levels_;
    int foldDelta_ = 0;     // fold blocks opened less those closed
    int functionWords_ = 0; // that begin or end a function so far
    int typeWords_ = 0;
    std::vector<std::string>
        opened_; // the words whose scopes are still open at the line's end; kept only on request
    bool typeKnown_ = false;
    std::shared_ptr<clsHash> localsBefore_; // the locals before the line
    std::shared_ptr<clsHash> fieldsBefore_; // null outside every type
    bool startsOutside_ = false;            // of every function
    bool startsWithComment_ = false;
};

} // namespace Mod_Parse
