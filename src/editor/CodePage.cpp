// Characters that a document's code page lacks. Other programs read a saved Windows-1252 file as such, so
// only a text that no program can have read yet becomes UTF-8.
#include "editor/CodePage.h"

#include "editor/EditorCalls.h"
#include "editor/PositionBrowser.h"
#include "editor/frmDoc.h"
#include "engine/Markers.h"
#include "engine/SymbolLine.h"
#include "host/Desktop.h"
#include "host/Host.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr unsigned char FirstHighByte = 0x80;

bool IsHigh(char c) { return static_cast<unsigned char>(c) >= FirstHighByte; }

void Tell(const std::string& text) { gEditorCalls.SetNotice(text); }

// The active view's selection, which may be a rectangle.
class Selection {
public:
    // Follows a text that grows after a position.
    void Grow(std::intptr_t at, std::intptr_t by) {
        if (at < anchor_) anchor_ += by;
        if (at < caret_) caret_ += by;
    }
    void Restore() const {
        if (!rectangle_) {
            Mod_Sci::SetSel(anchor_, caret_);
            return;
        }
        Mod_Sci::Send(SCI_SETRECTANGULARSELECTIONANCHOR, anchor_);
        Mod_Sci::Send(SCI_SETRECTANGULARSELECTIONCARET, caret_);
    }

private:
    bool rectangle_ = Mod_Sci::Send(SCI_GETSELECTIONMODE) == SC_SEL_RECTANGLE;
    std::intptr_t anchor_ = Mod_Sci::Send(SCI_GETANCHOR);
    std::intptr_t caret_ = Mod_Sci::GetCurrentPos();
};

// Switches the active view's code page, which makes the view forget its lines, and restores what cannot be
// derived from the text. The symbols must be forgotten before and all lines parsed afterwards.
void Show(frmDoc& document, bool utf8) {
    constexpr int Kept[] = {Mod_Parse::MarkerBookmark, Mod_Parse::MarkerInactiveCaret};
    std::vector<std::pair<std::intptr_t, int>> markers;
    for (const int marker : Kept)
        for (auto line = Mod_Sci::MarkerNext(0, Mod_Parse::MaskOf(marker)); line >= 0;
             line = Mod_Sci::MarkerNext(line + 1, Mod_Parse::MaskOf(marker)))
            markers.emplace_back(line, marker);
    const auto setPlaces = Mod_SciFun::KeepPlaces();
    document.View->SetUtf8(utf8);
    ForgetLines(document.SciEdi_WndData);
    setPlaces();
    for (const auto& [line, marker] : markers) Mod_Sci::MarkerAdd(line, marker);
    document.State.Restyle();
}

// Gives the active view's high bytes the form they have in UTF-8.
template <class Grown>
void WriteAsUtf8(const std::string& text, Grown grown) {
    for (std::size_t i = text.size(); i-- > 0;) {
        if (!IsHigh(text[i])) continue;
        const std::string character = CharacterInUtf8(static_cast<unsigned char>(text[i]));
        const auto at = static_cast<std::intptr_t>(i);
        Mod_Sci::ReplaceRange(at, at + 1, character);
        grown(at, static_cast<std::intptr_t>(character.size()) - 1);
    }
}

} // namespace

bool TakeBeyondCodePage(frmDoc& document, const std::string& character,
                        const std::function<void(std::intptr_t, std::intptr_t)>& grown) {
    const ActiveSwap swap(document);
    document.m_oSubclass->ParseNow();
    const std::string text = Mod_Sci::GetText();
    const bool ascii = std::none_of(text.begin(), text.end(), IsHigh);
    if (!ascii && !document.NewFile) {
        if (character.empty()) return false;
        gHost.desktop->Beep();
        Tell("Left out: \"" + character + "\" is not in Windows-1252, the code page of this file");
        return false;
    }
    Selection selection;
    const auto top = Mod_Sci::GetFirstVisibleLine();
    OpenUndoGroup();
    Mod_Sci::AddUndoAction(0);
    document.m_oSubclass->ChangeMany([&] {
        WriteAsUtf8(text, [&](std::intptr_t at, std::intptr_t by) {
            selection.Grow(at, by);
            if (grown) grown(at, by);
        });
        Show(document, true);
    });
    selection.Restore();
    Mod_Sci::Send(SCI_SETFIRSTVISIBLELINE, top);
    Tell("This document is UTF-8 now");
    return true;
}

void FollowCodePage(frmDoc& document, bool utf8) {
    const ActiveSwap swap(document);
    // Turning the history off for the parser would end a group that is open.
    CloseUndoGroup(&document);
    const auto top = Mod_Sci::GetFirstVisibleLine();
    document.m_oSubclass->ParseAnew([&] { Show(document, utf8); });
    Mod_Sci::Send(SCI_SETFIRSTVISIBLELINE, top);
    Tell(utf8 ? "This document is UTF-8 now" : "This document is Windows-1252 again");
}
