// Characters that a document's code page lacks. What is on disk in Windows-1252 was written for programs that
// read it so; a text that nobody has read yet may become UTF-8.
#include "editor/CodePage.h"

#include "editor/EditorCalls.h"
#include "editor/frmDoc.h"
#include "host/Desktop.h"
#include "host/Host.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>

namespace {

constexpr unsigned char FirstHighByte = 0x80;

bool IsHigh(char c) { return static_cast<unsigned char>(c) >= FirstHighByte; }

void Tell(const std::string& text) {
    if (gEditorCalls.SetNotice) gEditorCalls.SetNotice(text);
}

// Gives the active view's high bytes the form they have in UTF-8; the selection stays where it is in the
// text.
void WriteAsUtf8(const std::string& text) {
    auto anchor = Mod_Sci::Send(SCI_GETANCHOR), caret = Mod_Sci::GetCurrentPos();
    const auto grow = [](std::intptr_t& place, std::intptr_t at, std::size_t bytes) {
        if (at < place) place += static_cast<std::intptr_t>(bytes) - 1;
    };
    for (std::size_t i = text.size(); i-- > 0;) {
        if (!IsHigh(text[i])) continue;
        const std::string character = CharacterInUtf8(static_cast<unsigned char>(text[i]));
        const auto at = static_cast<std::intptr_t>(i);
        Mod_Sci::ReplaceRange(at, at + 1, character);
        grow(anchor, at, character.size());
        grow(caret, at, character.size());
    }
    Mod_Sci::SetSel(anchor, caret);
}

} // namespace

bool TakeBeyondCodePage(frmDoc& document, const std::string& character) {
    const ActiveSwap swap(document);
    const std::string text = Mod_Sci::GetText();
    const bool ascii = std::none_of(text.begin(), text.end(), IsHigh);
    if (!ascii && !document.NewFile) {
        if (character.empty()) return false;
        gHost.desktop->Beep();
        Tell("Left out: \"" + character + "\" is not in Windows-1252, the code page of this file");
        return false;
    }
    if (!ascii) {
        OpenUndoGroup();
        WriteAsUtf8(text);
        // An input method takes back what it composes with an undo of its own.
        document.m_oSubclass->ParseNow();
        CloseUndoGroup(&document);
    }
    document.View->SetUtf8(true);
    Tell("This document is UTF-8 now");
    return true;
}
