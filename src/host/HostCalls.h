// What the platform layer may ask of the floors above it. Empty by default.
#pragma once

#include "host/Request.h"

struct HostCalls {
    // Shows the error dialog and returns when it was closed.
    Request<void()> ShowErrorDialog;
    // How many document windows are open, for the error log.
    Request<int()> CountOpenFiles;
};
extern HostCalls gHostCalls; // written by the wiring of the application alone
