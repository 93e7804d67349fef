// The spine: from the instance check over the load sequence to the order of shutdown.
#pragma once

#include <string>

namespace Mod_Main {

// Process entry with the raw command line. False when this process must end at once because another
// instance took over.
bool Main(const std::string& commandLine);
// The load sequence that the splash window shows. Leaves the painting of the main window frozen; Main thaws
// it.
void Start();

// What another instance sent: "Aktiviraj", or a command line.
void TextReceived(const std::string& text);

// Opens the channel for hand-offs and tells the settings its name.
void Publish();

// Between these two the program starts: nothing that is remembered between runs is written.
void BeginStart();
void EndStart();

// Places the main window from its section of the settings store, and keeps it there.
void PlaceMainWindow();
// The whole of shutdown; `cancel` becomes true when a document would not close, a project could not be saved,
// or another start handed over something meanwhile.
void QueryUnload(bool& cancel);
// Writes what is remembered between runs, without a question and without ending: the session may end soon.
void SaveSession();
// The same for a process that is told to end at once. Texts that were not saved are not written over their
// files. The caller leaves the event loop; while the program starts, the process ends here.
void EndNow();
// Destroys every document that is left, without a question, and kills their programs: what they are made of
// needs the platform, so its owner calls this first.
void TakeDown();
// Whether shutdown or EndNow has been through.
bool Ended();
// Keeps the last state of the main window that was not minimised.
void Resized();

} // namespace Mod_Main
