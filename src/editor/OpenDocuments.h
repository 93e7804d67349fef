// The open documents in the order of their windows.
#pragma once

#include "editor/frmDoc.h"

#include <vector>

// All open documents, or those of the active document's project, round from the active one, which comes
// first. Empty without an active document that has a window.
std::vector<frmDoc*> DocumentsFrom(bool ofProject);

// Makes a document that has a window the active one, without a step between that could be seen.
void BringToFront(frmDoc& document);
