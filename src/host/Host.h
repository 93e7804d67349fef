// The platform as the program sees it: one set of services, filled by the application at its start
// and by each test with its own.
#pragma once

class Dialogs;
class Files;
class SettingsStore;
class Processes;
class Desktop;
class Instances;
class EditorViews;
class DockStudio;

struct Host {
    Dialogs* dialogs = nullptr;
    Files* files = nullptr;
    SettingsStore* settings = nullptr;
    Processes* processes = nullptr;
    Desktop* desktop = nullptr;
    Instances* instances = nullptr;
    EditorViews* views = nullptr;
    DockStudio* dock = nullptr;
};

// Written by whoever sets the program up: the application, the inspection tool, a test.
extern Host gHost;
