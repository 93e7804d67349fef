// Searching one document, whether it is in front or not.
#pragma once

#include "editor/frmDoc.h"

#include <cstdint>
#include <optional>
#include <string>

// What is looked for. `text` and what replaces it are UTF-8; `flags` are SCFIND_ bits.
struct FindText {
    std::string text;
    int flags = 0;

    bool IsPattern() const;
};

// Bytes of the document from 0; `end` is behind the last one.
struct Hit {
    std::intptr_t start = 0;
    std::intptr_t end = 0;
};

class DocumentSearch {
public:
    DocumentSearch(frmDoc& document, const FindText& what);

    // The first hit between two places; where `from` lies behind `to`, the last one. A text that the document
    // cannot hold and a pattern that is none have no hits. Writes the view's target.
    std::optional<Hit> Find(std::intptr_t from, std::intptr_t to) const;
    // The same from `from` to the place behind which no hit may begin.
    std::optional<Hit> FindUpTo(std::intptr_t from, std::intptr_t lastStart) const;
    // Where to go on behind a hit: an empty one must not be found again.
    std::intptr_t Behind(const Hit& hit) const;
    // Whether a range is a hit as a whole. Without a pattern the case of letters plays no part.
    bool Matches(const Hit& range) const;
    // Replaces a hit that Find or Matches has just answered by bytes of the document; answers the length of
    // what stands there now.
    std::intptr_t Replace(const Hit& hit, const std::string& bytes) const;
    // A text in the document's bytes; nothing where it has none for it.
    std::optional<std::string> InDocument(const std::string& text) const;

    std::intptr_t Length() const;
    frmDoc& Document() const { return document_; }

private:
    std::intptr_t Send(unsigned message, std::intptr_t wParam = 0, std::intptr_t lParam = 0) const;

    frmDoc& document_;
    std::intptr_t view_;
    std::optional<std::string> bytes_; // nothing: the document has no bytes for the text
    bool pattern_;
};
