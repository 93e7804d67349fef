// Ends the program on signals, and at the end of the user's session.
#pragma once

// From here on a signal that ends the process, or the end of the session, first writes what is remembered
// between runs. A second signal ends the process at once.
void WatchForTheEnd();
