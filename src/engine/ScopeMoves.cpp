// A move asks each symbol's marker where it stands now; no range is stored anywhere.
#include "engine/ScopeMoves.h"

#include "engine/DocumentRecord.h"
#include "engine/Markers.h"
#include "engine/SymbolLine.h"
#include "sci/Mod_Sci.h"

#include <vector>

namespace Mod_Parse {

namespace {

// The symbols of the active view among `all` that stand in a range of lines.
std::vector<SymbolPointer> InRange(const std::vector<SymbolPointer>& all, LineRange range) {
    std::vector<SymbolPointer> inside;
    for (const SymbolPointer& symbol : all) {
        if (symbol->SciWndData != SciWndData) continue;
        const int line = LineOf(*symbol);
        if (line >= range.from && line < range.end) inside.push_back(symbol);
    }
    return inside;
}

std::vector<SymbolPointer> Loose() {
    std::vector<SymbolPointer> fields;
    for (const auto& entry : gActiveDoc->tmpFields) fields.push_back(entry.second);
    return fields;
}

void Move(clsHash& from, clsHash& to, LineRange range) {
    for (const SymbolPointer& symbol : InRange(from.Items(), range)) {
        to.Add(symbol->Ime, symbol);
        from.RemoveRecord(symbol->Ime, *symbol);
    }
}

} // namespace

std::string KnownText(int line) {
    const PipelineState& state = gActiveDoc->State;
    return line == state.UnparsedLine ? state.UnparsedText : Mod_Sci::LineText(line);
}

int NextLineWith(int line, int marker) {
    const int next = static_cast<int>(Mod_Sci::MarkerNext(line, MaskOf(marker)));
    return next < 0 ? NoEnd : next;
}

void MoveLocals(clsHash& from, clsHash& to, LineRange range) { Move(from, to, range); }

void MoveFields(clsHash& from, clsHash& to, LineRange range) { Move(from, to, range); }

void TakeLooseFields(clsHash& fields, LineRange range) {
    for (const SymbolPointer& symbol : InRange(Loose(), range)) {
        fields.Add(symbol->Ime, symbol);
        gActiveDoc->tmpFields.erase(symbol->Handle);
    }
}

void ReleaseFields(clsHash& fields, LineRange range) {
    for (const SymbolPointer& symbol : InRange(fields.Items(), range)) {
        gActiveDoc->tmpFields[symbol->Handle] = std::static_pointer_cast<ClsField>(symbol);
        fields.RemoveRecord(symbol->Ime, *symbol);
    }
}

} // namespace Mod_Parse
