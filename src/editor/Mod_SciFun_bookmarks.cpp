// Bookmarks in one document and on through all of them.
#include "editor/Mod_SciFun_bookmarks.h"

#include "editor/Mod_SciFun_goto.h"
#include "editor/frmDoc.h"
#include "engine/Markers.h"
#include "engine/OptionsEdit.h"
#include "host/ErrorLog.h"
#include "host/Guards.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <vector>

namespace Mod_SciFun {

namespace {

constexpr std::intptr_t Bookmarks = Mod_Parse::MaskOf(Mod_Parse::MarkerBookmark);

// The documents in the order of their windows, the active one first.
std::vector<frmDoc*> DocumentsFromActive() {
    std::vector<frmDoc*> documents;
    for (const DocumentWindow* window : gHost.dock->DocumentWindows())
        if (frmDoc* document = DocumentIn(window)) documents.push_back(document);
    const auto active = std::find(documents.begin(), documents.end(), ActiveForm());
    std::rotate(documents.begin(), active, documents.end());
    return documents;
}

// The first bookmark of a document from one of its ends; -1 without any.
std::intptr_t FromEnd(const frmDoc& document, bool forward) {
    const auto send = [view = document.SciEdi_WndData](unsigned message, std::intptr_t wParam = 0) {
        return Mod_Sci::SendTo(view, message, wParam, Bookmarks);
    };
    return forward ? send(SCI_MARKERNEXT, -1) : send(SCI_MARKERPREVIOUS, send(SCI_GETLINECOUNT));
}

void Step(bool forward) {
    if (!DocumentActive()) return;
    const StillWindow still;
    const auto caret = Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos());
    const auto line =
        forward ? Mod_Sci::MarkerNext(caret + 1, Bookmarks) : Mod_Sci::MarkerPrevious(caret - 1, Bookmarks);
    if (line >= 0) return GotoLine(line);
    if (OptionsEdit::BookMarksSingleFileBased == 1) return;
    std::vector<frmDoc*> documents = DocumentsFromActive();
    // The active document comes last: there the walk is round.
    if (documents.empty()) return;
    if (forward)
        std::rotate(documents.begin(), documents.begin() + 1, documents.end());
    else
        std::reverse(documents.begin(), documents.end());
    for (const frmDoc* document : documents) {
        const auto hit = FromEnd(*document, forward);
        if (hit < 0) continue;
        if (BringToFront(*document)) GotoLine(hit);
        break;
    }
}

} // namespace

void ToggleBookmark(std::intptr_t position) {
    Guarded("ToggleBookmark", "Mod_SciFun", [&] {
        if (!DocumentActive()) return;
        const auto line = Mod_Sci::LineFromPosition(position < 0 ? Mod_Sci::GetCurrentPos() : position);
        if (Mod_Parse::HasMarker(static_cast<int>(line), Mod_Parse::MarkerBookmark))
            Mod_Sci::MarkerDelete(line, Mod_Parse::MarkerBookmark);
        else
            Mod_Sci::MarkerAdd(line, Mod_Parse::MarkerBookmark);
        if (OptionsEdit::FileDirtyOnBookmarks) ActiveForm()->SetDirty(true);
    });
}

void GotoNextBookmark() {
    Guarded("GotoNextBookmark", "Mod_SciFun", [] { Step(true); });
}

void GotoPrevBookmark() {
    Guarded("GotoPrevBookmark", "Mod_SciFun", [] { Step(false); });
}

void ClearAllBookmarks() {
    Guarded("ClearAllBookmarks", "Mod_SciFun", [] {
        if (!DocumentActive()) return;
        for (frmDoc* document : DocumentsFromActive()) {
            if (document != gActiveDoc && OptionsEdit::BookMarksSingleFileBased == 1) continue;
            // What had none is not changed by this.
            if (FromEnd(*document, true) < 0) continue;
            Mod_Sci::SendTo(document->SciEdi_WndData, SCI_MARKERDELETEALL, Mod_Parse::MarkerBookmark);
            if (OptionsEdit::FileDirtyOnBookmarks) document->SetDirty(true);
        }
    });
}

} // namespace Mod_SciFun
