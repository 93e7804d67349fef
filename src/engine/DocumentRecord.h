// What the engine knows of a document: its names, its view, and the state of its pending edits.
#pragma once

#include "engine/Symbols.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

// The state of a document's edits between two parses.
struct PipelineState {
    // Marker handles of the lines that wait to be parsed, in the order in which they were queued.
    std::vector<int> ParseNeeded;
    std::string UnparsedText; // what the line UnparsedLine held when it was last parsed
    int UnparsedLine = -1;    // the one line whose old symbols are still in the tables
    bool mShowCallTip = false;
    bool mLastOperationUndoRedo = false;
    bool mJustActivated = false;
    bool mJoinPending = false;
    bool mSpaceTyped = false;
    bool mForceColor = false;
    bool mColoredAsCurrent = false; // a parsed line has the look of the line under the caret
    bool mRefusalTold = false;      // a line that is too long for the scanner has been reported
    bool UndoGroup = false;         // an undo action is open in the view

    // Makes the next style request of the view restyle all visible lines.
    void Restyle() { mOldStartLine = -100; }
    // The lines that were styled last: first the first visible line, then the last line of the document.
    bool IsStyled(int first, int last) const { return first == mOldStartLine && last == mOldEndLine; }
    void SetStyled(int first, int last) {
        mOldStartLine = first;
        mOldEndLine = last;
    }

private:
    int mOldStartLine = -100;
    int mOldEndLine = 0;
};

struct DocumentRecord {
    virtual ~DocumentRecord() = default;

    std::intptr_t SciEdi_WndData = 0;
    std::map<int, std::shared_ptr<ClsField>> tmpFields; // fields outside every type, by Handle
    std::string PrjName;
    std::string PrjFullPath;
    bool SingleFile = false;
    std::string FullFilename;
    std::string Filename;
    bool Dirty = false;
    int Callback_OldLine = -1;
    std::string CompilerUsed;
    bool NewFile = false;
    bool IsSnippet = false;
    bool LfEnds = false;           // the file that was read had only LF line ends
    bool MayHaveParameters = true; // false when the file that was read surely had no parameter block
    std::string m_strDocumentWindowID;
    PipelineState State;
};

// The active document and its view. Written by MakeActive; code that works on another document swaps it with
// ActiveSwap.
extern DocumentRecord* gActiveDoc;

// An active document exists and its view is there.
bool DocumentActive();
