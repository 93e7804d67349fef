// A symbol of a closed file has no view. Another view may get the address of the old one, so it must not keep
// it.
#include "engine/ClosedFiles.h"

#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "host/Text.h"

void CloseSymbols(ClsProject& project, std::intptr_t view) {
    project.ForEachTable([&](clsHash& table) {
        table.ForEach([&](Symbol& symbol) {
            if (symbol.SciWndData != view) return;
            symbol.SciWndData = 0;
            project.HasClosedSymbols = true;
        });
    });
}

void DropClosedSymbols(ClsProject& project) {
    if (!project.HasClosedSymbols) return;
    project.ForEachTable([&](clsHash& table) {
        for (const SymbolPointer& symbol : table.Items())
            if (symbol->SciWndData == 0 && symbol->Handle != 0 && symbol->File == gActiveDoc->Filename)
                table.RemoveRecord(symbol->Key(), *symbol);
    });
}

int NamesakesBefore(const clsHash& table, const Symbol& symbol) {
    int before = 0;
    for (const SymbolPointer& other : table.Items()) {
        if (other.get() == &symbol) break;
        if (other->File == symbol.File && EqualNoCase(other->Ime, symbol.Ime)) ++before;
    }
    return before;
}

SymbolPointer NamesakeOf(std::intptr_t view, const clsHash& table, std::string_view name, int before) {
    SymbolPointer found;
    for (const SymbolPointer& symbol : table.Items()) {
        if (symbol->SciWndData != view || !EqualNoCase(symbol->Ime, name)) continue;
        found = symbol;
        if (before-- == 0) break;
    }
    return found;
}
