// The state of one call of Parseline. For the engine's own files.
#pragma once

#include "engine/ClsCompiler.h"
#include "engine/Mod_Lexer.h"
#include "engine/Symbols.h"

#include <memory>
#include <string>
#include <utility>

namespace Mod_Parse {

// The lines of a whole text from first to last, divided as the edit control divides them. Asking the control
// for each line of a file costs as much as parsing it.
class WholeText {
public:
    explicit WholeText(std::string text) : text_(std::move(text)) {}
    // Moves the next line, with its line end, to `line`; answers the position where it starts.
    int Next(std::string& line);

private:
    std::string text_;
    std::size_t at_ = 0;
};

class LineParser {
public:
    // `source`: where the line's text comes from while a fresh document is parsed; null asks the control.
    LineParser(int line, bool sequential, WholeText* source = nullptr);
    int Run();

private:
    using Word = ClsBBFunkcija::Word;

    // What a declared name carries behind itself.
    struct NameTail {
        std::uint8_t tip = TipInteger;
        std::string tajp;
        int bracket = 0; // index of the opening bracket's token, 0 for none
        bool closed = false;
    };

    Token& At(int index) const;
    bool NextIsName() const;
    int AddMarker(int marker);
    void Rewrite(int index, const std::string& spelling);

    void One();
    void Identifier();
    void Comment();
    void Block(const std::string& word, int foldMarker, int delta);
    void EndScope(Word word);
    void General();
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
    NameTail GetVarTipColor();
    NameTail GetArrayVarTipColor();
    void SuffixTail(NameTail& tail);
    void TakeBounds(NameTail& tail, char close);
    void Fill(Symbol& record, const std::string& name, int handle) const;
    void FillTail(Symbol& record, const NameTail& tail, bool isVariable) const;

    void ReadLine();

    int line_;
    bool sequential_;
    WholeText* source_;
    bool indents_ = true;
    int handle_ = 0;
    int lineStart_ = 0;
    static std::string text_; // parses do not nest
    int index_ = 1;
    int count_ = 0;
    int opens_ = 0;     // levels that the line opens for the next
    int closes_ = 0;    // levels that it closes before itself
    int foldDelta_ = 0; // fold blocks opened less those closed
    bool functionLine_ = false;
    bool startsWithComment_ = false;
};

} // namespace Mod_Parse
