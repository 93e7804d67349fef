// The arrangement of the main window that the program comes with.
#pragma once

// The arrangement as it was when the program was built, in the form of a layout file.
const char* FactoryLayoutText();

// Loads "Layout.mp" below AppDir; where that is missing or damaged it says so and takes the built-in text, so
// that there always is a window with menus.
void LoadFactoryLayout();
