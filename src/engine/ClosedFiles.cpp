// A symbol of a closed file has no view. Another view may get the address of the old one, so it must not keep
// it.
#include "engine/ClosedFiles.h"

#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "host/Text.h"

namespace {

template <class Visit>
void ForEachTable(ClsProject& project, Visit visit) {
    for (clsHash* table : {&project.Globals, &project.Arrays, &project.Labels, &project.Includes,
                           &project.Constants, &project.Funkcii, &project.Types})
        visit(*table);
    // The main program is a function, too.
    project.Funkcii.ForEach([&](Symbol& symbol) { visit(*static_cast<ClsFunkcija&>(symbol).Locals); });
    project.Types.ForEach([&](Symbol& symbol) { visit(*static_cast<ClsType&>(symbol).Fields); });
}

}

void CloseSymbols(ClsProject& project, std::intptr_t view) {
    ForEachTable(project, [&](clsHash& table) {
        table.ForEach([&](Symbol& symbol) {
            if (symbol.SciWndData != view) return;
            symbol.SciWndData = 0;
            project.HasClosedSymbols = true;
        });
    });
}

void DropClosedSymbols(ClsProject& project) {
    if (!project.HasClosedSymbols) return;
    ForEachTable(project, [&](clsHash& table) {
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
