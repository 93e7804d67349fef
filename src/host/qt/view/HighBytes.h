// The characters of Windows-1252 between 0x80 and 0x9F, which the edit control shows as boxes.
#pragma once

class QsciScintillaBase;

// Paints them over what a view in a single-byte code page has just painted. Call in its paint event.
void PaintHighBytes(QsciScintillaBase& view);
