// Replacing one hit and all, and counting them.
#include "editor/FindRun.h"

#include "editor/CodePage.h"
#include "editor/OpenDocuments.h"
#include "editor/SciOptions.h"
#include "engine/WaitCursor.h"
#include "host/Dialogs.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <limits>

namespace {

constexpr auto ToTheEnd = std::numeric_limits<std::intptr_t>::max();

void TellUnknownCharacters(const frmDoc& document) {
    gHost.dialogs->Show({.text = "The file '" + document.Filename +
                                 "' cannot hold a character of the new text. Nothing was replaced in it.",
                         .icon = MessageIcon::Exclamation,
                         .title = "Zolto - Replace"});
}

// Returns the replacement in the document's bytes, converting the document to UTF-8 if that is needed and
// allowed. If it is not allowed, reports that and returns nothing.
std::optional<std::string> BytesFor(frmDoc& document, const std::string& replacement,
                                    const std::function<void(std::intptr_t, std::intptr_t)>& grown) {
    const DocumentSearch any(document, {});
    auto bytes = any.InDocument(replacement);
    if (!bytes && TakeBeyondCodePage(document, {}, grown)) bytes = replacement;
    if (!bytes) TellUnknownCharacters(document);
    return bytes;
}

} // namespace

// What a change of the text means for the places that the run keeps.
void FindRun::Changed(const frmDoc& document, std::intptr_t start, std::intptr_t by) {
    const auto follow = [&](std::intptr_t& place) {
        if (place > start) place = std::max(start, place + by);
    };
    if (AtStart(document)) follow(StartPos);
    if (document.FullFilename != CurrentFile) return;
    for (auto* place : {&SelStart, &SelEnd, &LastSelStart, &LastSelEnd}) follow(*place);
}

bool FindRun::Replace(const FindOptions& options, const std::string& replacement) {
    if (!DocumentActive() || options.text.empty()) return false;
    frmDoc& document = *ActiveForm();
    const auto selected = [] { return Hit{Mod_Sci::GetSelectionStart(), Mod_Sci::GetSelectionEnd()}; };
    // What a search in the selection has not begun with is its area and no hit.
    const bool isArea = options.area == SearchIn::Selection && !running_;
    if (isArea || !DocumentSearch(document, options).Matches(selected())) return FindNext(options, true);
    Begin(options, Direction::Forward);
    const auto bytes = BytesFor(document, replacement,
                                [&](std::intptr_t at, std::intptr_t by) { Changed(document, at, by); });
    if (!bytes) return false;
    const Hit hit = selected();
    const DocumentSearch search(document, options);
    if (!search.Matches(hit)) return false;
    const auto length = search.Replace(hit, *bytes);
    // The run ends with a hit where it began, but not with what has replaced that hit.
    if (AtStart(document) && StartPos == hit.start) --StartPos;
    Changed(document, hit.start, length - (hit.end - hit.start));
    const auto behind = hit.start + length;
    Mod_Sci::SetSel(behind, behind);
    left_ = {behind, behind};
    emptyHit_ = hit.start == hit.end;
    // The search continues after the replacement, or from the top if it has to start there.
    running_ = running_ || !options.fromTop;
    return FindNext(options, true);
}

// What the run has not come by yet, each place once and the pieces of a document together.
std::vector<FindRun::Piece> FindRun::Pieces(const FindOptions& options) {
    frmDoc* active = ActiveForm();
    const bool first = !running_;
    Begin(options, Direction::Forward);
    // The hit that is selected has not been replaced yet.
    const auto selected = Mod_Sci::GetSelectionStart();
    if (options.area == SearchIn::Selection) return {{active, std::min(SelStart, selected), SelEnd}};
    const auto from = first && options.fromTop ? 0 : selected;
    if (Wrapped) return {{active, from, StartPos, true}};
    std::vector<Piece> pieces{{active, from, ToTheEnd}};
    frmDoc* home = AtStart(*active) ? active : nullptr;
    if (home && !options.fromTop) pieces.push_back({home, 0, std::min(StartPos, from - 1), true});
    if (options.area == SearchIn::CurrentFile) return pieces;
    const auto documents = DocumentsFrom(options.area == SearchIn::CurrentProject);
    for (std::size_t i = 1; i < documents.size() && !(home && home != active); ++i) {
        if (AtStart(*documents[i])) home = documents[i];
        if (home != documents[i])
            pieces.push_back({documents[i], 0, ToTheEnd});
        else if (!options.fromTop)
            pieces.push_back({home, 0, StartPos, true});
    }
    return pieces;
}

std::optional<Hit> FindRun::NextIn(const Piece& piece, const DocumentSearch& search,
                                   std::intptr_t from) const {
    if (from > std::min(piece.end, search.Length())) return {};
    return piece.beginsBy ? search.FindUpTo(from, piece.end)
                          : search.Find(from, std::min(piece.end, search.Length()));
}

int FindRun::ReplaceIn(Piece piece, const DocumentSearch& search, const std::string& bytes) {
    int count = 0;
    for (auto hit = NextIn(piece, search, piece.from); hit; ++count) {
        const auto length = search.Replace(*hit, bytes);
        const auto by = length - (hit->end - hit->start);
        Changed(*piece.document, hit->start, by);
        if (piece.end != ToTheEnd) piece.end += by;
        const auto behind = hit->start + length;
        hit = NextIn(piece, search, hit->end > hit->start ? behind : search.Behind({behind, behind}));
    }
    return count;
}

// All pieces of one document, as one undo step to which belongs what the parser writes.
int FindRun::ReplaceInDocument(std::vector<Piece> pieces, const FindOptions& options,
                               const std::string& replacement) {
    frmDoc& document = *pieces.front().document;
    if (CountIn(pieces, options) == 0) return 0;
    const ActiveSwap swap(document);
    OpenUndoGroup();
    const auto bytes = BytesFor(document, replacement, [&](std::intptr_t at, std::intptr_t by) {
        Changed(document, at, by);
        for (Piece& piece : pieces) {
            if (piece.from > at) piece.from += by;
            if (piece.end > at && piece.end != ToTheEnd) piece.end += by;
        }
    });
    const DocumentSearch search(document, options);
    int count = 0;
    if (bytes)
        document.m_oSubclass->ChangeMany([&] {
            for (const Piece& piece : pieces) count += ReplaceIn(piece, search, *bytes);
        });
    CloseUndoGroup(&document);
    return count;
}

int FindRun::ReplaceAll(const FindOptions& options, const std::string& replacement) {
    if (!DocumentActive() || options.text.empty()) return 0;
    const WaitCursor wait;
    int count = 0;
    const std::vector<Piece> pieces = Pieces(options);
    for (auto piece = pieces.begin(); piece != pieces.end();) {
        const auto next = std::find_if(piece, pieces.end(),
                                       [&](const Piece& other) { return other.document != piece->document; });
        count += ReplaceInDocument({piece, next}, options, replacement);
        piece = next;
    }
    // What one document declares now may give the lines of another one other colours.
    for (const Piece& piece : pieces) {
        piece.document->State.Restyle();
        piece.document->Redraw();
    }
    const auto end = Mod_Sci::GetSelectionEnd();
    Mod_Sci::SetSel(end, end);
    Reset();
    return count;
}

int FindRun::CountIn(const std::vector<Piece>& pieces, const FindOptions& options) const {
    int count = 0;
    for (const Piece& piece : pieces) {
        const DocumentSearch search(*piece.document, options);
        for (auto hit = NextIn(piece, search, piece.from); hit;
             hit = NextIn(piece, search, search.Behind(*hit)))
            ++count;
    }
    return count;
}

int FindRun::Count(const FindOptions& options) {
    Reset();
    if (!DocumentActive() || options.text.empty()) return 0;
    return CountIn(Pieces(options), options);
}
