// The inverse of a parse: takes back exactly what a line declared, working from its old text.
#include "engine/Mod_Parse.h"

#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/ParserState.h"
#include "engine/ScopeMoves.h"
#include "host/ErrorLog.h"
#include "sci/Mod_Sci.h"

namespace Mod_Parse {

namespace {

using Word = ClsBBFunkcija::Word;

const Token& At(int index) { return Tokens[static_cast<std::size_t>(index)]; }

class LineUndo {
public:
    LineUndo(int line, bool sequential) : line_(line), sequential_(sequential) {}

    void Run(const std::optional<std::string>& oldText) {
        gActiveDoc->State.mOldStartLine = -100;
        std::string text = oldText ? *oldText : Mod_Sci::LineText(line_);
        const int length = Mod_Lexer::FillLineBuffer(text);
        count_ = Mod_Lexer::Tokenize(text, length, true);
        for (const int marker :
             {MarkerMainProgram, MarkerFoldOpens, MarkerFoldCloses, MarkerBlock, MarkerBreakpoint})
            DeleteEvery(line_, marker);
        for (index_ = 1; index_ < count_;) One();
        DeleteEvery(line_, MarkerParsed);
        DeleteEvery(line_, MarkerDeclares);
        if (dropFunction_) DeleteEvery(line_, MarkerFunction);
        if (dropType_) DeleteEvery(line_, MarkerType);
        if (dropLocal_) DeleteEvery(line_, MarkerLocal);
    }

private:
    bool NextIsName() const { return index_ < count_ && At(index_ + 1).Kind == TOK_IDENT; }

    void One() {
        const Token& token = At(index_);
        if (token.Kind == '.' && index_ == 1 && NextIsName()) {
            gCurrentProject->LabelsDirty = true;
            gCurrentProject->Labels.Remove(At(2).Text, line_, SciWndData);
            index_ += 2;
            return;
        }
        const ClsBBFunkcija* keyword = token.Kind == TOK_IDENT ? KeywordOf(token) : nullptr;
        // In any case: a function of that name may have given the word its own spelling since the parse.
        if (keyword == nullptr) {
            ++index_;
            return;
        }
        const Token& next = At(index_ + 1);
        if (keyword->word == Word::Include && next.Kind == TOK_STRING && !next.Text.empty()) {
            gCurrentProject->Includes.Remove(next.Text, line_, SciWndData);
            gCurrentProject->IncludesDirty = true;
        } else if (next.Kind == TOK_IDENT) {
            Dispatch(keyword->word);
            return;
        }
        ++index_;
    }

    void Dispatch(Word word) {
        switch (word) {
        case Word::Function: Function(); break;
        case Word::End: End(); break;
        case Word::Type: Type(); break;
        case Word::Field:
        case Word::Dim:
        case Word::Global:
        case Word::Local:
        case Word::Const: Declarations(word); break;
        default: ++index_;
        }
    }

    // The locals of a function that goes fall back to the scope around it.
    void Function() {
        gCurrentProject->FunctionsDirty = true;
        ++index_;
        const std::string name = At(index_).Text;
        CurrentFunctionName = CurrentFunction(line_ - 1);
        if (const SymbolPointer record = gCurrentProject->Funkcii.ItemHandle(name, line_, SciWndData)) {
            for (const SymbolPointer& local : static_cast<ClsFunkcija&>(*record).Locals->Items())
                if (local->Handle != record->Handle) CurrentLocals->Add(local->Ime, local);
        }
        gCurrentProject->Funkcii.Remove(name, line_, SciWndData);
        dropFunction_ = true;
        SkipHeader();
    }

    // A parameter may have a keyword's name; the parser took none of them for one.
    void SkipHeader() {
        SkipSuffix();
        if (index_ > count_ || At(index_).Kind != '(') return;
        while (NextIsName()) {
            ++index_;
            SkipTail('[');
            if (index_ > count_ || At(index_).Kind != ',') return;
        }
    }

    void End() {
        const std::string& word = At(index_ + 1).Text;
        if (word == "Function") {
            ++index_;
            EndFunction();
        } else if (word == "Type") {
            ++index_;
            EndType();
        }
        ++index_;
    }

    void EndFunction() {
        if (!sequential_ || CurrentFunctionName.empty()) CurrentFunctionName = CurrentFunction(line_ - 1);
        dropFunction_ = true;
        if (CurrentFunctionName == MainProgram) return;
        MoveSymbols(*gCurrentProject->MainFunLocals, *CurrentLocals,
                    {line_, NextLineWith(line_ + 1, MarkerFunction)});
    }

    void EndType() {
        if (!sequential_ || CurrentTypeName.empty()) CurrentTypeName = CurrentType(line_ - 1);
        dropType_ = true;
        if (!CurrentTypeName.empty() && !gActiveDoc->tmpFields.empty())
            TakeLooseFields(*CurrentFields, {line_, NextLineWith(line_ + 1, MarkerType)});
    }

    void Type() {
        gCurrentProject->TypesDirty = true;
        ++index_;
        const std::string name = At(index_).Text;
        CurrentTypeName = CurrentType(line_ - 1);
        if (const SymbolPointer record = gCurrentProject->Types.ItemHandle(name, line_, SciWndData)) {
            for (const SymbolPointer& field : static_cast<ClsType&>(*record).Fields->Items()) {
                if (CurrentTypeName.empty())
                    gActiveDoc->tmpFields[field->Handle] = std::static_pointer_cast<ClsField>(field);
                else
                    CurrentFields->Add(field->Ime, field);
            }
        }
        gCurrentProject->Types.Remove(name, line_, SciWndData);
        dropType_ = true;
        ++index_;
    }

    void Declarations(Word word) {
        ClsProject& project = *gCurrentProject;
        if (word == Word::Field) {
            project.FieldsDirty = true;
            if (!sequential_ || CurrentTypeName.empty()) CurrentTypeName = CurrentType(line_ - 1);
        } else if (word == Word::Local) {
            project.LocalsDirty = true;
            if (!sequential_ || CurrentFunctionName.empty()) CurrentFunctionName = CurrentFunction(line_ - 1);
            dropLocal_ = true;
        }
        while (NextIsName()) {
            ++index_;
            RemoveOne(word, At(index_).Text);
            SkipTail(word == Word::Dim ? '(' : '[');
            if (index_ > count_ || At(index_).Kind != ',') return;
        }
        ++index_;
    }

    void RemoveOne(Word word, const std::string& name) {
        ClsProject& project = *gCurrentProject;
        switch (word) {
        case Word::Field: RemoveField(name); break;
        case Word::Local: CurrentLocals->Remove(name, line_, SciWndData); break;
        case Word::Dim:
            project.ArraysDirty = true;
            project.Arrays.Remove(name, line_, SciWndData);
            break;
        case Word::Global:
            project.GlobalsDirty = true;
            project.Globals.Remove(name, line_, SciWndData);
            break;
        default: project.ConstantsDirty = true; project.Constants.Remove(name, line_, SciWndData);
        }
    }

    void RemoveField(const std::string& name) {
        if (!CurrentTypeName.empty()) {
            CurrentFields->Remove(name, line_, SciWndData);
            return;
        }
        auto& loose = gActiveDoc->tmpFields;
        for (auto at = loose.begin(); at != loose.end(); ++at) {
            if (at->second->Ime != name || Mod_Sci::MarkerLineFromHandle(at->first) != line_) continue;
            loose.erase(at);
            return;
        }
    }

    // Steps over what hangs on a declared name, as the parser walked it.
    void SkipTail(char open) {
        SkipSuffix();
        if (index_ > count_) return;
        if (At(index_).Kind == '=' && open == '[') {
            ++index_;
            SkipInitialiser();
        } else if (At(index_).Kind == open) {
            const char close = open == '(' ? ')' : ']';
            while (index_ <= count_ && At(index_).Kind != close) ++index_;
            if (index_ <= count_) ++index_;
        }
    }

    void SkipSuffix() {
        ++index_;
        if (index_ > count_) return;
        if (At(index_).Kind == '.') {
            ++index_;
            if (index_ <= count_ && At(index_).Kind == TOK_IDENT) ++index_;
        } else if (SuffixTip[At(index_).Kind] != 0) {
            ++index_;
        }
    }

    void SkipInitialiser() {
        int depth = 0;
        for (; index_ < count_; ++index_) {
            const std::uint8_t kind = At(index_).Kind;
            if (kind == '(') ++depth;
            if (kind == ')' && --depth < 0) return;
            if ((kind == ':' || kind == ',') && depth == 0) return;
        }
    }

    int line_;
    bool sequential_;
    int index_ = 1;
    int count_ = 0;
    bool dropFunction_ = false;
    bool dropType_ = false;
    bool dropLocal_ = false;
};

} // namespace

void UnparseLine(int line, bool sequential, const std::optional<std::string>& oldText) {
    Guarded("UnparseLine", "Mod_Parse", [&] { LineUndo(line, sequential).Run(oldText); });
}

void UnparseLineText(int line, const std::string& oldText) { UnparseLine(line, false, oldText); }

} // namespace Mod_Parse
