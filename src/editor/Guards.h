// States of the active view that must end, however the step that needs them ends.
#pragma once

#include "editor/SciOptions.h"
#include "sci/Mod_Sci.h"

// The view sends no modification events while this lives.
class Unheard {
public:
    Unheard() { Mod_Sci::SetModEventMask(0); }
    ~Unheard() { Mod_Sci::SetModEventMask(EventMask); }
    Unheard(const Unheard&) = delete;
    Unheard& operator=(const Unheard&) = delete;
};

// The view records nothing for undo while this lives.
class Unrecorded {
public:
    Unrecorded() { Mod_Sci::SetUndoCollection(0); }
    ~Unrecorded() { Mod_Sci::SetUndoCollection(1); }
    Unrecorded(const Unrecorded&) = delete;
    Unrecorded& operator=(const Unrecorded&) = delete;
};
