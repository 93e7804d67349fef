// The declaration of the word at the caret.
#include "editor/Mod_SciFun_navigation.h"

#include "editor/EditorCalls.h"
#include "editor/Mod_SciFun_goto.h"
#include "editor/PositionBrowser.h"
#include "editor/frmDoc.h"
#include "engine/ClosedFiles.h"
#include "engine/ClsProject.h"
#include "engine/LineStyles.h"
#include "engine/Mod_Parse.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "engine/SymbolLine.h"
#include "host/ErrorLog.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

namespace Mod_SciFun {

namespace {

constexpr std::intptr_t StyleBits = 0xFF;

// The table in which a word of that style is declared; null when it is no such word.
clsHash* TableOf(std::intptr_t style, int line) {
    ClsProject& project = *gCurrentProject;
    switch (style) {
    case STYLE_Function: return &project.Funkcii;
    case STYLE_GlobalVar: return &project.Globals;
    case STYLE_Constant: return &project.Constants;
    case STYLE_Label: return &project.Labels;
    case STYLE_ArrayVar: return &project.Arrays;
    case STYLE_LocalVar: Mod_Parse::CurrentFunction(line); return CurrentLocals.get();
    default: return nullptr;
    }
}

// Of namesakes the one of the active document, else the oldest.
SymbolPointer Declaration(clsHash& table, const std::string& word) {
    SymbolPointer first = table.ItemHash(word);
    if (!first || first->SciWndData == SciWndData) return first;
    for (SymbolPointer& symbol : table.Items())
        if (symbol->SciWndData == SciWndData && EqualNoCase(symbol->Ime, word)) return std::move(symbol);
    return first;
}

const frmDoc* DocumentOf(const Symbol& symbol) {
    for (const auto& source : gCurrentProject->Sources)
        if (source.record->SciEdi_WndData == symbol.SciWndData) return &FormOf(*source.record);
    return nullptr;
}

// Opens the file of a symbol that was closed, and finds what it has declared in its place. Null when it could
// not be opened or has no such name any more.
SymbolPointer Reopened(const clsHash& table, const SymbolPointer& symbol) {
    const auto project = gCurrentProject; // owns the table
    const int before = NamesakesBefore(table, *symbol);
    if (!gEditorCalls.OpenMember(symbol->File)) return nullptr;
    return NamesakeOf(SciWndData, table, symbol->Ime, before);
}

void RememberCaret() {
    if (!OptionsEdit::CBrowserRememberOnGotoDefinition) return;
    const auto caret = Mod_Sci::GetCurrentPos();
    CheckCBrowser(caret, Mod_Sci::LineFromPosition(caret));
}

} // namespace

void GotoDeclaration() {
    Guarded("GotoDeclaration", "Mod_SciFun", [] {
        if (!DocumentActive() || !gCurrentProject) return;
        const auto caret = Mod_Sci::GetCurrentPos();
        const auto start = Mod_Sci::WordStartPosition(caret, 1);
        const std::string word = Mod_Sci::GetTextRange(start, Mod_Sci::WordEndPosition(caret, 1));
        if (word.empty()) return;
        clsHash* table = TableOf(Mod_Sci::GetStyleAt(start) & StyleBits, Mod_Sci::LineFromPosition(caret));
        SymbolPointer symbol = table == nullptr ? nullptr : Declaration(*table, word);
        if (!symbol || symbol->File.empty()) return;
        RememberCaret();
        if (DocumentOf(*symbol) == nullptr) symbol = Reopened(*table, symbol);
        const frmDoc* document = symbol ? DocumentOf(*symbol) : nullptr;
        const int line = document ? LineOf(*symbol) : -1;
        if (line < 0) return;
        if (!BringToFront(*document)) return;
        GotoLine(line);
        RememberCaret();
    });
}

} // namespace Mod_SciFun
