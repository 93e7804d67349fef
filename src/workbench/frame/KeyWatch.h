// Distinguishes the first press of a key held together with Control from the repeated presses.
#pragma once

// Returns true if Control was released since the last call. The first call returns true.
bool ControlWasReleased();
