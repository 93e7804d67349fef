// The default arrangement of the main window.
#pragma once

// Returns the arrangement that was built in, as the text of a layout file.
const char* FactoryLayoutText();

// Loads "Layout.mp" below AppDir. If the file is missing or damaged, says so and loads the built-in text, so
// that a window always has menus.
void LoadFactoryLayout();
