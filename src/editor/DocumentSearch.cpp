// Searching one document through its view's target.
#include "editor/DocumentSearch.h"

#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>

bool FindText::IsPattern() const { return (flags & SCFIND_REGEXP) != 0; }

DocumentSearch::DocumentSearch(frmDoc& document, const FindText& what)
    : document_(document), view_(document.SciEdi_WndData), bytes_(InDocument(what.text)),
      pattern_(what.IsPattern()) {
    Send(SCI_SETSEARCHFLAGS, what.flags);
}

std::intptr_t DocumentSearch::Send(unsigned message, std::intptr_t wParam, std::intptr_t lParam) const {
    return Mod_Sci::SendTo(view_, message, wParam, lParam);
}

std::optional<std::string> DocumentSearch::InDocument(const std::string& text) const {
    if (Send(SCI_GETCODEPAGE) == SC_CP_UTF8) return text;
    std::string bytes;
    if (!FromUtf8ToSingleBytes(text, bytes)) return {};
    return bytes;
}

std::intptr_t DocumentSearch::Length() const { return Send(SCI_GETLENGTH); }

std::optional<Hit> DocumentSearch::Find(std::intptr_t from, std::intptr_t to) const {
    if (!bytes_) return {};
    Send(SCI_SETTARGETSTART, from);
    Send(SCI_SETTARGETEND, to);
    const auto length = static_cast<std::intptr_t>(bytes_->size());
    if (Send(SCI_SEARCHINTARGET, length, Mod_Sci::Address(bytes_->data())) < 0) return {};
    const Hit hit{Send(SCI_GETTARGETSTART), Send(SCI_GETTARGETEND)};
    // An empty match at the end of a line that was left already.
    if (from <= to && hit.start < from) return {};
    return hit;
}

std::optional<Hit> DocumentSearch::FindUpTo(std::intptr_t from, std::intptr_t lastStart) const {
    if (!bytes_ || lastStart < from) return {};
    // The length of what a pattern matches is not known beforehand, but it ends with its line.
    const auto end = pattern_ ? Send(SCI_GETLINEENDPOSITION, Send(SCI_LINEFROMPOSITION, lastStart))
                              : lastStart + static_cast<std::intptr_t>(bytes_->size());
    const auto hit = Find(from, std::min(end, Length()));
    if (hit && hit->start > lastStart) return {};
    return hit;
}

std::intptr_t DocumentSearch::Behind(const Hit& hit) const {
    if (hit.end > hit.start) return hit.end;
    const auto line = Send(SCI_LINEFROMPOSITION, hit.end);
    if (hit.end < Send(SCI_GETLINEENDPOSITION, line)) return Send(SCI_POSITIONAFTER, hit.end);
    const auto next = Send(SCI_POSITIONFROMLINE, line + 1);
    return next > hit.end ? next : Length() + 1;
}

bool DocumentSearch::Matches(const Hit& range) const {
    if (!bytes_) return false;
    const std::string text = [&] {
        const ViewSwap swap(view_);
        return Mod_Sci::GetTextRange(range.start, range.end);
    }();
    if (!pattern_) {
        if (UCase(text) != UCase(*bytes_)) return false;
        Send(SCI_SETTARGETSTART, range.start);
        Send(SCI_SETTARGETEND, range.end);
        return true;
    }
    const auto hit = Find(range.start, range.end);
    return hit && hit->start == range.start && hit->end == range.end;
}

std::intptr_t DocumentSearch::Replace(const Hit& hit, const std::string& bytes) const {
    const auto length = static_cast<std::intptr_t>(bytes.size());
    if (!pattern_) {
        Send(SCI_SETTARGETSTART, hit.start);
        Send(SCI_SETTARGETEND, hit.end);
    }
    return Send(pattern_ ? SCI_REPLACETARGETRE : SCI_REPLACETARGET, length, Mod_Sci::Address(bytes.data()));
}
