// One thin function per Scintilla message, named after it, sent through the direct function to the
// active view (SciWndData). Positions are bytes from 0, lines count from 0, colours are 0x00BBGGRR.
#pragma once

#include "host/EditorView.h"
#include "sci/SciMessages.h"

#include <cstdint>
#include <string>
#include <string_view>

// The direct pointer of the active view. Written by MakeActive and ViewSwap.
extern std::intptr_t SciWndData;

// The library's one direct function. Written when the first view is made.
extern SciDirectFunction gSciDirect;

// Makes another view the active one while it lives; the active document stays.
class ViewSwap {
public:
    explicit ViewSwap(std::intptr_t view) : before_(SciWndData) { SciWndData = view; }
    ~ViewSwap() { SciWndData = before_; }
    ViewSwap(const ViewSwap&) = delete;
    ViewSwap& operator=(const ViewSwap&) = delete;

private:
    std::intptr_t before_;
};

namespace Mod_Sci {

inline std::intptr_t Send(unsigned message, std::intptr_t wParam = 0, std::intptr_t lParam = 0) {
    return gSciDirect(SciWndData, message, static_cast<std::uintptr_t>(wParam), lParam);
}
// The same to a view that is not the active one.
inline std::intptr_t SendTo(std::intptr_t view, unsigned message, std::intptr_t wParam = 0,
                            std::intptr_t lParam = 0) {
    return gSciDirect(view, message, static_cast<std::uintptr_t>(wParam), lParam);
}
inline std::intptr_t Address(const void* pointer) { return reinterpret_cast<std::intptr_t>(pointer); }

inline std::intptr_t InsertText(std::intptr_t position, const char* text) {
    return Send(SCI_INSERTTEXT, position, Address(text));
}
inline std::intptr_t GetLength() { return Send(SCI_GETLENGTH); }
inline std::intptr_t GetCharAt(std::intptr_t position) { return Send(SCI_GETCHARAT, position); }
inline std::intptr_t GetCurrentPos() { return Send(SCI_GETCURRENTPOS); }
inline std::intptr_t GetStyleAt(std::intptr_t position) { return Send(SCI_GETSTYLEAT, position); }
inline std::intptr_t Redo() { return Send(SCI_REDO); }
inline std::intptr_t SetUndoCollection(std::intptr_t collect) { return Send(SCI_SETUNDOCOLLECTION, collect); }
inline std::intptr_t SelectAll() { return Send(SCI_SELECTALL); }
inline std::intptr_t SetSavePoint() { return Send(SCI_SETSAVEPOINT); }
inline std::intptr_t CanRedo() { return Send(SCI_CANREDO); }
inline int MarkerLineFromHandle(std::intptr_t handle) {
    return static_cast<int>(Send(SCI_MARKERLINEFROMHANDLE, handle));
}
inline std::intptr_t MarkerDeleteHandle(std::intptr_t handle) { return Send(SCI_MARKERDELETEHANDLE, handle); }
inline std::intptr_t SetViewWS(std::intptr_t mode) { return Send(SCI_SETVIEWWS, mode); }
inline std::intptr_t PositionFromPoint(std::intptr_t x, std::intptr_t y) {
    return Send(SCI_POSITIONFROMPOINT, x, y);
}
inline std::intptr_t GotoLine(std::intptr_t line) { return Send(SCI_GOTOLINE, line); }
inline std::intptr_t GotoPos(std::intptr_t position) { return Send(SCI_GOTOPOS, position); }
inline std::intptr_t SetAnchor(std::intptr_t position) { return Send(SCI_SETANCHOR, position); }
inline std::intptr_t GetEolMode() { return Send(SCI_GETEOLMODE); }
inline std::intptr_t SetEolMode(std::intptr_t mode) { return Send(SCI_SETEOLMODE, mode); }
inline std::intptr_t StartStyling(std::intptr_t position, std::intptr_t mask) {
    return Send(SCI_STARTSTYLING, position, mask);
}
inline std::intptr_t SetStyling(std::intptr_t length, std::intptr_t style) {
    return Send(SCI_SETSTYLING, length, style);
}
inline std::intptr_t SetTabWidth(std::intptr_t width) { return Send(SCI_SETTABWIDTH, width); }
inline std::intptr_t MarkerDefine(std::intptr_t marker, std::intptr_t symbol) {
    return Send(SCI_MARKERDEFINE, marker, symbol);
}
inline std::intptr_t MarkerSetFore(std::intptr_t marker, std::intptr_t colour) {
    return Send(SCI_MARKERSETFORE, marker, colour);
}
inline std::intptr_t MarkerSetBack(std::intptr_t marker, std::intptr_t colour) {
    return Send(SCI_MARKERSETBACK, marker, colour);
}
inline std::intptr_t MarkerAdd(std::intptr_t line, std::intptr_t marker) {
    return Send(SCI_MARKERADD, line, marker);
}
inline std::intptr_t MarkerDelete(std::intptr_t line, std::intptr_t marker) {
    return Send(SCI_MARKERDELETE, line, marker);
}
inline std::intptr_t MarkerDeleteAll(std::intptr_t marker) { return Send(SCI_MARKERDELETEALL, marker); }
inline std::intptr_t MarkerGet(std::intptr_t line) { return Send(SCI_MARKERGET, line); }
inline int MarkerNext(std::intptr_t line, std::intptr_t mask) {
    return static_cast<int>(Send(SCI_MARKERNEXT, line, mask));
}
inline int MarkerPrevious(std::intptr_t line, std::intptr_t mask) {
    return static_cast<int>(Send(SCI_MARKERPREVIOUS, line, mask));
}
inline std::intptr_t StyleClearAll() { return Send(SCI_STYLECLEARALL); }
inline std::intptr_t StyleSetFore(std::intptr_t style, std::intptr_t colour) {
    return Send(SCI_STYLESETFORE, style, colour);
}
inline std::intptr_t StyleSetBack(std::intptr_t style, std::intptr_t colour) {
    return Send(SCI_STYLESETBACK, style, colour);
}
inline std::intptr_t StyleSetBold(std::intptr_t style, std::intptr_t on) {
    return Send(SCI_STYLESETBOLD, style, on);
}
inline std::intptr_t StyleSetItalic(std::intptr_t style, std::intptr_t on) {
    return Send(SCI_STYLESETITALIC, style, on);
}
inline std::intptr_t StyleSetSize(std::intptr_t style, std::intptr_t points) {
    return Send(SCI_STYLESETSIZE, style, points);
}
inline std::intptr_t StyleSetFont(std::intptr_t style, const char* font) {
    return Send(SCI_STYLESETFONT, style, Address(font));
}
inline std::intptr_t StyleSetUnderline(std::intptr_t style, std::intptr_t on) {
    return Send(SCI_STYLESETUNDERLINE, style, on);
}
inline std::intptr_t SetSelFore(std::intptr_t use, std::intptr_t colour) {
    return Send(SCI_SETSELFORE, use, colour);
}
inline std::intptr_t SetSelBack(std::intptr_t use, std::intptr_t colour) {
    return Send(SCI_SETSELBACK, use, colour);
}
inline std::intptr_t SetCaretFore(std::intptr_t colour) { return Send(SCI_SETCARETFORE, colour); }
inline std::intptr_t AssignCmdKey(std::intptr_t key, std::intptr_t message) {
    return Send(SCI_ASSIGNCMDKEY, key, message);
}
inline std::intptr_t ClearCmdKey(std::intptr_t key) { return Send(SCI_CLEARCMDKEY, key); }
inline std::intptr_t ClearAllCmdKeys() { return Send(SCI_CLEARALLCMDKEYS); }
inline std::intptr_t SetCaretPeriod(std::intptr_t milliseconds) {
    return Send(SCI_SETCARETPERIOD, milliseconds);
}
inline std::intptr_t BeginUndoAction() { return Send(SCI_BEGINUNDOACTION); }
inline std::intptr_t EndUndoAction() { return Send(SCI_ENDUNDOACTION); }
inline std::intptr_t SetWhitespaceFore(std::intptr_t use, std::intptr_t colour) {
    return Send(SCI_SETWHITESPACEFORE, use, colour);
}
inline std::intptr_t SetCaretLineVisible(std::intptr_t visible) {
    return Send(SCI_SETCARETLINEVISIBLE, visible);
}
inline std::intptr_t SetCaretLineBack(std::intptr_t colour) { return Send(SCI_SETCARETLINEBACK, colour); }
inline std::intptr_t AutoCShow(std::intptr_t length, const char* list) {
    return Send(SCI_AUTOCSHOW, length, Address(list));
}
inline std::intptr_t AutoCCancel() { return Send(SCI_AUTOCCANCEL); }
inline std::intptr_t AutoCActive() { return Send(SCI_AUTOCACTIVE); }
inline std::intptr_t AutoCComplete() { return Send(SCI_AUTOCCOMPLETE); }
inline std::intptr_t AutoCStops(const char* characters) {
    return Send(SCI_AUTOCSTOPS, 0, Address(characters));
}
inline std::intptr_t AutoCSetCancelAtStart(std::intptr_t on) { return Send(SCI_AUTOCSETCANCELATSTART, on); }
inline std::intptr_t AutoCSetFillups(const char* characters) {
    return Send(SCI_AUTOCSETFILLUPS, 0, Address(characters));
}
inline std::intptr_t AutoCSetIgnoreCase(std::intptr_t on) { return Send(SCI_AUTOCSETIGNORECASE, on); }
inline std::intptr_t AutoCSetAutoHide(std::intptr_t on) { return Send(SCI_AUTOCSETAUTOHIDE, on); }
inline std::intptr_t SetUseTabs(std::intptr_t on) { return Send(SCI_SETUSETABS, on); }
inline std::intptr_t SetLineIndentation(std::intptr_t line, std::intptr_t columns) {
    return Send(SCI_SETLINEINDENTATION, line, columns);
}
inline int GetLineIndentation(std::intptr_t line) {
    return static_cast<int>(Send(SCI_GETLINEINDENTATION, line));
}
inline std::intptr_t GetLineIndentPosition(std::intptr_t line) {
    return Send(SCI_GETLINEINDENTPOSITION, line);
}
inline std::intptr_t GetColumn(std::intptr_t position) { return Send(SCI_GETCOLUMN, position); }
inline std::intptr_t SetIndentationGuides(std::intptr_t mode) { return Send(SCI_SETINDENTATIONGUIDES, mode); }
inline std::intptr_t SetHighlightGuide(std::intptr_t column) { return Send(SCI_SETHIGHLIGHTGUIDE, column); }
inline std::intptr_t GetLineEndPosition(std::intptr_t line) { return Send(SCI_GETLINEENDPOSITION, line); }
inline std::intptr_t SetCurrentPos(std::intptr_t position) { return Send(SCI_SETCURRENTPOS, position); }
inline std::intptr_t SetSelectionStart(std::intptr_t position) {
    return Send(SCI_SETSELECTIONSTART, position);
}
inline std::intptr_t GetSelectionStart() { return Send(SCI_GETSELECTIONSTART); }
inline std::intptr_t SetSelectionEnd(std::intptr_t position) { return Send(SCI_SETSELECTIONEND, position); }
inline std::intptr_t GetSelectionEnd() { return Send(SCI_GETSELECTIONEND); }
inline int GetFirstVisibleLine() { return static_cast<int>(Send(SCI_GETFIRSTVISIBLELINE)); }
inline std::intptr_t GetLine(std::intptr_t line, void* bytes) {
    return Send(SCI_GETLINE, line, Address(bytes));
}
inline int GetLineCount() { return static_cast<int>(Send(SCI_GETLINECOUNT)); }
inline std::intptr_t SetSel(std::intptr_t anchor, std::intptr_t caret) {
    return Send(SCI_SETSEL, anchor, caret);
}
inline std::intptr_t PointXFromPosition(std::intptr_t position) {
    return Send(SCI_POINTXFROMPOSITION, 0, position);
}
inline std::intptr_t PointYFromPosition(std::intptr_t position) {
    return Send(SCI_POINTYFROMPOSITION, 0, position);
}
inline int LineFromPosition(std::intptr_t position) {
    return static_cast<int>(Send(SCI_LINEFROMPOSITION, position));
}
inline std::intptr_t PositionFromLine(std::intptr_t line) { return Send(SCI_POSITIONFROMLINE, line); }
inline std::intptr_t ReplaceSel(const char* text) { return Send(SCI_REPLACESEL, 0, Address(text)); }
inline std::intptr_t CanUndo() { return Send(SCI_CANUNDO); }
// Writes a mark of the owner's own into the history.
inline std::intptr_t AddUndoAction(std::intptr_t token) { return Send(SCI_ADDUNDOACTION, token); }
inline std::intptr_t EmptyUndoBuffer() { return Send(SCI_EMPTYUNDOBUFFER); }
inline std::intptr_t Undo() { return Send(SCI_UNDO); }
inline std::intptr_t Cut() { return Send(SCI_CUT); }
inline std::intptr_t Copy() { return Send(SCI_COPY); }
inline std::intptr_t Paste() { return Send(SCI_PASTE); }
inline std::intptr_t Clear() { return Send(SCI_CLEAR); }
inline std::intptr_t SetText(const char* text) { return Send(SCI_SETTEXT, 0, Address(text)); }
inline std::intptr_t SetCaretWidth(std::intptr_t width) { return Send(SCI_SETCARETWIDTH, width); }
inline std::intptr_t SetTargetStart(std::intptr_t position) { return Send(SCI_SETTARGETSTART, position); }
inline std::intptr_t GetTargetStart() { return Send(SCI_GETTARGETSTART); }
inline std::intptr_t SetTargetEnd(std::intptr_t position) { return Send(SCI_SETTARGETEND, position); }
inline std::intptr_t GetTargetEnd() { return Send(SCI_GETTARGETEND); }
inline std::intptr_t ReplaceTarget(std::string_view text) {
    return Send(SCI_REPLACETARGET, static_cast<std::intptr_t>(text.size()), Address(text.data()));
}
// The same with the groups of the last match in the place of \1 to \9.
inline std::intptr_t ReplaceTargetRe(std::string_view text) {
    return Send(SCI_REPLACETARGETRE, static_cast<std::intptr_t>(text.size()), Address(text.data()));
}
inline std::intptr_t SearchInTarget(std::string_view text) {
    return Send(SCI_SEARCHINTARGET, static_cast<std::intptr_t>(text.size()), Address(text.data()));
}
inline std::intptr_t SetSearchFlags(std::intptr_t flags) { return Send(SCI_SETSEARCHFLAGS, flags); }
inline std::intptr_t CallTipShow(std::intptr_t position, const char* text) {
    return Send(SCI_CALLTIPSHOW, position, Address(text));
}
inline std::intptr_t CallTipCancel() { return Send(SCI_CALLTIPCANCEL); }
inline std::intptr_t CallTipActive() { return Send(SCI_CALLTIPACTIVE); }
inline std::intptr_t CallTipSetHlt(std::intptr_t start, std::intptr_t end) {
    return Send(SCI_CALLTIPSETHLT, start, end);
}
inline std::intptr_t CallTipSetBack(std::intptr_t colour) { return Send(SCI_CALLTIPSETBACK, colour); }
inline std::intptr_t CallTipSetFore(std::intptr_t colour) { return Send(SCI_CALLTIPSETFORE, colour); }
inline std::intptr_t CallTipSetForeHlt(std::intptr_t colour) { return Send(SCI_CALLTIPSETFOREHLT, colour); }
inline std::intptr_t AutoCSetMaxWidth(std::intptr_t width) { return Send(SCI_AUTOCSETMAXWIDTH, width); }
inline std::intptr_t AutoCSetMaxHeight(std::intptr_t rows) { return Send(SCI_AUTOCSETMAXHEIGHT, rows); }
inline int DocLineFromVisible(std::intptr_t line) {
    return static_cast<int>(Send(SCI_DOCLINEFROMVISIBLE, line));
}
inline std::intptr_t SetFoldLevel(std::intptr_t line, std::intptr_t level) {
    return Send(SCI_SETFOLDLEVEL, line, level);
}
inline int GetFoldLevel(std::intptr_t line) { return static_cast<int>(Send(SCI_GETFOLDLEVEL, line)); }
inline int GetLastChild(std::intptr_t line, std::intptr_t level) {
    return static_cast<int>(Send(SCI_GETLASTCHILD, line, level));
}
inline int GetFoldParent(std::intptr_t line) { return static_cast<int>(Send(SCI_GETFOLDPARENT, line)); }
inline std::intptr_t GetLineVisible(std::intptr_t line) { return Send(SCI_GETLINEVISIBLE, line); }
inline std::intptr_t GetFoldExpanded(std::intptr_t line) { return Send(SCI_GETFOLDEXPANDED, line); }
inline std::intptr_t ToggleFold(std::intptr_t line) { return Send(SCI_TOGGLEFOLD, line); }
inline std::intptr_t EnsureVisible(std::intptr_t line) { return Send(SCI_ENSUREVISIBLE, line); }
inline std::intptr_t SetFoldFlags(std::intptr_t flags) { return Send(SCI_SETFOLDFLAGS, flags); }
inline std::intptr_t EnsureVisibleEnforcePolicy(std::intptr_t line) {
    return Send(SCI_ENSUREVISIBLEENFORCEPOLICY, line);
}
inline std::intptr_t SetMarginTypeN(std::intptr_t margin, std::intptr_t type) {
    return Send(SCI_SETMARGINTYPEN, margin, type);
}
inline std::intptr_t SetMarginWidthN(std::intptr_t margin, std::intptr_t pixels) {
    return Send(SCI_SETMARGINWIDTHN, margin, pixels);
}
inline std::intptr_t GetMarginWidthN(std::intptr_t margin) { return Send(SCI_GETMARGINWIDTHN, margin); }
inline std::intptr_t SetMarginMaskN(std::intptr_t margin, std::intptr_t mask) {
    return Send(SCI_SETMARGINMASKN, margin, mask);
}
inline std::intptr_t SetMarginSensitiveN(std::intptr_t margin, std::intptr_t sensitive) {
    return Send(SCI_SETMARGINSENSITIVEN, margin, sensitive);
}
inline std::intptr_t WordStartPosition(std::intptr_t position, std::intptr_t onlyWord) {
    return Send(SCI_WORDSTARTPOSITION, position, onlyWord);
}
inline std::intptr_t WordEndPosition(std::intptr_t position, std::intptr_t onlyWord) {
    return Send(SCI_WORDENDPOSITION, position, onlyWord);
}
inline std::intptr_t SetWrapMode(std::intptr_t mode) { return Send(SCI_SETWRAPMODE, mode); }
inline std::intptr_t TextWidth(std::intptr_t style, const char* text) {
    return Send(SCI_TEXTWIDTH, style, Address(text));
}
inline std::intptr_t TextHeight(std::intptr_t line) { return Send(SCI_TEXTHEIGHT, line); }
inline std::intptr_t GetCodePage() { return Send(SCI_GETCODEPAGE); }
inline std::intptr_t PositionAfter(std::intptr_t position) { return Send(SCI_POSITIONAFTER, position); }
inline std::intptr_t TargetFromSelection() { return Send(SCI_TARGETFROMSELECTION); }
inline std::intptr_t SetFoldMarginColour(std::intptr_t use, std::intptr_t colour) {
    return Send(SCI_SETFOLDMARGINCOLOUR, use, colour);
}
inline std::intptr_t SetFoldMarginHiColour(std::intptr_t use, std::intptr_t colour) {
    return Send(SCI_SETFOLDMARGINHICOLOUR, use, colour);
}
inline std::intptr_t WordLeft() { return Send(SCI_WORDLEFT); }
inline std::intptr_t WordLeftExtend() { return Send(SCI_WORDLEFTEXTEND); }
inline std::intptr_t WordRight() { return Send(SCI_WORDRIGHT); }
inline std::intptr_t WordRightExtend() { return Send(SCI_WORDRIGHTEXTEND); }
inline std::intptr_t DocumentStart() { return Send(SCI_DOCUMENTSTART); }
inline std::intptr_t DocumentStartExtend() { return Send(SCI_DOCUMENTSTARTEXTEND); }
inline std::intptr_t DocumentEnd() { return Send(SCI_DOCUMENTEND); }
inline std::intptr_t DocumentEndExtend() { return Send(SCI_DOCUMENTENDEXTEND); }
inline std::intptr_t Tab() { return Send(SCI_TAB); }
inline std::intptr_t BackTab() { return Send(SCI_BACKTAB); }
inline std::intptr_t NewLine() { return Send(SCI_NEWLINE); }
inline std::intptr_t DelWordLeft() { return Send(SCI_DELWORDLEFT); }
inline std::intptr_t DelWordRight() { return Send(SCI_DELWORDRIGHT); }
inline std::intptr_t LineCut() { return Send(SCI_LINECUT); }
inline std::intptr_t LineDelete() { return Send(SCI_LINEDELETE); }
inline std::intptr_t LowerCase() { return Send(SCI_LOWERCASE); }
inline std::intptr_t UpperCase() { return Send(SCI_UPPERCASE); }
inline int LineLength(std::intptr_t line) { return static_cast<int>(Send(SCI_LINELENGTH, line)); }
inline std::intptr_t BraceHighlight(std::intptr_t first, std::intptr_t second) {
    return Send(SCI_BRACEHIGHLIGHT, first, second);
}
inline std::intptr_t BraceMatch(std::intptr_t position) { return Send(SCI_BRACEMATCH, position); }
inline std::intptr_t SetModEventMask(std::intptr_t mask) { return Send(SCI_SETMODEVENTMASK, mask); }
inline int LinesOnScreen() { return static_cast<int>(Send(SCI_LINESONSCREEN)); }
inline std::intptr_t UsePopup(std::intptr_t on) { return Send(SCI_USEPOPUP, on); }
inline std::intptr_t GetFocus() { return Send(SCI_GETFOCUS); }
inline std::intptr_t SetCursor(std::intptr_t cursor) { return Send(SCI_SETCURSOR, cursor); }
inline std::intptr_t DelLineLeft() { return Send(SCI_DELLINELEFT); }
inline std::intptr_t DelLineRight() { return Send(SCI_DELLINERIGHT); }
inline std::intptr_t ChooseCaretX() { return Send(SCI_CHOOSECARETX); }
inline std::intptr_t GrabFocus() { return Send(SCI_GRABFOCUS); }
inline std::intptr_t SetXCaretPolicy(std::intptr_t policy, std::intptr_t slop) {
    return Send(SCI_SETXCARETPOLICY, policy, slop);
}
inline std::intptr_t SetYCaretPolicy(std::intptr_t policy, std::intptr_t slop) {
    return Send(SCI_SETYCARETPOLICY, policy, slop);
}
inline std::intptr_t LineCopy() { return Send(SCI_LINECOPY); }
inline std::intptr_t SetWrapVisualFlags(std::intptr_t flags) { return Send(SCI_SETWRAPVISUALFLAGS, flags); }
inline std::intptr_t SetWrapVisualFlagsLocation(std::intptr_t location) {
    return Send(SCI_SETWRAPVISUALFLAGSLOCATION, location);
}
inline std::intptr_t SetWrapStartIndent(std::intptr_t indent) { return Send(SCI_SETWRAPSTARTINDENT, indent); }
inline std::intptr_t SetLexer(std::intptr_t lexer) { return Send(SCI_SETLEXER, lexer); }

// The whole text, and pieces of it.
std::string GetText();
std::string GetSelText();
// A range that exceeds the text is cut to it.
std::string GetTextRange(std::intptr_t start, std::intptr_t end);
// One line with its line end.
std::string LineText(std::intptr_t line);
// Replaces the range by a text and leaves the target on it.
void ReplaceRange(std::intptr_t start, std::intptr_t end, std::string_view text);

} // namespace Mod_Sci
