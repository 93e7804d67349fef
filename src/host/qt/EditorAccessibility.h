// What the edit control does for screen readers, kept off its typing path while none runs.
#pragma once

// Call once an edit control exists: its library registers its own part then, and the later one is asked
// first. While no assistive technology is active a view has a plain accessible object, whose text is not
// counted on every caret move; when one becomes active the library's own object takes over.
void InstallEditorAccessibility();
