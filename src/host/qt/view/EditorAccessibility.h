// What a view is for assistive technology. The library's own part counts characters from the start of the
// text on every caret move; this one takes its place.
#pragma once

// To be called when the first edit control exists: its library registers its own factory then, and the
// factory registered last is asked first.
void InstallEditorAccessibility();
