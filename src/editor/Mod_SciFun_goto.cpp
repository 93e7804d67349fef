// Jumps to a line, to a position, and from function to function.
#include "editor/Mod_SciFun_goto.h"

#include "editor/frmDoc.h"
#include "engine/Mod_Parse.h"
#include "engine/OptionsEdit.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

namespace Mod_SciFun {

namespace {

using namespace Mod_Parse;

constexpr std::intptr_t FunctionLines = MaskOf(MarkerFunction);

std::intptr_t CaretLine() { return Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()); }

// The lines that only end a function carry its marker too.
bool OnlyEnds(std::intptr_t line) { return !FunctionsOn(static_cast<int>(line)).begins; }

} // namespace

void GotoLine(std::intptr_t line) {
    Guarded("GotoLine", "Mod_SciFun", [line] {
        if (!DocumentActive()) return;
        // From below, the view scrolls just so far that the line comes in at its top.
        if (OptionsEdit::GotoPositionsAtTop) Mod_Sci::GotoLine(Mod_Sci::GetLineCount());
        Mod_Sci::EnsureVisible(line);
        Mod_Sci::GotoLine(line);
    });
}

void GotoPosition(std::intptr_t position) {
    Guarded("GotoPosition", "Mod_SciFun", [position] {
        if (!DocumentActive()) return;
        Mod_Sci::EnsureVisible(Mod_Sci::LineFromPosition(position));
        Mod_Sci::GotoPos(position);
    });
}

bool BringToFront(const frmDoc& document) {
    if (&document == gActiveDoc) return true;
    DocumentWindow* window = gHost.dock->FindDocumentWindow(document.m_strDocumentWindowID);
    if (window == nullptr) return false;
    window->Activate();
    return gActiveDoc == &document;
}

void GotoNextFunction() {
    Guarded("GotoNextFunction", "Mod_SciFun", [] {
        if (!DocumentActive()) return;
        auto line = CaretLine();
        do {
            line = Mod_Sci::MarkerNext(line + 1, FunctionLines);
        } while (line >= 0 && OnlyEnds(line));
        if (line >= 0) GotoLine(line);
    });
}

void GotoPreviousFunction() {
    Guarded("GotoPreviousFunction", "Mod_SciFun", [] {
        if (!DocumentActive()) return;
        auto line = CaretLine();
        do {
            line = Mod_Sci::MarkerPrevious(line - 1, FunctionLines);
        } while (line >= 0 && OnlyEnds(line));
        if (line >= 0) GotoLine(line);
    });
}

} // namespace Mod_SciFun
