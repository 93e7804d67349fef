// The parameter block at the end of a saved source: folded lines, bookmarks, arguments, compiler.
#include "documents/Mod_File_params.h"

#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/Mod_Parse.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "engine/SymbolLine.h"
#include "host/ErrorLog.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <optional>
#include <vector>

namespace Mod_File {

namespace {

using namespace Mod_Parse;

constexpr std::string_view Header = ";~Zolto Editor Parameters:";
constexpr int EntriesOnALine = 20;
constexpr int MostFoldLines = 1000;
constexpr int MostBookmarkLines = 100;

std::string Hex(int number) {
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, number, 16).ptr;
    return UCase(std::string_view(digits, static_cast<std::size_t>(end - digits)));
}

// Reads a hexadecimal line number with an optional sign; anything else is 0.
int FromHex(std::string_view text) {
    text = text.substr(0, text.find_last_not_of(" \t\r\n") + 1);
    bool negative = false;
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        negative = text[0] == '-';
        text.remove_prefix(1);
    }
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, 16);
    if (error != std::errc() || end != text.data() + text.size()) return 0;
    return negative ? -number : number;
}

// The lines with a marker, as rows of entries that begin with `prefix`. Nothing if there are too many rows.
std::optional<std::string> MarkedLines(int marker, const std::string& prefix, int mostRows,
                                       const std::function<bool(int)>& counts) {
    std::string block;
    int entries = 0;
    int rows = 0;
    for (int line = 0;; ++line) {
        line = Mod_Sci::MarkerNext(line, MaskOf(marker));
        if (line < 0) return block;
        if (!counts(line)) continue;
        if (entries % EntriesOnALine == 0) {
            if (++rows > mostRows) return std::nullopt;
            block.append(prefix);
        }
        ++entries;
        block += "#" + Hex(line);
    }
}

template <class Visit>
void ForEachLineNumber(std::string_view text, Visit visit) {
    const int lines = Mod_Sci::GetLineCount();
    for (std::size_t at = text.find('#'); at != std::string_view::npos;) {
        const std::size_t next = text.find('#', at + 1);
        const int line = FromHex(text.substr(at + 1, next == std::string_view::npos ? next : next - at - 1));
        if (line >= 0 && line < lines) visit(line);
        at = next;
    }
}

bool IsBlockLine(std::string_view text) {
    return text.starts_with(";~F#") || text.starts_with(";~B#") || text.starts_with(";~L#") ||
           text.starts_with(";~C#");
}

void ApplyLine(std::string_view text) {
    if (text.starts_with(";~F#")) {
        if (OptionsEdit::ShowFoldMargin)
            ForEachLineNumber(text, [](int line) {
                if (HasMarker(line, MarkerFoldOpens)) Mod_Sci::ToggleFold(line);
            });
    } else if (text.starts_with(";~B#")) {
        ForEachLineNumber(text, [](int line) { Mod_Sci::MarkerAdd(line, MarkerBookmark); });
    } else if (text.starts_with(";~L#")) {
        if (gCurrentProject->SingleFile) gCurrentProject->CommandLine = text.substr(4);
    }
}

// The line end of the file. One CR in the text makes it CR LF, because a CR at the end of the text would
// become part of the first line end of the block.
std::string BlockLineEnd() {
    const bool lf = OptionsEdit::KeepLineEnds && gActiveDoc->LfEnds;
    return lf && Mod_Sci::GetText().find('\r') == std::string::npos ? "\n" : "\r\n";
}

// The bytes of the line end before a position: 2 for CR LF, 1 for a single CR or LF, else 0.
std::size_t LineEndBefore(std::string_view text, std::size_t position) {
    text = text.substr(0, position);
    if (text.ends_with("\r\n")) return 2;
    return text.ends_with('\n') || text.ends_with('\r') ? 1 : 0;
}

std::size_t LineEndAt(std::string_view text, std::size_t position) {
    return std::min(text.find_first_of("\r\n", position), text.size());
}

// The start of the line after a line end; the end of the text if there is none.
std::size_t NextLineStart(std::string_view text, std::size_t end) {
    return std::min(text.size(), end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
}

std::size_t FindHeader(std::string_view text, std::size_t from) {
    for (std::size_t at = text.find(";~", from); at != std::string_view::npos; at = text.find(";~", at + 1))
        if ((at == 0 || LineEndBefore(text, at) > 0) && EqualNoCase(text.substr(at, Header.size()), Header))
            return at;
    return std::string_view::npos;
}

// A block with the line end before its header, which was written with it. The last block includes line ends
// that another program has added after it.
struct Block {
    std::size_t from;
    std::size_t to;
    std::vector<std::string_view> lines; // after the header, without their line ends
};

// The blocks of a text in their order. A header without lines is a block only if it is the last one.
std::vector<Block> FindBlocks(std::string_view text) {
    std::vector<Block> blocks;
    for (std::size_t at = FindHeader(text, 0); at != std::string_view::npos; at = FindHeader(text, at + 1)) {
        if (!blocks.empty() && blocks.back().lines.empty()) blocks.pop_back();
        Block block{at - LineEndBefore(text, at), LineEndAt(text, at), {}};
        for (;;) {
            const std::size_t line = NextLineStart(text, block.to);
            if (!IsBlockLine(text.substr(line))) break;
            block.to = LineEndAt(text, line);
            block.lines.push_back(text.substr(line, block.to - line));
        }
        if (text.find_first_not_of("\r\n", block.to) == std::string_view::npos) block.to = text.size();
        blocks.push_back(std::move(block));
    }
    return blocks;
}

void RemoveBlock(const Block& block) {
    const auto from = static_cast<std::intptr_t>(block.from);
    const auto to = static_cast<std::intptr_t>(block.to);
    // Deleting a line moves its markers to the line before and removes the fold point of that line.
    const auto first = Mod_Sci::LineFromPosition(from);
    const auto level = Mod_Sci::GetFoldLevel(first);
    for (auto line = Mod_Sci::LineFromPosition(to); line > first; --line) Mod_Sci::MarkerDelete(line, -1);
    Mod_Sci::ReplaceRange(from, to, "");
    Mod_Sci::SetFoldLevel(first, level);
}

} // namespace

std::size_t FindParameters(std::string_view text) { return FindHeader(text, 0); }

bool HasOnlyLf(std::string_view text) {
    bool lf = false;
    const auto onlyLf = [&](std::string_view source) {
        lf = lf || source.find('\n') != std::string_view::npos;
        return source.find('\r') == std::string_view::npos;
    };
    std::size_t from = 0;
    for (const Block& block : FindBlocks(text)) {
        if (!onlyLf(text.substr(from, block.from - from))) return false;
        from = block.to;
    }
    return onlyLf(text.substr(from)) && lf;
}

std::string GetFileParameters() {
    return Guarded("GetFileParameters", "Mod_File", std::string(), [&]() -> std::string {
        const std::string lineEnd = BlockLineEnd();
        std::string block;
        if (OptionsEdit::SaveFoldingState) {
            const auto folds = MarkedLines(MarkerFoldOpens, lineEnd + ";~F", MostFoldLines,
                                           [](int line) { return Mod_Sci::GetFoldExpanded(line) == 0; });
            if (!folds) return {};
            block += *folds;
        }
        if (OptionsEdit::SaveBookmarks) {
            const auto marks =
                MarkedLines(MarkerBookmark, lineEnd + ";~B", MostBookmarkLines, [](int) { return true; });
            if (!marks) return {};
            block += *marks;
        }
        if (OptionsEdit::SaveCompilerCommandLine) {
            const ClsProject& project = *gCurrentProject;
            if (project.SingleFile && !project.CommandLine.empty())
                block += lineEnd + ";~L#" + project.CommandLine;
            block += lineEnd + ";~C#" + project.Compiler;
        }
        return block.empty() ? block : lineEnd + std::string(Header) + block;
    });
}

void CheckFileParameters() {
    Guarded("CheckFileParameters", "Mod_File", [&] {
        // Searching a copy is faster: the view's own search takes longer than reading the file.
        const std::string text = gActiveDoc->MayHaveParameters ? Mod_Sci::GetText() : std::string();
        const std::vector<Block> blocks = FindBlocks(text);
        if (blocks.empty()) {
            EndColoring();
            return;
        }
        const ColoringScope own;
        for (const std::string_view line : blocks.back().lines) ApplyLine(line);
        std::for_each(blocks.rbegin(), blocks.rend(), RemoveBlock);
        // There are no notifications for lines that moved.
        if (blocks.front().to < text.size()) ForgetLines(SciWndData);
    });
}

std::string CheckFileCompilerUsed() {
    return Guarded("CheckFileCompilerUsed", "Mod_File", DefaultCompiler, [&] {
        auto line = Mod_Sci::GetLineCount() - 1;
        while (line > 0 && Mod_Sci::GetLineEndPosition(line) == Mod_Sci::PositionFromLine(line)) --line;
        const std::string last =
            Mod_Sci::GetTextRange(Mod_Sci::PositionFromLine(line), Mod_Sci::GetLineEndPosition(line));
        if (!last.starts_with(";~C#")) return DefaultCompiler;
        const auto compiler = gCompilers.Find(last.substr(4));
        return compiler ? compiler->Name : DefaultCompiler;
    });
}

} // namespace Mod_File
