// Characters that a document's code page lacks.
#pragma once

#include <string>

class frmDoc;

// Makes a UTF-8 document of one in Windows-1252 whose text nothing else can depend on: it was never saved, or
// has no byte above 127. Its text stays what it reads; the status bar tells. For any other document false,
// and the status bar tells that `character` (UTF-8) is left out; empty: it is still being composed, and
// nothing is told.
bool TakeBeyondCodePage(frmDoc& document, const std::string& character);
