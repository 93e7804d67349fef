// The brackets round the caret and the guide of the scope word under it.
#pragma once

#include <cstdint>

// Highlights the innermost pair of brackets around the caret (`pos`) on its line, or else the indentation
// guide of the scope keyword at the caret.
void HighlightBraces(std::intptr_t pos);
