// Characters that a document's code page lacks.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

class frmDoc;

// Makes a UTF-8 document of one in Windows-1252 whose text nothing else can depend on: it was never saved, or
// has no byte above 127. Its text stays what it reads; the status bar tells. For any other document false,
// and the status bar tells that `character` (UTF-8) is left out; empty: nothing is told. `grown` hears, from
// the end of the text to its start, where (bytes from 0) and by how many bytes it becomes longer. The change
// opens an undo group, to which belongs what is inserted next.
bool TakeBeyondCodePage(frmDoc& document, const std::string& character,
                        const std::function<void(std::intptr_t at, std::intptr_t by)>& grown = {});

// Shows a document as UTF-8 or as single bytes, because an undo or a redo has led to a text in it.
void FollowCodePage(frmDoc& document, bool utf8);
