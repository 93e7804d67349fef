// Asking for markers, and putting them right.
#include "engine/Markers.h"

#include "engine/ParserState.h"
#include "sci/Mod_Sci.h"

namespace Mod_Parse {

bool HasMarker(int line, int marker) { return (Mod_Sci::MarkerGet(line) & MaskOf(marker)) != 0; }

void DeleteEvery(int line, int marker) {
    while (HasMarker(line, marker)) Mod_Sci::MarkerDelete(line, marker);
}

void MarkMainProgram(int line) {
    if (!CurrentFunctionName.empty() && CurrentFunctionName != MainProgram)
        DeleteEvery(line, MarkerMainProgram);
    else if (!HasMarker(line, MarkerMainProgram))
        Mod_Sci::MarkerAdd(line, MarkerMainProgram);
}

} // namespace Mod_Parse
