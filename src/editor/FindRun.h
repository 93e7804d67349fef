// Finds and replaces in one file, a project, all open files or a selection. A run lasts from a first search
// until the search changes; it remembers its start, so that it ends there after wrapping.
#pragma once

#include "editor/DocumentSearch.h"

#include <string>
#include <vector>

enum class SearchIn { CurrentFile, CurrentProject, AllFiles, Selection };

struct FindOptions : FindText {
    bool fromTop = false;
    SearchIn area = SearchIn::CurrentFile;
};

class FindRun {
public:
    // Selects the next or the previous hit and makes its document the active one. `interactive`: questions
    // and messages are shown, and the hit's line is brought into view. False when nothing was found, which
    // ends the run. A search backwards begins at the caret whatever the options say, and knows no selection.
    bool FindNext(const FindOptions& options, bool interactive);
    bool FindPrevious(const FindOptions& options, bool interactive);

    // Replaces the selection where it is a hit, then finds the next one.
    bool Replace(const FindOptions& options, const std::string& replacement);
    // Replaces each remaining hit of the run once, as one undo step for each document; the caret does not
    // move. Returns the number of replacements.
    int ReplaceAll(const FindOptions& options, const std::string& replacement);
    // How many hits a new run would come by. Moves nothing and ends the run.
    int Count(const FindOptions& options);

    // The next search is the first of a new run.
    void Reset() { running_ = false; }
    bool Running() const { return running_; }

private:
    enum class Direction { Forward, Backward };
    struct Found {
        frmDoc* document;
        Hit hit;
    };
    // A part of a document; its hits end before `end`, or begin by it.
    struct Piece {
        frmDoc* document;
        std::intptr_t from;
        std::intptr_t end;
        bool beginsBy = false;
    };

    void Begin(const FindOptions& options, Direction direction);
    bool Search(const FindOptions& options, Direction direction, bool interactive);
    std::intptr_t Start(const FindOptions& options, Direction direction) const;
    std::optional<Found> FindInFile(const FindOptions& options, std::intptr_t start, bool wrapAllowed,
                                    bool wrapAsk);
    std::optional<Found> FindInFilePrev(const FindOptions& options, std::intptr_t start, bool wrapAsk);
    std::optional<Found> FindInDocuments(const FindOptions& options, std::intptr_t start,
                                         Direction direction);
    std::optional<Found> FindInSelection(const FindOptions& options);
    std::optional<Found> FindIn(frmDoc& document, const FindOptions& options, Direction direction,
                                std::intptr_t start) const;
    void Select(const Found& found, bool interactive);
    std::vector<Piece> Pieces(const FindOptions& options);
    std::optional<Hit> NextIn(const Piece& piece, const DocumentSearch& search, std::intptr_t from) const;
    int ReplaceIn(Piece piece, const DocumentSearch& search, const std::string& bytes);
    int ReplaceInDocument(std::vector<Piece> pieces, const FindOptions& options,
                          const std::string& replacement);
    int CountIn(const std::vector<Piece>& pieces, const FindOptions& options) const;
    void Changed(const frmDoc& document, std::intptr_t start, std::intptr_t by);
    bool AtStart(const frmDoc& document) const;

    bool running_ = false;
    Direction direction_ = Direction::Forward;
    Hit left_;              // the selection that the run made; another one means that the user has moved
    bool emptyHit_ = false; // what was found last had no characters

    std::intptr_t StartPos = 0; // where the run began: the start of the selection, and its file
    std::string StartFile;
    std::string CurrentFile; // the one that was searched last
    bool Wrapped = false;    // the run has wrapped and ends at StartPos in StartFile
    // What is left of the area of a selection search, and the selection to restore when it ends.
    std::intptr_t SelStart = 0;
    std::intptr_t SelEnd = 0;
    std::intptr_t LastSelStart = 0;
    std::intptr_t LastSelEnd = 0;
};
