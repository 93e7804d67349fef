// The inverse of a parse: takes back exactly what a line declared, working from its old text.
#include "engine/Mod_Parse.h"

#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/ParserState.h"
#include "engine/ScopeMoves.h"
#include "host/ErrorLog.h"
#include "sci/Mod_Sci.h"

namespace Mod_Parse {

namespace {

bool* DirtyFlag(LineEvent::Kind kind) {
    ClsProject& project = *gCurrentProject;
    switch (kind) {
    case LineEvent::Label: return &project.LabelsDirty;
    case LineEvent::Include: return &project.IncludesDirty;
    case LineEvent::Function: return &project.FunctionsDirty;
    case LineEvent::Type: return &project.TypesDirty;
    case LineEvent::Field: return &project.FieldsDirty;
    case LineEvent::Dim: return &project.ArraysDirty;
    case LineEvent::Global: return &project.GlobalsDirty;
    case LineEvent::Const: return &project.ConstantsDirty;
    default: return &project.LocalsDirty;
    }
}

void TakeOut(const LineSymbol& symbol, int line) {
    *DirtyFlag(symbol.event.kind) = true;
    if (symbol.table == nullptr)
        gActiveDoc->tmpFields.erase(symbol.record->Handle);
    else if (symbol.record)
        symbol.table->RemoveRecord(symbol.record->Key(), *symbol.record);
    else
        symbol.table->Remove(symbol.name, line, SciWndData); // which reports that it is not there
}

void TakeBack(int line, bool sequential, const std::optional<std::string>& oldText) {
    gActiveDoc->State.Restyle();
    std::string text = oldText ? *oldText : Mod_Sci::LineText(line);
    const int length = Mod_Lexer::FillLineBuffer(text);
    const int count = Mod_Lexer::Tokenize(text, length, true);
    LineEvents events;
    ReadEvents(Tokens.data(), count, length, events);
    const LineSymbols found = FindLineSymbols(line, sequential, Tokens.data(), events);
    for (const LineSymbol& symbol : found.symbols) TakeOut(symbol, line);
    // The symbols below return to the scope before the line.
    if (found.functions) MoveLocalsBelow(line, *found.localsBehind, *found.localsBefore);
    if (found.types) MoveFieldsBelow(line, found.fieldsBehind.get(), found.fieldsBefore.get());
    for (const int marker : {MarkerMainProgram, MarkerFoldOpens, MarkerFoldCloses, MarkerBlock,
                             MarkerBreakpoint, MarkerParsed, MarkerDeclares})
        DeleteEvery(line, marker);
    if (found.functions) DeleteEvery(line, MarkerFunction);
    if (found.types) DeleteEvery(line, MarkerType);
    if (found.locals) DeleteEvery(line, MarkerLocal);
}

} // namespace

void UnparseLine(int line, bool sequential, const std::optional<std::string>& oldText) {
    Guarded("UnparseLine", "Mod_Parse", [&] { TakeBack(line, sequential, oldText); });
}

void UnparseLineText(int line, const std::string& oldText) { UnparseLine(line, false, oldText); }

} // namespace Mod_Parse
