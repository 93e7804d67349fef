// The services of the platform. The application fills them at its start, and each test fills them with its
// own.
#pragma once

class Dialogs;
class Files;
class SettingsStore;
class Processes;
class Desktop;
class Clock;
class Instances;
class EditorViews;
class DockStudio;

struct Host {
    Dialogs* dialogs = nullptr;
    Files* files = nullptr;
    SettingsStore* settings = nullptr;
    Processes* processes = nullptr;
    Desktop* desktop = nullptr;
    Clock* clock = nullptr;
    Instances* instances = nullptr;
    EditorViews* views = nullptr;
    DockStudio* dock = nullptr;
};

// Written by the application, the inspection tool or a test, before anything else runs.
extern Host gHost;
