// Commands on lines: new lines, comments, blocks, moves, breakpoints, paths.
#include "editor/Mod_SciFun_edit.h"

#include "editor/SciOptions.h"
#include "editor/frmDoc.h"
#include "engine/Markers.h"
#include "engine/Mod_Lexer.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "engine/WaitCursor.h"
#include "host/Desktop.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace Mod_SciFun {

namespace {

using Mod_Parse::HasMarker;

int LineOf(std::intptr_t position) { return Mod_Sci::LineFromPosition(position); }
int CaretLine() { return LineOf(Mod_Sci::GetCurrentPos()); }

std::string TextOf(int line) {
    return Mod_Sci::GetTextRange(Mod_Sci::PositionFromLine(line), Mod_Sci::GetLineEndPosition(line));
}

void CancelList() {
    if (Mod_Sci::AutoCActive()) Mod_Sci::AutoCCancel();
}

std::string LineBreak() {
    switch (Mod_Sci::GetEolMode()) {
    case SC_EOL_LF: return "\n";
    case SC_EOL_CR: return "\r";
    default: return "\r\n";
    }
}

void Insert(std::intptr_t position, const std::string& text) {
    Mod_Sci::ReplaceRange(position, position, text);
}

// The place of the first character of a line that is no blank.
std::intptr_t BehindBlanks(int line) {
    auto at = Mod_Sci::PositionFromLine(line);
    while (IsBlank[static_cast<std::uint8_t>(Mod_Sci::GetCharAt(at))]) ++at;
    return at;
}

// Brings the tables up to an edit and ends its undo step, so that what the parser writes belongs to it.
void FinishEdit() {
    ActiveForm()->m_oSubclass->ParseNow();
    CloseUndoGroup(gActiveDoc);
}

LineSpan LinesOfSelection() {
    const int first = LineOf(Mod_Sci::GetSelectionStart());
    const auto end = Mod_Sci::GetSelectionEnd();
    int last = LineOf(end);
    if (last > first && end == Mod_Sci::PositionFromLine(last)) --last;
    return {first, last};
}

template <class Body>
void Command(const char* name, Body body) {
    if (!DocumentActive()) return;
    Guarded(name, "Mod_SciFun", body);
}

// Between a lone CR and an LF; without a text there, the two line ends would be one.
bool NeedsText(int line) {
    return Mod_Sci::GetCharAt(Mod_Sci::PositionFromLine(line) - 1) == '\r' &&
           Mod_Sci::GetCharAt(Mod_Sci::GetLineEndPosition(line)) == '\n';
}

void MoveLine(int step) {
    CancelList();
    const int line = CaretLine();
    const int other = line + step;
    if (other < 0 || other >= Mod_Sci::GetLineCount()) return gHost.desktop->Beep();
    if (NeedsText(line) && TextOf(other).empty()) return gHost.desktop->Beep();
    if (NeedsText(other) && TextOf(line).empty()) return gHost.desktop->Beep();
    const auto offset = Mod_Sci::GetCurrentPos() - Mod_Sci::PositionFromLine(line);
    const std::string moved = TextOf(line);
    const std::string neighbour = TextOf(other);
    const auto write = [](int at, const std::string& text) {
        Mod_Sci::ReplaceRange(Mod_Sci::PositionFromLine(at), Mod_Sci::GetLineEndPosition(at), text);
    };
    OpenUndoGroup();
    write(line, neighbour);
    write(other, moved);
    Mod_Sci::GotoPos(Mod_Sci::PositionFromLine(other) + offset);
    FinishEdit();
}

// The words that close what a keyword opens; null for one that opens nothing by itself.
const char* Closer(const std::string& keyword) {
    static constexpr struct {
        const char* opens;
        const char* closes;
    } Pairs[] = {{"For", "Next"},
                 {"While", "Wend"},
                 {"If", "End IF"},
                 {"Select", "End Select"},
                 {"Function", "End Function"},
                 {"Type", "End Type"},
                 {"Repeat", "Forever"}};
    for (const auto& pair : Pairs)
        if (EqualNoCase(keyword, pair.opens)) return pair.closes;
    return nullptr;
}

constexpr std::string_view StopWord = "STOP";

// A line that has the marker may have its "Stop" further to the right; that one is the user's own.
void RemoveStop(std::intptr_t start) {
    const auto length = static_cast<std::intptr_t>(StopWord.size());
    if (UCase(Mod_Sci::GetTextRange(start, start + length)) != StopWord) return;
    auto end = start + length;
    const auto at = [&] { return static_cast<std::uint8_t>(Mod_Sci::GetCharAt(end)); };
    if (IsIdChar[at()]) return;
    while (IsBlank[at()]) ++end;
    if (at() == ':') ++end;
    OpenUndoGroup();
    Mod_Sci::ReplaceRange(start, end, "");
    FinishEdit();
}

// A path in the active document's bytes; unchanged if the document cannot hold it.
std::string InDocument(const std::string& path) {
    std::string bytes;
    if (Mod_Sci::GetCodePage() == SC_CP_UTF8 || !FromUtf8ToSingleBytes(ToUtf8(path), bytes)) return path;
    return bytes;
}

std::string RelativePath(const std::string& path) {
    const std::filesystem::path folder = GetFolder(gActiveDoc->FullFilename);
    if (folder.empty()) return path; // a document without a file has no place to look from
    const std::string relative = std::filesystem::path(path).lexically_relative(folder).string();
    return relative.empty() ? path : relative;
}

} // namespace

LineSpan SelectedLines() {
    LineSpan lines = LinesOfSelection();
    if (!Mod_Sci::GetFoldExpanded(lines.last))
        lines.last = std::max(lines.last, Mod_Sci::GetLastChild(lines.last, -1));
    return lines;
}

void NewLine() {
    Command("NewLine", [] {
        if (OptionsEdit::ACEnterAccepts && ActiveForm()->View->MovedInList()) {
            Mod_Sci::AutoCComplete();
            return;
        }
        Mod_Sci::AutoCCancel();
        // Open across the indentation that follows.
        OpenUndoGroup();
        Mod_Sci::NewLine();
    });
}

void CompleteScope() {
    Command("CompleteScope", [] {
        CancelList();
        // The text after the caret returns into the scope, so a keyword in it does not open the caret's
        // scope.
        const auto from = Mod_Sci::GetSelectionEnd();
        const auto to = Mod_Sci::GetLineEndPosition(Mod_Sci::LineFromPosition(from));
        const std::string rest = Mod_Sci::GetTextRange(from, to);
        OpenUndoGroup();
        if (!rest.empty()) Mod_Sci::ReplaceRange(from, to, "");
        {
            const ScopeKeywordKept kept;
            NewLine();
            ActiveForm()->m_oSubclass->ParseNow();
        }
        const char* closer = Closer(LastScopeKeyword);
        const auto caret = Mod_Sci::GetCurrentPos();
        const std::string below = closer == nullptr ? std::string() : LineBreak() + closer;
        if (!rest.empty() || closer != nullptr) Insert(caret, rest + below);
        Mod_Sci::GotoPos(caret);
        FinishEdit();
    });
}

void CommentSelection() {
    Command("CommentSelection", [] {
        CancelList();
        const WaitCursor wait;
        const LineSpan lines = SelectedLines();
        OpenUndoGroup();
        for (int line = lines.first; line <= lines.last; ++line) Insert(Mod_Sci::PositionFromLine(line), ";");
    });
}

void UnCommentSelection() {
    Command("UnCommentSelection", [] {
        CancelList();
        const WaitCursor wait;
        const LineSpan lines = SelectedLines();
        OpenUndoGroup();
        for (int line = lines.first; line <= lines.last; ++line) {
            const auto at = BehindBlanks(line);
            if (Mod_Sci::GetCharAt(at) != ';') continue;
            if (TextOf(line) != ";" || !NeedsText(line)) Mod_Sci::ReplaceRange(at, at + 1, "");
        }
    });
}

void BlockFromSelection() {
    Command("BlockFromSelection", [] {
        CancelList();
        LineSpan lines = LinesOfSelection();
        if (!Mod_Sci::GetFoldExpanded(lines.last)) --lines.last;
        if (lines.first > lines.last) return;
        const WaitCursor wait;
        OpenUndoGroup();
        Insert(Mod_Sci::GetLineEndPosition(lines.last), LineBreak() + ";[End Block]");
        if (lines.first > 0)
            Insert(Mod_Sci::GetLineEndPosition(lines.first - 1), LineBreak() + ";[Block]");
        else
            Insert(0, ";[Block]" + LineBreak());
        FinishEdit();
        Mod_Sci::GotoLine(lines.last + 3);
    });
}

void MoveCurrentLineUp() {
    Command("MoveCurrentLineUp", [] { MoveLine(-1); });
}

void MoveCurrentLineDown() {
    Command("MoveCurrentLineDown", [] { MoveLine(1); });
}

void ToggleBreakPoint(int wanted) {
    Command("ToggleBreakPoint", [&] {
        const int line = wanted < 0 ? CaretLine() : wanted;
        const auto lineEnd = Mod_Sci::GetLineEndPosition(line);
        if (lineEnd == Mod_Sci::PositionFromLine(line)) return;
        const auto start = BehindBlanks(line);
        if (HasMarker(line, Mod_Parse::MarkerBreakpoint)) return RemoveStop(start);
        OpenUndoGroup();
        Insert(start, start == lineEnd ? "Stop" : "Stop :");
        FinishEdit(); // which marks the line
    });
}

void InsertFilePath() {
    Command("InsertFilePath", [] {
        const auto chosen = gHost.dialogs->OpenFiles(
            {.title = "Insert Filename with relative path...",
             .filter = "All Files|*.*|Images (*.bmp, *.jpg, *.jpeg, *.png, *.gif, *.tga)|"
                       "*.bmp;*.jpg;*.jpeg;*.png;*.gif;*.tga|3D Objects (*.b3d, *.3ds, *.x, *.md2)|"
                       "*.b3d;*.3ds;*.x;*.md2|Audio (*.wav, *.ogg, *.mp3, *.mid, *.mod, *.s3m, *.it)|"
                       "*.wav;*.ogg;*.mp3;*.mid;*.mod;*.s3m;*.it|Blitz Basic Files (*.bb)|*.bb",
             .fileName = {},
             .folder = GetFolder(gActiveDoc->FullFilename)});
        if (!chosen.empty()) Mod_Sci::ReplaceSel(InDocument('"' + RelativePath(chosen[0]) + '"').c_str());
        ActiveForm()->View->GrabFocus();
    });
}

} // namespace Mod_SciFun
