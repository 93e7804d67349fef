// The icons of the kinds of symbols: a letter on a colour of its own, drawn for every size and scale.
#pragma once

#include <QIcon>

// By name: imgFunctions, imgLocals, imgTypes, imgFields, imgGlobals, imgArrays, imgConstants, imgLabels,
// imgIncludes. An unknown name gives an empty icon.
QIcon SymbolIcon(const char* name);
