// The about box.
#pragma once

// Shows the box above the main window and returns when it is closed.
void ShowAbout();
