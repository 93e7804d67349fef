// Bookmarks: marker 4 on a line.
#pragma once

#include <cstdint>

namespace Mod_SciFun {

// Sets or takes the bookmark of the line that a position (bytes) lies in; -1 stands for the caret. With
// FileDirtyOnBookmarks the document counts as changed.
void ToggleBookmark(std::intptr_t position);
// The next or previous bookmark. Behind the last one of a document the walk goes on in the document windows
// that follow and at last comes round to the active one; with BookMarksSingleFileBased it stops.
void GotoNextBookmark();
void GotoPrevBookmark();
// Takes every bookmark of the active document, and unless BookMarksSingleFileBased of all others.
void ClearAllBookmarks();

} // namespace Mod_SciFun
