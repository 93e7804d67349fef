// Tabs for assistive technology.
#pragma once

// Makes tabs report which one is selected, which the toolkit's own objects do not. May be called again.
void InstallTabAccessibility();
