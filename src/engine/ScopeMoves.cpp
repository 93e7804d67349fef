// A move asks each symbol's marker where it stands now; no range is stored anywhere.
#include "engine/ScopeMoves.h"

#include "engine/DocumentRecord.h"
#include "engine/Markers.h"
#include "sci/Mod_Sci.h"

namespace Mod_Parse {

namespace {

bool Inside(const Symbol& symbol, LineRange range) {
    if (symbol.SciWndData != SciWndData) return false;
    const auto line = Mod_Sci::MarkerLineFromHandle(symbol.Handle);
    return line >= range.from && line < range.end;
}

} // namespace

int NextLineWith(int line, int marker) {
    const int next = static_cast<int>(Mod_Sci::MarkerNext(line, MaskOf(marker)));
    return next < 0 ? NoEnd : next;
}

void MoveSymbols(clsHash& from, clsHash& to, LineRange range) {
    for (const SymbolPointer& symbol : from.Items()) {
        if (!Inside(*symbol, range)) continue;
        to.Add(symbol->Ime, symbol);
        from.RemovePoHandle(symbol->Ime, symbol->Handle);
    }
}

void TakeLooseFields(clsHash& fields, LineRange range) {
    auto& loose = gActiveDoc->tmpFields;
    for (auto at = loose.begin(); at != loose.end();) {
        if (Inside(*at->second, range)) {
            fields.Add(at->second->Ime, at->second);
            at = loose.erase(at);
        } else {
            ++at;
        }
    }
}

void ReleaseFields(clsHash& fields, LineRange range) {
    for (const SymbolPointer& symbol : fields.Items()) {
        if (!Inside(*symbol, range)) continue;
        gActiveDoc->tmpFields[symbol->Handle] = std::static_pointer_cast<ClsField>(symbol);
        fields.RemovePoHandle(symbol->Ime, symbol->Handle);
    }
}

} // namespace Mod_Parse
