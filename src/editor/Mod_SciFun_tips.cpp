// The texts of the tip box and the call tip.
#include "editor/Mod_SciFun_tips.h"

#include "editor/EditorCalls.h"
#include "editor/Pipeline.h"
#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/Mod_Lexer.h"
#include "engine/OptionsEdit.h"
#include "host/Desktop.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace Mod_SciFun {

namespace {

constexpr int Red = 0x0000FF;
constexpr int Blue = 0xFF0000;
constexpr std::size_t LongestOpener = 80;
constexpr std::size_t LineEnd = 2;

// What the tip box holds. Written by Write alone.
TipText shownTip;

void Write(TipText tip) {
    if (tip == shownTip) return;
    shownTip = std::move(tip);
    gEditorCalls.SetTipText(shownTip);
}

std::string Whole(const TipText& tip) { return tip.left + tip.hot + tip.right; }

// The suffix of an integer is omitted.
std::string_view Suffix(std::uint8_t tip) { return tip == TipInteger ? "" : SuffixText[tip]; }

// The parameters of a declaration as its source has them.
std::vector<std::string> Pieces(std::string_view help, int number) {
    std::vector<std::string> pieces;
    for (int i = 1; i <= number; ++i) {
        const std::size_t comma = help.find(',');
        std::string piece(help.substr(0, comma));
        pieces.push_back(piece.find('=') == std::string::npos ? piece : "[" + piece + "]");
        if (comma == std::string_view::npos) break;
        help.remove_prefix(comma + 1);
    }
    return pieces;
}

TipText UserTip(const CallAtCaret& call) {
    TipText tip;
    const SymbolPointer record = gCurrentProject->Funkcii.ItemHash(call.name);
    if (!record) return tip;
    const auto& function = static_cast<const ClsFunkcija&>(*record);
    tip.left = call.name;
    tip.left += function.Tip == TipCustom ? "." + function.Tajp : std::string(Suffix(function.Tip));
    tip.left += " (";
    const auto pieces = Pieces(function.Help, function.VlezNum);
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const int index = static_cast<int>(i) + 1;
        if (call.param != 0 && index > call.param) {
            tip.right += "," + pieces[i];
            continue;
        }
        if (i > 0) tip.left += ",";
        (index == call.param ? tip.hot : tip.left) += pieces[i];
    }
    (call.param > 0 ? tip.right : tip.left) += ")";
    return tip;
}

TipText KeywordTip(const CallAtCaret& call) {
    TipText tip;
    const ClsBBFunkcija* keyword = FindKeyword(UCase(call.name));
    if (keyword == nullptr) return tip;
    const int count = keyword->VlezNum;
    const bool current = call.param >= 1 && call.param <= count;
    tip.left = call.name + std::string(Suffix(keyword->Tip)) + " ";
    if (keyword->ImaZagradi) tip.left += "(";
    for (int i = 1; i <= count; ++i) {
        const std::string& text = keyword->ParametarTekst(i);
        if (!current) {
            tip.left += (i > 1 ? "," : "") + text;
        } else if (i < call.param) {
            tip.left += text + ",";
        } else if (i == call.param) {
            tip.hot = text;
        } else {
            tip.right += "," + text;
        }
    }
    if (keyword->ImaZagradi) (current ? tip.right : tip.left) += ")";
    return tip;
}

void ShowTip(std::intptr_t position, const TipText& tip) {
    const auto start = static_cast<std::intptr_t>(tip.left.size());
    Mod_Sci::CallTipShow(position, Whole(tip).c_str());
    Mod_Sci::CallTipSetHlt(start, start + static_cast<std::intptr_t>(tip.hot.size()));
}

void PopUp(std::intptr_t position, const TipText& tip, bool asked) {
    const bool open = Mod_Sci::CallTipActive() != 0;
    const bool same = Whole(tip) + " " == Whole(shownTip);
    if (asked || (open && same))
        ShowTip(position, tip);
    else if (open)
        Mod_Sci::CallTipCancel();
}

void ShowCall(const CallAtCaret& call, int line) {
    PipelineState& state = gActiveDoc->State;
    if (call.name.empty()) {
        Write({});
        Mod_Sci::CallTipCancel();
    } else {
        TipText tip = call.isUser ? UserTip(call) : KeywordTip(call);
        if (OptionsEdit::PopupCallTips)
            PopUp(Mod_Sci::PositionFromLine(line) + call.column, tip, state.mShowCallTip);
        tip.right += " ";
        tip.colour = Red;
        Write(std::move(tip));
    }
    state.mShowCallTip = false;
}

// The line above that opened the scope which a line at this indentation closes; -1 when there is none.
int OpenerAbove(int line) {
    const auto indent = Mod_Sci::GetLineIndentation(line);
    for (int at = line - 1; at >= 0; --at) {
        const auto here = Mod_Sci::GetLineIndentation(at);
        if (here > indent) continue;
        const auto first = Mod_Sci::GetLineIndentPosition(at);
        if (Mod_Sci::GetCharAt(first) == ';' || first == Mod_Sci::GetLineEndPosition(at)) continue;
        if (here < indent) return -1;
        if (!EqualNoCase(Mod_Sci::GetTextRange(first, first + 4), "Else")) return at;
    }
    return -1;
}

} // namespace

void ShowHelp(std::intptr_t pos, int line) {
    Guarded("ShowHelp", "Mod_SciFun", [&] {
        const CallAtCaret call = ZemiHelp(pos, line);
        if (call.showScope)
            ShowStartScope(line);
        else
            ShowCall(call, line);
    });
}

void ShowStartScope(int line) {
    Guarded("ShowStartScope", "Mod_SciFun", [&] {
        Mod_Sci::CallTipCancel();
        const int opener = OpenerAbove(line);
        if (opener < 0) return Write({});
        std::string text = Mod_Sci::LineText(opener);
        text.erase(std::remove(text.begin(), text.end(), '\t'), text.end());
        // A bare LF counts as two bytes, as the CR LF that it replaces.
        if (!text.empty() && text.back() == '\n' && (text.size() < LineEnd || text[text.size() - 2] != '\r'))
            text.insert(text.size() - 1, 1, '\r');
        if (text.size() <= LineEnd) return;
        if (text.size() > LongestOpener)
            text = text.substr(0, LongestOpener) + "...";
        else
            text.resize(text.size() - LineEnd);
        Write({" ", "SCOPE:", " " + text, Blue});
    });
}

void ShowCalltip() {
    if (!DocumentActive()) return;
    gActiveDoc->State.mShowCallTip = true;
    const auto pos = Mod_Sci::GetCurrentPos();
    ShowHelp(pos, Mod_Sci::LineFromPosition(pos));
}

void KeywordHelp() {
    if (!DocumentActive()) return;
    Guarded("KeywordHelp", "Mod_SciFun", [] {
        gLastDocumentID = gActiveDoc->m_strDocumentWindowID;
        gEditorCalls.OpenBrowser();
        const auto pos = Mod_Sci::GetCurrentPos();
        const std::string word =
            Mod_Sci::GetTextRange(Mod_Sci::WordStartPosition(pos, 1), Mod_Sci::WordEndPosition(pos, 1));
        if (!gEditorCalls.ShowBrowserHelp(word)) gHost.desktop->Beep();
    });
}

} // namespace Mod_SciFun
