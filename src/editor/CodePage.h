// Characters that a document's code page lacks.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

class frmDoc;

// Converts a Windows-1252 document to UTF-8 if nothing can depend on its bytes: never saved, or no byte above
// 127. Returns false otherwise. The status bar reports the result; with a `character` (UTF-8), that it is
// left out. `grown` is called from the end of the text to its start with each position (bytes from 0) and
// growth (bytes). Opens an undo group, which the next insertion joins.
bool TakeBeyondCodePage(frmDoc& document, const std::string& character,
                        const std::function<void(std::intptr_t at, std::intptr_t by)>& grown = {});

// Shows a document as UTF-8 or as single bytes, because an undo or a redo has led to a text in it.
void FollowCodePage(frmDoc& document, bool utf8);
