// Tells the first press of a key held together with Control from the presses that follow.
#pragma once

// True when Control was let go since the last call; the first call is true.
bool ControlWasReleased();
