// The icon theme, where the desktop names none that has what is asked for.
#pragma once

// Chooses the fallback icons by how light the palette is, now and whenever the palette changes.
void FollowPalette();
