// Single steps of a run: where it starts, wraps and ends. FindRun_all.cpp replaces all hits.
#include "editor/FindRun.h"

#include "editor/OpenDocuments.h"
#include "host/Dialogs.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

#include <algorithm>

namespace {

bool Ask(const std::string& text) {
    return gHost.dialogs->Show({.text = text,
                                .icon = MessageIcon::Question,
                                .title = "Zolto - Find",
                                .buttons = MessageButtons::YesNo,
                                .byDefault = MessageAnswer::No}) == MessageAnswer::Yes;
}

void TellNotFound(SearchIn area) {
    static constexpr struct {
        const char* title;
        const char* text;
    } Texts[] = {{"Zolto - Search in Current File", "Current file has been searched."},
                 {"Zolto - Search in Project", "Current Project has been searched."},
                 {"Zolto - Search in All Files", "All files have been searched."},
                 {"Zolto - Search in selection", "Selected text has been searched."}};
    const auto& row = Texts[static_cast<std::size_t>(area)];
    gHost.dialogs->Show({.text = row.text, .icon = MessageIcon::Information, .title = row.title});
}

} // namespace

bool FindRun::AtStart(const frmDoc& document) const { return document.FullFilename == StartFile; }

// Takes up the run, or begins one: for the first search, and where the user has gone elsewhere or turned
// round.
void FindRun::Begin(const FindOptions& options, Direction direction) {
    const std::string& file = ActiveForm()->FullFilename;
    const Hit selection{Mod_Sci::GetSelectionStart(), Mod_Sci::GetSelectionEnd()};
    const bool moved = file != CurrentFile || selection.start != left_.start || selection.end != left_.end;
    if (running_ && !moved && direction == direction_) return;
    StartFile = CurrentFile = file;
    StartPos = options.fromTop && direction == Direction::Forward ? 0 : selection.start;
    Wrapped = emptyHit_ = false;
    direction_ = direction;
    left_ = selection;
    if (options.area != SearchIn::Selection) return;
    SelStart = LastSelStart = selection.start;
    SelEnd = LastSelEnd = selection.end;
}

bool FindRun::FindNext(const FindOptions& options, bool interactive) {
    return Search(options, Direction::Forward, interactive);
}

bool FindRun::FindPrevious(const FindOptions& options, bool interactive) {
    if (options.area == SearchIn::Selection) return false;
    return Search(options, Direction::Backward, interactive);
}

// The first search forward from the caret passes over the character at it, or what is looked at already would
// be found. An empty hit is left, or it would be found for ever.
std::intptr_t FindRun::Start(const FindOptions& options, Direction direction) const {
    if (direction == Direction::Backward) return Mod_Sci::GetSelectionStart();
    const auto caret = Mod_Sci::GetCurrentPos();
    if (running_) return emptyHit_ ? DocumentSearch(*ActiveForm(), options).Behind({caret, caret}) : caret;
    return options.fromTop ? 0 : Mod_Sci::PositionAfter(caret);
}

bool FindRun::Search(const FindOptions& options, Direction direction, bool interactive) {
    if (!DocumentActive() || options.text.empty()) return false;
    Begin(options, direction);
    const auto start = Start(options, direction);
    running_ = true;
    const bool forward = direction == Direction::Forward;
    std::optional<Found> found;
    switch (options.area) {
    case SearchIn::CurrentFile:
        found = forward ? FindInFile(options, start, !options.fromTop, interactive)
                        : FindInFilePrev(options, start, interactive);
        break;
    case SearchIn::CurrentProject:
    case SearchIn::AllFiles: found = FindInDocuments(options, start, direction); break;
    case SearchIn::Selection: found = FindInSelection(options); break;
    }
    if (found) {
        Select(*found, interactive);
        return true;
    }
    if (options.area == SearchIn::Selection) Mod_Sci::SetSel(LastSelStart, LastSelEnd);
    if (interactive) TellNotFound(options.area);
    Reset();
    return false;
}

// Searches a document from a position to its end, or to the start of the run if the run has wrapped.
std::optional<FindRun::Found> FindRun::FindIn(frmDoc& document, const FindOptions& options,
                                              Direction direction, std::intptr_t start) const {
    const DocumentSearch search(document, options);
    const bool bounded = Wrapped && AtStart(document);
    std::optional<Hit> hit;
    if (direction == Direction::Backward)
        hit = search.Find(start, bounded ? StartPos : 0);
    else if (start <= search.Length())
        hit = bounded ? search.FindUpTo(start, StartPos) : search.Find(start, search.Length());
    if (!hit) return {};
    return Found{&document, *hit};
}

std::optional<FindRun::Found> FindRun::FindInFile(const FindOptions& options, std::intptr_t start,
                                                  bool wrapAllowed, bool wrapAsk) {
    frmDoc& document = *ActiveForm();
    if (const auto found = FindIn(document, options, Direction::Forward, start)) return found;
    if (!wrapAllowed || Wrapped) return {};
    if (wrapAsk && !Ask("The specified region has been searched.\r\n"
                        "Would you like to continue searching from the top?"))
        return {};
    Wrapped = true;
    return FindIn(document, options, Direction::Forward, 0);
}

std::optional<FindRun::Found> FindRun::FindInFilePrev(const FindOptions& options, std::intptr_t start,
                                                      bool wrapAsk) {
    frmDoc& document = *ActiveForm();
    if (const auto found = FindIn(document, options, Direction::Backward, start)) return found;
    if (Wrapped) return {};
    if (wrapAsk && !Ask("Reached top of file\r\nWould you like to continue searching from the bottom?"))
        return {};
    Wrapped = true;
    return FindIn(document, options, Direction::Backward, Mod_Sci::GetLength());
}

// Visits the documents from the active one on, without activating one or moving a caret.
std::optional<FindRun::Found> FindRun::FindInDocuments(const FindOptions& options, std::intptr_t start,
                                                       Direction direction) {
    const bool forward = direction == Direction::Forward;
    if (const auto found = FindIn(*ActiveForm(), options, direction, start)) return found;
    if (Wrapped && AtStart(*ActiveForm())) return {};
    std::vector<frmDoc*> documents = DocumentsFrom(options.area == SearchIn::CurrentProject);
    if (documents.empty()) return {};
    // The active one comes last again, from its other end.
    std::rotate(documents.begin(), documents.begin() + 1, documents.end());
    if (!forward) std::reverse(documents.begin(), documents.end() - 1);
    for (frmDoc* next : documents) {
        const bool home = AtStart(*next);
        // If the document in which the run began is gone, the run ends where this search started.
        if (home ? forward && options.fromTop : next == ActiveForm()) return {};
        Wrapped = Wrapped || home;
        const auto from = forward ? 0 : DocumentSearch(*next, options).Length();
        const auto found = FindIn(*next, options, direction, from);
        if (found || home) return found;
    }
    return {};
}

std::optional<FindRun::Found> FindRun::FindInSelection(const FindOptions& options) {
    const DocumentSearch search(*ActiveForm(), options);
    const auto end = std::min(SelEnd, search.Length());
    const auto hit = SelStart <= end ? search.Find(SelStart, end) : std::nullopt;
    if (!hit) return {};
    SelStart = search.Behind(*hit);
    return Found{ActiveForm(), *hit};
}

void FindRun::Select(const Found& found, bool interactive) {
    BringToFront(*found.document);
    if (interactive) Mod_Sci::EnsureVisibleEnforcePolicy(Mod_Sci::LineFromPosition(found.hit.start));
    Mod_Sci::SetSel(found.hit.start, found.hit.end);
    left_ = found.hit;
    emptyHit_ = left_.start == left_.end;
    CurrentFile = found.document->FullFilename;
}
