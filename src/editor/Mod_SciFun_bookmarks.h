// Bookmarks: marker 4 on a line.
#pragma once

#include <cstdint>

namespace Mod_SciFun {

// Toggles the bookmark of the line at a position (bytes; -1 for the caret). With FileDirtyOnBookmarks the
// document becomes dirty.
void ToggleBookmark(std::intptr_t position);
// Go to the next or previous bookmark. After a document's last one they continue in the following document
// windows and wrap to the active one; with BookMarksSingleFileBased they stop.
void GotoNextBookmark();
void GotoPrevBookmark();
// Takes every bookmark of the active document, and unless BookMarksSingleFileBased of all others.
void ClearAllBookmarks();

} // namespace Mod_SciFun
