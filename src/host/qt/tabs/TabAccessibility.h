// Tabs for assistive technology.
#pragma once

// From here on a tab says that it is the one in front, which the toolkit's own does not. May be called again.
void InstallTabAccessibility();
