// The icons of symbol kinds: a letter on a coloured square, drawn for every size and scale.
#pragma once

#include <QIcon>

// Returns the icon named imgFunctions, imgLocals, imgTypes, imgFields, imgGlobals, imgArrays, imgConstants,
// imgLabels or imgIncludes; an empty icon for another name.
QIcon SymbolIcon(const char* name);
