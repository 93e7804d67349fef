// Stored places and sizes are in twips.
#pragma once

inline constexpr int TwipsPerPixel = 15;
