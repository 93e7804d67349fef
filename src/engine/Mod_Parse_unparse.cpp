// The inverse of a parse: takes back exactly what a line declared, working from its old text.
#include "engine/Mod_Parse.h"

#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/DeclaredNames.h"
#include "engine/DocumentRecord.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/ParserState.h"
#include "engine/ScopeMoves.h"
#include "engine/SymbolLine.h"
#include "host/ErrorLog.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <iterator>

namespace Mod_Parse {

namespace {

using Word = ClsBBFunkcija::Word;

class LineUndo : DeclaredNames {
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
    void One() {
        const Token& token = At(index_);
        if (token.Kind == '.' && index_ == 1 && NextIsName()) {
            gCurrentProject->LabelsDirty = true;
            Remove(gCurrentProject->Labels, At(2).Text);
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
            Remove(gCurrentProject->Includes, next.Text);
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
        Remove(gCurrentProject->Funkcii, name);
        dropFunction_ = true;
        SkipHeader();
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
        MoveLocals(*gCurrentProject->MainFunLocals, *CurrentLocals,
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
        Remove(gCurrentProject->Types, name);
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
        ForEachName(word == Word::Dim ? '(' : '[', [&](const std::string& name) { RemoveOne(word, name); });
    }

    void RemoveOne(Word word, const std::string& name) {
        ClsProject& project = *gCurrentProject;
        switch (word) {
        case Word::Field: RemoveField(name); break;
        case Word::Local: Remove(*CurrentLocals, name); break;
        case Word::Dim:
            project.ArraysDirty = true;
            Remove(project.Arrays, name);
            break;
        case Word::Global:
            project.GlobalsDirty = true;
            Remove(project.Globals, name);
            break;
        default: project.ConstantsDirty = true; Remove(project.Constants, name);
        }
    }

    void RemoveField(const std::string& name) {
        if (!CurrentTypeName.empty()) {
            Remove(*CurrentFields, name);
            return;
        }
        auto& loose = gActiveDoc->tmpFields;
        const auto at = std::find_if(loose.begin(), loose.end(), [&](const auto& entry) {
            return entry.second->Ime == name && LineOf(*entry.second) == line_;
        });
        if (at != loose.end()) loose.erase(at);
    }

    void Remove(clsHash& table, const std::string& name) { table.Remove(name, line_, SciWndData); }

    int line_;
    bool sequential_;
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
