// Chooses an icon theme if the desktop's theme lacks the needed icons.
#pragma once

// Chooses the fallback icons by how light the palette is, now and whenever the palette changes.
void FollowPalette();
