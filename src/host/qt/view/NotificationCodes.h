// The notification codes of the edit control, by which the pipeline knows them: the library gives them names
// that are its signals.
#pragma once

enum : int {
    StyleNeeded = 2000,
    CharAdded = 2001,
    SavePointReached = 2002,
    SavePointLeft = 2003,
    DoubleClick = 2006,
    UpdateUi = 2007,
    Modified = 2008,
    MarginClick = 2010,
    NeedShown = 2011,
    Painted = 2013,
    AutoCSelection = 2022,
    AutoCCancelled = 2025,
};
