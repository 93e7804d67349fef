// Wires the floors together: fills the requests that lower floors may make of higher ones.
#pragma once

// Call once, after the platform services are in place and before Mod_Main::Main.
void WireUp();
