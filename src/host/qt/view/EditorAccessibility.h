// What a view is for assistive technology. The library's own part counts characters from the start of the
// text on every caret move; this one takes its place.
#pragma once

// Call once an edit control exists: its library registers its own part then, and the later one is asked
// first.
void InstallEditorAccessibility();
