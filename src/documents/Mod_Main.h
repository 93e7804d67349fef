// Start and end of the program: the check for another instance, the load sequence, the steps of shutdown.
#pragma once

#include <string>

namespace Mod_Main {

// Starts the program with the raw command line. False if another instance took over and this process has to
// end.
bool Main(const std::string& commandLine);
// Loads everything, with the steps shown on the splash window. The main window does not paint until Main
// unlocks it.
void Start();

// Handles the text of another instance: "Aktiviraj", or a command line.
void TextReceived(const std::string& text);

// Opens the channel for other instances and stores its name in the settings.
void Publish();

// The program starts between these two calls; meanwhile nothing is written that the next run would read.
void BeginStart();
void EndStart();

// Moves the main window to its place in the settings.
void PlaceMainWindow();
// Shuts the program down. Sets `cancel` if a document stayed open, a project could not be saved, or another
// instance sent a file meanwhile.
void QueryUnload(bool& cancel);
// Writes everything that the next run will read, without asking. Called when the desktop session may end.
void SaveSession();
// The same for a process that has to end at once; unsaved texts are not written. The caller leaves the event
// loop, but during the start of the program this call ends the process.
void EndNow();
// Destroys all documents without asking and kills their programs. Called before the platform services end,
// because documents need them.
void TakeDown();
// Whether QueryUnload or EndNow has completed.
bool Ended();
// Remembers the state of the main window, unless it is minimised.
void Resized();

} // namespace Mod_Main
