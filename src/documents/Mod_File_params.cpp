// The block of comment lines behind a saved source: folded lines, bookmarks, arguments, compiler.
#include "documents/Mod_File_params.h"

#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/Mod_Parse.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "host/ErrorLog.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <optional>

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

// A line number in hexadecimal, with one sign allowed in front; anything else is 0.
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

// The lines with a marker, in rows of entries behind a prefix; nothing when there are too many rows.
std::optional<std::string> MarkedLines(int marker, const std::string& prefix, int mostRows,
                                       const std::function<bool(int)>& counts) {
    std::string block;
    int entries = 0;
    int rows = 0;
    for (int line = 0;; ++line) {
        line = static_cast<int>(Mod_Sci::MarkerNext(line, MaskOf(marker)));
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
void ForEachEntry(std::string_view text, Visit visit) {
    const int lines = static_cast<int>(Mod_Sci::GetLineCount());
    for (std::size_t at = text.find('#'); at != std::string_view::npos;) {
        const std::size_t next = text.find('#', at + 1);
        const int line = FromHex(text.substr(at + 1, next == std::string_view::npos ? next : next - at - 1));
        if (line >= 0 && line < lines) visit(line);
        at = next;
    }
}

// Applies one line of the block; false for a line that does not belong to it.
bool ApplyLine(const std::string& text) {
    const std::string_view kind = std::string_view(text).substr(0, 4);
    if (kind == ";~F#") {
        if (OptionsEdit::ShowFoldMargin)
            ForEachEntry(text, [](int line) {
                if (HasMarker(line, MarkerFoldOpens)) Mod_Sci::ToggleFold(line);
            });
    } else if (kind == ";~B#") {
        ForEachEntry(text, [](int line) { Mod_Sci::MarkerAdd(line, MarkerBookmark); });
    } else if (kind == ";~L#") {
        // Without its line end: what stayed in it would be written back and end the block early.
        if (gCurrentProject->SingleFile)
            gCurrentProject->CommandLine = text.substr(4, text.find_last_not_of("\r\n") - 3);
    } else if (kind != ";~C#") {
        return false;
    }
    return true;
}

// The block's lines end as those of its file do. A CR anywhere makes it CR LF, because one at the text's end
// would be taken for a part of the block's first line end.
std::string BlockLineEnd() {
    const bool lf = OptionsEdit::KeepLineEnds && gActiveDoc->LfEnds;
    return lf && Mod_Sci::GetText().find('\r') == std::string::npos ? "\n" : "\r\n";
}

// Bytes of the line end in front of a position: 2 for CR LF, 1 for a CR or an LF alone.
std::size_t LineEndBefore(std::string_view text, std::size_t position) {
    text = text.substr(0, position);
    if (text.ends_with("\r\n")) return 2;
    return text.ends_with('\n') || text.ends_with('\r') ? 1 : 0;
}

} // namespace

std::size_t FindParameters(std::string_view text) {
    for (std::size_t at = text.find(";~"); at != std::string_view::npos; at = text.find(";~", at + 1))
        if ((at == 0 || LineEndBefore(text, at) > 0) && EqualNoCase(text.substr(at, Header.size()), Header))
            return at;
    return std::string_view::npos;
}

bool HasOnlyLf(std::string_view text) {
    std::string_view source = text.substr(0, FindParameters(text));
    if (source.size() < text.size() && source.ends_with("\r\n")) source.remove_suffix(2);
    return source.find('\n') != std::string_view::npos && source.find('\r') == std::string_view::npos;
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
        // Searched in a copy: the view's own search takes longer than to read the file.
        const std::string text = gActiveDoc->MayHaveParameters ? Mod_Sci::GetText() : std::string();
        const std::size_t found = FindParameters(text);
        if (found == std::string::npos) {
            Coloring = false;
            return;
        }
        const auto header = static_cast<std::intptr_t>(found);
        const ColoringScope own;
        const auto lines = Mod_Sci::GetLineCount();
        auto line = Mod_Sci::LineFromPosition(header) + 1;
        while (line < lines && Mod_Sci::GetCharAt(Mod_Sci::PositionFromLine(line)) == ';' &&
               ApplyLine(Mod_Sci::LineText(line)))
            ++line;
        const auto end = line >= lines ? Mod_Sci::GetLength() : Mod_Sci::GetLineEndPosition(line - 1);
        // A line that goes would leave its markers to the line before it, which has its own.
        const auto headerLine = Mod_Sci::LineFromPosition(header);
        for (auto gone = std::max<std::intptr_t>(1, headerLine); gone < line; ++gone)
            Mod_Sci::MarkerDelete(gone, -1);
        // The line end in front of the header was written with it; a program that turned the file's line
        // ends to LF has made one byte of its two.
        Mod_Sci::ReplaceRange(header - static_cast<std::intptr_t>(LineEndBefore(text, found)), end, "");
    });
}

std::string CheckFileCompilerUsed() {
    return Guarded("CheckFileCompilerUsed", "Mod_File", DefaultCompiler, [&] {
        const std::string last = Mod_Sci::LineText(Mod_Sci::GetLineCount() - 1);
        if (!last.starts_with(";~C#")) return DefaultCompiler;
        const auto compiler = gCompilers.Find(last.substr(4));
        return compiler ? compiler->Name : DefaultCompiler;
    });
}

} // namespace Mod_File
