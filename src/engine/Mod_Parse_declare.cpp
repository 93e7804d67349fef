// What a keyword declares: functions, types, and the lists of names behind Field, Dim, Global, Local, Const.
#include "engine/LineParser.h"

#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/Mod_Parse.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/ParserState.h"
#include "engine/ScopeMoves.h"
#include "engine/SymbolLine.h"
#include "host/Paths.h"
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

void LineParser::Fill(Symbol& record, const std::string& name, int handle) const {
    record.Ime = name;
    record.Handle = handle;
    record.File = gActiveDoc->Filename;
    record.SciWndData = gActiveDoc->SciEdi_WndData;
    DeclaredOn(record, line_);
}

void LineParser::Label() {
    ++index_;
    gCurrentProject->LabelsDirty = true;
    auto label = std::make_shared<clsLabel>();
    Fill(*label, At(index_).Text, AddMarker(MarkerDeclares));
    gCurrentProject->Labels.Add(label->Ime, label);
}

void LineParser::Include() {
    gCurrentProject->IncludesDirty = true;
    auto include = std::make_shared<clsInclude>();
    Fill(*include, At(index_ + 1).Text, AddMarker(MarkerDeclares));
    gCurrentProject->Includes.Add(include->Ime, include);
}

// --- functions -------------------------------------------------------------------------------------

void LineParser::Function() {
    IndentLevel = 1;
    gCurrentProject->FunctionsDirty = true;
    ++foldDelta_;
    auto function = std::make_shared<ClsFunkcija>();
    ++index_;
    functionLine_ = true;
    Fill(*function, At(index_).Text, AddMarker(MarkerFunction));
    const int listStart = BuildFunction(*function);
    if (function->VlezNum > 0) {
        std::string_view list = text_;
        list.remove_prefix(static_cast<std::size_t>(listStart) - 1);
        if (index_ <= count_)
            list = list.substr(0, static_cast<std::size_t>(At(index_).StartPos - listStart));
        while (list.ends_with('\r') || list.ends_with('\n')) list.remove_suffix(1);
        function->Help = std::string(list);
    }
    AddMarker(MarkerFoldOpens);

    if (!sequential_ || CurrentFunctionName.empty()) CurrentFunctionName = CurrentFunction(line_ - 1);
    // While a whole file is parsed nothing below is in the tables yet, and nothing has to be looked for. What
    // stands on this line in front of the word stays outside.
    if (!ParsingFile) {
        if (CurrentFunctionName == MainProgram) {
            const int nextEnd = NextLineWith(line_ + 1, MarkerFunction);
            if (const int local = NextLineWith(line_ + 1, MarkerLocal); local != NoEnd && local <= nextEnd)
                MoveLocals(*CurrentLocals, *function->Locals, {line_ + 1, nextEnd});
        } else {
            MoveLocals(*CurrentLocals, *function->Locals, {line_ + 1, NoEnd});
        }
    }
    gCurrentProject->Funkcii.Add(function->Ime, function);
    CurrentFunctionName = function->Ime;
    CurrentLocals = function->Locals;
    DeleteEvery(line_, MarkerMainProgram);
    // What stands behind the header is the walk's: its bracket means nothing there, a comment does.
}

// Reads the header from the name on. Answers the column where the parameter list starts.
int LineParser::BuildFunction(ClsFunkcija& function) {
    const NameTail tail = SuffixTail(index_, count_);
    function.Tip = tail.tip == TipUnnamedType ? static_cast<std::uint8_t>(TipInteger) : tail.tip;
    function.Tajp = tail.tajp;
    if (index_ > count_ || At(index_).Kind != '(') return 0;
    const int listStart = At(index_).StartPos + 1;
    while (NextIsName()) {
        ++index_;
        auto parameter = std::make_shared<ClsLocalVar>();
        Fill(*parameter, At(index_).Text, function.Handle);
        FillTail(*parameter, GetVarTipColor(index_, count_, lineStart_), true);
        function.Locals->Add(parameter->Ime, parameter);
        ++function.VlezNum;
        if (index_ > count_ || At(index_).Kind != ',') break;
    }
    return listStart;
}

void LineParser::End() {
    ++index_;
    const std::string word = UCase(At(index_).Text);
    if (word == "FUNCTION") {
        EndFunction();
    } else if (word == "TYPE") {
        EndType();
    } else if (word == "IF") {
        Rewrite(index_, "If");
        ++closes_;
    } else if (word == "SELECT") {
        Rewrite(index_, "Select");
        closes_ += 2;
    } else {
        return; // an End alone: the word behind it is taken in its turn
    }
    ++index_;
}

void LineParser::EndFunction() {
    IndentLevel = 1;
    --foldDelta_;
    Rewrite(index_, "Function");
    if (!sequential_ || CurrentFunctionName.empty()) CurrentFunctionName = CurrentFunction(line_);
    if (CurrentFunctionName != MainProgram) {
        CurrentFunctionName.clear();
        if (!ParsingFile) {
            const int nextEnd = NextLineWith(line_ + 1, MarkerFunction);
            if (const int local = NextLineWith(line_, MarkerLocal); local != NoEnd && local <= nextEnd)
                MoveLocals(*CurrentLocals, *gCurrentProject->MainFunLocals, {line_ + 1, NoEnd});
        }
    }
    // A function that begins and ends here leaves the line where it was.
    if (functionLine_ && startsOutside_) AddMarker(MarkerMainProgram);
    functionLine_ = true;
    AddMarker(MarkerFunction);
    AddMarker(MarkerFoldCloses);
    ++closes_;
}

// --- types -----------------------------------------------------------------------------------------

void LineParser::EndType() {
    Rewrite(index_, "Type");
    if (!sequential_ || CurrentTypeName.empty()) CurrentTypeName = CurrentType(line_);
    if (!CurrentTypeName.empty()) {
        CurrentTypeName.clear();
        if (!ParsingFile) ReleaseFields(*CurrentFields, {line_ + 1, NoEnd});
    }
    AddMarker(MarkerType);
    AddMarker(MarkerFoldCloses);
    --foldDelta_;
    ++closes_;
}

void LineParser::Type() {
    gCurrentProject->TypesDirty = true;
    auto type = std::make_shared<ClsType>();
    ++index_;
    const bool known = sequential_ && !CurrentTypeName.empty();
    if (!known) CurrentTypeName = CurrentType(line_ - 1);
    Fill(*type, At(index_).Text, AddMarker(MarkerType));
    AddMarker(MarkerFoldOpens);
    if (CurrentTypeName.empty()) {
        if (!gActiveDoc->tmpFields.empty())
            TakeLooseFields(*type->Fields, {line_ + 1, NextLineWith(line_ + 1, MarkerType)});
    } else if (!ParsingFile) {
        MoveFields(*CurrentFields, *type->Fields, {line_ + 1, NoEnd});
    }
    gCurrentProject->Types.Add(type->Ime, type);
    CurrentTypeName = type->Ime;
    CurrentFields = type->Fields;
    ++foldDelta_;
    ++index_;
}

// --- lists of names --------------------------------------------------------------------------------

void LineParser::OpenDeclarations(Word word) {
    ClsProject& project = *gCurrentProject;
    switch (word) {
    case Word::Field:
        project.FieldsDirty = true;
        if (!sequential_ || CurrentTypeName.empty()) CurrentTypeName = CurrentType(line_);
        break;
    case Word::Local:
        project.LocalsDirty = true;
        if (!sequential_ || CurrentFunctionName.empty()) CurrentFunctionName = CurrentFunction(line_);
        break;
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
            CurrentFields->Add(record->Ime, record);
        break;
    case Word::Local: CurrentLocals->Add(record->Ime, record); break;
    case Word::Dim: project.Arrays.Add(record->Ime, record); break;
    case Word::Global: project.Globals.Add(record->Ime, record); break;
    default: project.Constants.Add(record->Ime, record);
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
        Fill(*record, At(index_).Text, AddMarker(word == Word::Local ? MarkerLocal : MarkerDeclares));
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
    const int start = At(tail.bracket).StartPos;
    record.ArraySize = text_.substr(static_cast<std::size_t>(start) - 1,
                                    static_cast<std::size_t>(At(index_ - 1).StartPos - start + 1));
}

} // namespace Mod_Parse
