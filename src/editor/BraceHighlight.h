// The brackets round the caret and the guide of the scope word under it.
#pragma once

#include <cstdint>

// Highlights the pair of brackets on the caret's line that the caret stands in; where it stands in none, the
// indentation guide of the scope keyword under the caret. `pos`: the caret.
void HighlightBraces(std::intptr_t pos);
