// The about box.
#pragma once

// Shows it above the main window and comes back when it was closed.
void ShowAbout();
