// Removes a whole document's symbols at once, because unparsing its lines would take longer than loading it.
#include "engine/Mod_Parse.h"

#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/ParserState.h"
#include "sci/Mod_Sci.h"

namespace Mod_Parse {

namespace {

void ForgetIn(clsHash& table) {
    std::vector<SymbolPointer> own;
    for (const SymbolPointer& symbol : table.Items())
        if (symbol->SciWndData == SciWndData) own.push_back(symbol);
    for (const SymbolPointer& symbol : own) table.RemoveRecord(symbol->Key(), *symbol);
}

} // namespace

void ForgetFile() {
    ClsProject& project = *gCurrentProject;
    for (clsHash* table :
         {&project.Funkcii, &project.Globals, &project.Types, &project.Arrays, &project.Labels,
          &project.Includes, &project.Constants, project.MainFunLocals.get()})
        ForgetIn(*table);
    gActiveDoc->tmpFields.clear();
    for (const int marker : {MarkerFunction, MarkerType, MarkerParsed, MarkerFoldOpens, MarkerFoldCloses,
                             MarkerDeclares, MarkerLocal, MarkerMainProgram, MarkerBlock, MarkerBreakpoint})
        Mod_Sci::MarkerDeleteAll(marker);
    project.MarkAllDirty();
}

} // namespace Mod_Parse
