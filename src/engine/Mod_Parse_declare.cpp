// What keywords declare: functions, types, and lists of names after Field, Dim, Global, Local and Const.
#include "engine/LineParser.h"

#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/Mod_Parse.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/ParserState.h"
#include "engine/ScopeMoves.h"
#include "engine/SymbolLine.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

namespace Mod_Parse {

void LineParser::Dispatch(Word word) {
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

void LineParser::Fill(Symbol& record, int name, int handle, int scopesBefore) const {
    record.Ime = At(name).Text;
    record.Column = At(name).StartPos;
    record.ScopesBefore = scopesBefore;
    record.Handle = handle;
    record.File = gActiveDoc->Filename;
    record.SciWndData = gActiveDoc->SciEdi_WndData;
    DeclaredOn(record, line_);
}

void LineParser::Label() {
    ++index_;
    gCurrentProject->LabelsDirty = true;
    auto label = std::make_shared<clsLabel>();
    Fill(*label, index_, AddMarker(MarkerDeclares));
    Enter(gCurrentProject->Labels, label);
}

void LineParser::Include() {
    gCurrentProject->IncludesDirty = true;
    auto include = std::make_shared<clsInclude>();
    Fill(*include, index_ + 1, AddMarker(MarkerDeclares));
    Enter(gCurrentProject->Includes, include);
}

// --- functions -------------------------------------------------------------------------------------

void LineParser::Function() {
    SetIndentLevel(1);
    gCurrentProject->FunctionsDirty = true;
    ++foldDelta_;
    auto function = std::make_shared<ClsFunkcija>();
    ++index_;
    ++functionWords_;
    Fill(*function, index_, AddMarker(MarkerFunction));
    const int listStart = BuildFunction(*function);
    if (function->VlezNum > 0) {
        function->Help = Cut(listStart, index_ <= count_ ? At(index_).StartPos : length_ + 1);
        while (function->Help.ends_with('\r') || function->Help.ends_with('\n')) function->Help.pop_back();
    }
    AddMarker(MarkerFoldOpens);
    Enter(gCurrentProject->Funkcii, function);
    SetFunction(function->Ime, function->Locals);
    DeleteEvery(line_, MarkerMainProgram);
    // The token loop reads the rest of the line: brackets there mean nothing, a comment does.
}

// Reads a function header from its name on. Returns the column where the parameter list starts.
int LineParser::BuildFunction(ClsFunkcija& function) {
    const NameTail tail = SuffixTail(index_, count_);
    function.Tip = tail.tip == TipUnnamedType ? static_cast<std::uint8_t>(TipInteger) : tail.tip;
    function.Tajp = tail.tajp;
    if (index_ > count_ || At(index_).Kind != '(') return 0;
    const int listStart = At(index_).StartPos + 1;
    while (NextIsName()) {
        ++index_;
        auto parameter = std::make_shared<ClsLocalVar>();
        Fill(*parameter, index_, function.Handle);
        FillTail(*parameter, GetVarTipColor(index_, count_, lineStart_), true);
        Enter(*function.Locals, parameter);
        ++function.VlezNum;
        if (index_ > count_ || At(index_).Kind != ',') break;
    }
    return listStart;
}

void LineParser::End() {
    ++index_;
    const std::string word = UCase(At(index_).Text);
    if (!opened_.empty() && (word == "FUNCTION" || word == "TYPE" || word == "IF" || word == "SELECT"))
        opened_.pop_back();
    if (word == "FUNCTION") {
        EndFunction();
    } else if (word == "TYPE") {
        EndType();
    } else if (word == "IF") {
        Rewrite(index_, "If");
        ++levels_.closes;
    } else if (word == "SELECT") {
        Rewrite(index_, "Select");
        levels_.closes += 2;
    } else {
        return; // an End alone: the next word is read in its turn
    }
    ++index_;
}

void LineParser::EndFunction() {
    SetIndentLevel(1);
    --foldDelta_;
    Rewrite(index_, "Function");
    SetFunction(MainProgram, gCurrentProject->MainFunLocals);
    // A function that begins and ends on this line does not change where the line belongs.
    if (functionWords_ > 0 && startsOutside_ && !HasMarker(line_, MarkerMainProgram))
        AddMarker(MarkerMainProgram);
    ++functionWords_;
    AddMarker(MarkerFunction);
    AddMarker(MarkerFoldCloses);
    ++levels_.closes;
}

// --- types -----------------------------------------------------------------------------------------

// Looks up the type before the line; most lines do not need it.
void LineParser::KnowType() {
    if (typeKnown_) return;
    typeKnown_ = true;
    if (!sequential_ || CurrentTypeName.empty()) SetType(CurrentType(line_ - 1));
    if (!CurrentTypeName.empty()) fieldsBefore_ = CurrentFields;
}

void LineParser::EndType() {
    Rewrite(index_, "Type");
    KnowType();
    ++typeWords_;
    ForgetType();
    AddMarker(MarkerType);
    AddMarker(MarkerFoldCloses);
    --foldDelta_;
    ++levels_.closes;
}

void LineParser::Type() {
    gCurrentProject->TypesDirty = true;
    KnowType();
    auto type = std::make_shared<ClsType>();
    ++index_;
    ++typeWords_;
    Fill(*type, index_, AddMarker(MarkerType));
    AddMarker(MarkerFoldOpens);
    Enter(gCurrentProject->Types, type);
    SetType(type->Ime, type->Fields);
    ++foldDelta_;
    ++index_;
}

// Moves the symbols below the line to the scopes that the line leaves open. While a whole file is parsed the
// tables hold nothing below the line.
void LineParser::MoveBelow() {
    if (ParsingFile) return;
    if (functionWords_ > 0) MoveLocalsBelow(line_, *localsBefore_, *CurrentLocals);
    if (typeWords_ > 0)
        MoveFieldsBelow(line_, fieldsBefore_.get(), CurrentTypeName.empty() ? nullptr : CurrentFields.get());
}

// --- lists of names --------------------------------------------------------------------------------

void LineParser::OpenDeclarations(Word word) {
    ClsProject& project = *gCurrentProject;
    switch (word) {
    case Word::Field:
        project.FieldsDirty = true;
        KnowType();
        break;
    case Word::Local: project.LocalsDirty = true; break;
    case Word::Dim: project.ArraysDirty = true; break;
    case Word::Global: project.GlobalsDirty = true; break;
    default: project.ConstantsDirty = true;
    }
}

void LineParser::Place(Word word, std::shared_ptr<Symbol> record) {
    ClsProject& project = *gCurrentProject;
    switch (word) {
    case Word::Field:
        if (CurrentTypeName.empty())
            gActiveDoc->tmpFields[record->Handle] = std::static_pointer_cast<ClsField>(record);
        else
            Enter(*CurrentFields, record);
        break;
    case Word::Local: Enter(*CurrentLocals, record); break;
    case Word::Dim: Enter(project.Arrays, record); break;
    case Word::Global: Enter(project.Globals, record); break;
    default: Enter(project.Constants, record);
    }
}

void LineParser::Declarations(Word word) {
    OpenDeclarations(word);
    const auto make = [word]() -> std::shared_ptr<Symbol> {
        switch (word) {
        case Word::Field: return std::make_shared<ClsField>();
        case Word::Local: return std::make_shared<ClsLocalVar>();
        case Word::Dim: return std::make_shared<ClsArrayVar>();
        case Word::Global: return std::make_shared<ClsGlobalVar>();
        default: return std::make_shared<clsConstant>();
        }
    };
    while (NextIsName()) {
        ++index_;
        auto record = make();
        Fill(*record, index_, AddMarker(word == Word::Local ? MarkerLocal : MarkerDeclares),
             word == Word::Field ? typeWords_ : functionWords_);
        const bool array = word == Word::Dim;
        FillTail(*record,
                 array ? GetArrayVarTipColor(index_, count_, lineStart_)
                       : GetVarTipColor(index_, count_, lineStart_),
                 !array);
        Place(word, std::move(record));
        if (index_ > count_ || At(index_).Kind != ',') return;
    }
    ++index_; // the comma that no name followed
}

void LineParser::FillTail(Symbol& record, const NameTail& tail, bool isVariable) const {
    record.Tip = tail.tip;
    if (tail.tip == TipCustom) record.Tajp = tail.tajp;
    if (!tail.closed) return;
    if (isVariable) record.IsBBArray = true;
    record.ArraySize = Cut(At(tail.bracket).StartPos, At(index_ - 1).StartPos + 1);
}

} // namespace Mod_Parse
