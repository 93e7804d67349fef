// The ring of places, ordered by stamps: a later place has a higher one, and the places ahead of the present
// one have higher stamps than it.
#include "editor/PositionBrowser.h"

#include "editor/Mod_SciFun_goto.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "engine/Markers.h"
#include "engine/OptionsEdit.h"
#include "engine/SymbolLine.h"
#include "host/ErrorLog.h"
#include "sci/Mod_Sci.h"

#include <array>
#include <cstdlib>
#include <memory>
#include <utility>
#include <vector>

namespace Mod_SciFun {

namespace {

constexpr int Places = 20;

struct Place {
    // The document itself and not its key: one that was closed and opened again has the same key, but the
    // markers of its view are others.
    std::weak_ptr<DocumentRecord> Document;
    int Handle = 0; // of marker 18 on the place's line
    SeenLine Seen;
    int Stamp = 0; // 0: empty
    std::intptr_t Offset = 0;

    frmDoc* Open() const {
        const auto record = Document.lock();
        return record ? &FormOf(*record) : nullptr;
    }
    bool InActive() const { return gActiveDoc != nullptr && Open() == gActiveDoc; }
};

std::array<Place, Places + 1> CBrowser; // from 1; the one at 0 stays empty
int CBrowserPos = 0;                    // 0 before the first place

Place& At(int index) { return CBrowser[static_cast<std::size_t>(index)]; }
int Before(int index) { return index <= 1 ? Places : index - 1; }
int Behind(int index) { return index >= Places ? 1 : index + 1; }

// The line of a place's marker in the active view; -1 when it went with its text.
std::intptr_t MarkerLine(Place& place) {
    const int line = LineOfMarker(SciWndData, place.Handle, place.Seen);
    if (line >= 0 && Mod_Parse::HasMarker(line, Mod_Parse::MarkerPosition)) return line;
    return Mod_Sci::MarkerLineFromHandle(place.Handle);
}

std::intptr_t PositionOf(const Place& place, std::intptr_t markerLine) {
    return Mod_Sci::PositionFromLine(markerLine) + place.Offset;
}

// The line where the caret was, which may lie some lines off the marker; -1 when the marker has gone.
std::intptr_t LineOf(Place& place) {
    const auto line = MarkerLine(place);
    return line < 0 ? -1 : Mod_Sci::LineFromPosition(PositionOf(place, line));
}

bool AtCaret(Place& place) {
    return place.InActive() && LineOf(place) == Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos());
}

void SetMarker(Place& place, std::intptr_t line) {
    place.Handle = static_cast<int>(Mod_Sci::MarkerAdd(line, Mod_Parse::MarkerPosition));
    place.Seen = Seen(SciWndData, static_cast<int>(line));
}

void Forget(Place& place) {
    if (const frmDoc* document = place.Open(); document != nullptr && place.Handle > 0)
        Mod_Sci::SendTo(document->SciEdi_WndData, SCI_MARKERDELETEHANDLE, place.Handle);
    place = {};
}

// The active document as its project holds it.
std::shared_ptr<DocumentRecord> ActiveRecord() {
    return gCurrentProject ? gCurrentProject->Sources.Find(gActiveDoc->FullFilename) : nullptr;
}

void AddPlace(std::intptr_t position, std::intptr_t line) {
    const auto document = ActiveRecord();
    if (!document) return;
    const int stamp = At(CBrowserPos).Stamp;
    CBrowserPos = Behind(CBrowserPos);
    // A new place discards what lay forward of the old one.
    for (int at = CBrowserPos; At(at).Stamp > stamp; at = Behind(at)) Forget(At(at));
    Forget(At(CBrowserPos)); // the oldest, when the ring is full
    Place& place = At(CBrowserPos);
    place.Document = document;
    SetMarker(place, line);
    place.Stamp = stamp + 1;
    place.Offset = position - Mod_Sci::PositionFromLine(line);
}

// Goes to a place. False when its document was closed.
bool Jump(Place& place) {
    const frmDoc* document = place.Open();
    if (document == nullptr || !BringToFront(*document)) return false;
    if (const auto line = MarkerLine(place); line >= 0) GotoPosition(PositionOf(place, line));
    return true;
}

// Walks from the present place until a document that is open could be shown. A place whose document was
// closed is passed over; without any the present place stays.
template <class Step, class Leads>
void Walk(int first, Step step, Leads leads) {
    int at = first;
    for (int passed = 0; passed <= Places && leads(At(at)); ++passed, at = step(at)) {
        Place& place = At(at);
        if (place.InActive() && MarkerLine(place) < 0) return; // its text has gone
        if (!Jump(place)) continue;
        CBrowserPos = at;
        return;
    }
}

} // namespace

void CheckCBrowser(std::intptr_t position, std::intptr_t line) {
    Guarded("CheckCBrowser", "Mod_SciFun", [&] {
        if (!DocumentActive()) return;
        Place& place = At(CBrowserPos);
        if (place.InActive()) {
            const auto at = LineOf(place);
            if (at >= 0 && std::abs(line - at) <= OptionsEdit::CBrowserMarkAsNew) {
                place.Offset = position - Mod_Sci::PositionFromLine(MarkerLine(place));
                return;
            }
        }
        AddPlace(position, line);
    });
}

void GotoPreviousPosition() {
    Guarded("GotoPreviousPosition", "Mod_SciFun", [] {
        if (!DocumentActive()) return;
        const int top = At(CBrowserPos).Stamp;
        // If the caret is already at the recorded place, "previous" means the place before it.
        const int first = AtCaret(At(CBrowserPos)) ? Before(CBrowserPos) : CBrowserPos;
        Walk(first, Before, [top](const Place& place) { return place.Stamp >= 1 && place.Stamp <= top; });
    });
}

void GotoNextPosition() {
    Guarded("GotoNextPosition", "Mod_SciFun", [] {
        if (!DocumentActive()) return;
        const int bottom = At(CBrowserPos).Stamp;
        Walk(Behind(CBrowserPos), Behind, [bottom](const Place& place) { return place.Stamp > bottom; });
    });
}

std::function<void()> KeepPlaces() {
    std::vector<std::pair<Place*, std::intptr_t>> kept;
    for (Place& place : CBrowser)
        if (place.InActive()) kept.emplace_back(&place, MarkerLine(place));
    return [kept] {
        for (const auto& [place, line] : kept)
            if (line >= 0) SetMarker(*place, line);
    };
}

} // namespace Mod_SciFun
