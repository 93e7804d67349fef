// Searches one document, whether or not it is the active one.
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

// Bytes of the document from 0; `end` is after the last one.
struct Hit {
    std::intptr_t start = 0;
    std::intptr_t end = 0;
};

class DocumentSearch {
public:
    DocumentSearch(frmDoc& document, const FindText& what);

    // Returns the first hit between two positions, or the last one if `from` is after `to`. A text that the
    // document cannot hold and an invalid pattern have no hits. Writes the view's target.
    std::optional<Hit> Find(std::intptr_t from, std::intptr_t to) const;
    // The same from `from`, for hits that begin before `to`.
    std::optional<Hit> FindUpTo(std::intptr_t from, std::intptr_t lastStart) const;
    // Where to continue after a hit, so that an empty hit is not found again.
    std::intptr_t Behind(const Hit& hit) const;
    // Whether a range is a hit as a whole. Without a pattern the case of letters plays no part.
    bool Matches(const Hit& range) const;
    // Replaces the hit that Find or Matches has just returned with bytes of the document. Returns the length
    // of the replacement.
    std::intptr_t Replace(const Hit& hit, const std::string& bytes) const;
    // A text in the document's bytes; nothing if the document cannot hold it.
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
