// The property that everything else rests on: whatever was edited, tables, markers, fold levels and styles
// are those of a fresh load of the same text, and the undo history leads back to the first text and forth to
// the last. A series comes from a seed, and one that fails is shrunk before it is told.
#include "engine/fixture/SourceTest.h"

#include "editor/FindRun.h"
#include "editor/Mod_SciFun_edit.h"
#include "host/Paths.h"

#include <cstdlib>
#include <optional>
#include <random>
#include <regex>

namespace {

const std::vector<std::string> Pieces{
    "Function alpha(a, b#)",
    "Function beta$()",
    "End Function",
    "End Function",
    "Type Rock",
    "Type Ship",
    "End Type",
    "Field x#, y#",
    "Field link.Rock",
    "Local n, m# = 1.5",
    "Local s$",
    "Global score",
    "Const Most = 12",
    "Dim grid(4, 4)",
    ";[Block] part",
    ";[End Block]",
    ".start",
    "Goto start ; comment",
    "; comment only",
    "Print \"open string",
    "If n Then Stop",
    "Stop",
    "Include \"other.bb\"",
    "score = score + 1 : Local inner",
    "",
};

enum Kind {
    InsertWhole,
    Paste,
    Delete,
    DeleteWhole,
    TypeText,
    NewLine,
    Back,
    Undo,
    Redo,
    Move,
    MoveAway,
    Drain,
    Command, // one of Commands on a selection
    Kinds
};
constexpr const char* KindNames[] = {"insert line", "paste",     "delete", "delete line", "type",
                                     "new line",    "backspace", "undo",   "redo",        "move",
                                     "move away",   "drain",     "command"};

void ReplaceAll(const std::string& text, const std::string& by) {
    FindOptions options;
    options.text = text;
    FindRun().ReplaceAll(options, by);
}

constexpr struct {
    const char* name;
    void (*run)();
} Commands[] = {
    {"comment", Mod_SciFun::CommentSelection},
    {"uncomment", Mod_SciFun::UnCommentSelection},
    {"indent", Mod_SciFun::IndentSelection},
    {"unindent", Mod_SciFun::UnIndentSelection},
    {"auto indent", Mod_SciFun::AutoIndentSelection},
    {"indent function", Mod_SciFun::AutoindentCurrentFunction},
    {"block", Mod_SciFun::BlockFromSelection},
    {"move up", Mod_SciFun::MoveCurrentLineUp},
    {"move down", Mod_SciFun::MoveCurrentLineDown},
    {"complete scope", Mod_SciFun::CompleteScope},
    {"breakpoint", [] { Mod_SciFun::ToggleBreakPoint(); }},
    {"fold", [] { Mod_SciFun::FoldEverything(Mod_SciFun::AnyFold); }},
    {"unfold", [] { Mod_SciFun::UnFoldEverything(Mod_SciFun::AnyFold); }},
    {"replace", [] { ReplaceAll("e", "ee"); }},
    {"replace words", [] { ReplaceAll("local", "Global"); }},
    {"replace back", [] { ReplaceAll("global", "Local"); }},
    {"upper case", [] { Mod_Sci::UpperCase(); }},
    {"lower case", [] { Mod_Sci::LowerCase(); }},
};

// Numbers are taken modulo what the text allows when the step is done, so that a series stays a series when
// steps are taken out of it.
struct Step {
    Kind kind;
    unsigned long line, column, lines, endColumn;
    std::string text;
    unsigned long command;
};

struct Series {
    std::string lineEnd;
    std::vector<std::string> text;
    std::vector<Step> steps;

    std::string Text() const {
        std::string joined;
        for (const std::string& line : text) joined += (&line == &text.front() ? "" : lineEnd) + line;
        return joined;
    }
};

// No series has as many undo steps; one that never ends has.
constexpr int MostUndoSteps = 3000;

class RandomEdits : public SourceTest {
protected:
    static Series Make(unsigned seed, int steps) {
        std::mt19937 random(seed);
        const auto piece = [&] { return Pieces[random() % Pieces.size()]; };
        Series series{seed % 2 ? "\r\n" : "\n", {}, {}};
        for (int i = 0; i < 10; ++i) series.text.push_back(piece());
        for (int i = 0; i < steps; ++i) {
            Step step{
                static_cast<Kind>(random() % Kinds), random(), 0, random() % 3, random(), piece(), random()};
            if (random() % 3 == 0) step.column = random();
            if (step.kind == Paste) step.text += series.lineEnd + piece();
            if (step.kind == InsertWhole) step.text += series.lineEnd;
            series.steps.push_back(step);
        }
        return series;
    }

    // Does a series; answers what differs from a fresh load at the first check that fails, else nothing.
    std::string Fails(const Series& series, std::string* told = nullptr) {
        frmDoc& document = Open(series.Text());
        const std::string first = Mod_Sci::GetText();
        std::string difference;
        for (const Step& step : series.steps) {
            Do(step, told);
            if (step.kind == MoveAway || step.kind == Drain) difference = Difference();
            if (!difference.empty()) break;
        }
        if (difference.empty()) difference = Drained();
        if (difference.empty()) difference = Travel(Mod_Sci::Redo, Mod_Sci::CanRedo);
        const std::string last = Mod_Sci::GetText();
        if (difference.empty()) difference = Travel(Mod_Sci::Undo, Mod_Sci::CanUndo, first);
        if (difference.empty()) difference = Travel(Mod_Sci::Redo, Mod_Sci::CanRedo, last);
        if (told && !difference.empty()) *told += "Now the text is:\n" + Mod_Sci::GetText() + "\n";
        Close(document);
        const std::string late = TakeLog();
        return difference.empty() ? late : difference;
    }

    std::string Shrunk(Series series) {
        for (bool smaller = true; smaller;) {
            smaller = Drop(series, series.steps) || Drop(series, series.text);
        }
        std::string told = "Series:\n";
        for (const std::string& line : series.text) told += "  " + line + "\n";
        const std::string difference = Fails(series, &told);
        return told + difference;
    }

private:
    // Takes out of a series what it fails without; answers whether that was anything.
    template <class Part>
    bool Drop(Series& series, std::vector<Part>& parts) {
        bool dropped = false;
        for (std::size_t i = parts.size(); i-- > 0;) {
            const Part part = parts[i];
            parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(i));
            if (Fails(series).empty())
                parts.insert(parts.begin() + static_cast<std::ptrdiff_t>(i), part);
            else
                dropped = true;
        }
        return dropped;
    }

    std::string Drained() {
        ActiveForm()->m_oSubclass->DeactivateCheck();
        return Difference();
    }

    // Goes through the undo history to its end; answers what is wrong there. The case of names that the
    // colourer corrected is none of the history's.
    std::string Travel(std::intptr_t (*step)(), std::intptr_t (*can)(),
                       const std::optional<std::string>& to = {}) {
        int steps = 0;
        for (; can() && steps < MostUndoSteps; ++steps) {
            const std::string before = Mod_Sci::GetText();
            step();
            Settle();
            if (const std::string log = TakeLog(); !log.empty())
                return "A step from:\n" + before + "\nto:\n" + Mod_Sci::GetText() + "\nsaid:\n" + log;
        }
        if (steps == MostUndoSteps) return "The history has no end.\n";
        if (to && !EqualNoCase(Mod_Sci::GetText(), *to))
            return "The history led to:\n" + Mod_Sci::GetText() + "\ninstead of:\n" + *to + "\n";
        return Drained();
    }

    std::string Difference() {
        const std::string log = TakeLog();
        return log.empty() ? Unreachable() + UnlikeLoaded() : log;
    }

    // A line that no closed fold hides must be seen: nobody could open it.
    static std::string Unreachable() {
        for (int line = 0; line < Mod_Sci::GetLineCount(); ++line) {
            if (Mod_Sci::GetLineVisible(line)) continue;
            auto parent = Mod_Sci::GetFoldParent(line);
            while (parent >= 0 && Mod_Sci::GetFoldExpanded(parent)) parent = Mod_Sci::GetFoldParent(parent);
            if (parent < 0) return "Nothing shows line " + std::to_string(line) + ".\n";
        }
        return {};
    }

    std::string TakeLog() {
        const std::string log = host.ErrorLog();
        if (!log.empty()) host.files.Remove(host.Path("error.log"));
        return log;
    }

    static void Do(const Step& step, std::string* told) {
        const auto lines = static_cast<unsigned long>(Mod_Sci::GetLineCount());
        const auto line = static_cast<int>(step.line % lines);
        const bool whole = step.kind == InsertWhole || step.kind == DeleteWhole;
        const auto column = whole ? 0 : static_cast<int>(step.column % (Text(line).size() + 1));
        const auto start = Mod_Sci::PositionFromLine(line) + column;
        auto end = start;
        std::string text;
        switch (step.kind) {
        case InsertWhole:
        case Paste:
        case TypeText: text = step.text; break;
        case NewLine: text = "\n"; break;
        case Command:
        case Delete: {
            const auto last = static_cast<int>(std::min(line + step.lines, lines - 1));
            end = Mod_Sci::PositionFromLine(last) +
                  static_cast<std::intptr_t>(step.endColumn % (Text(last).size() + 1));
            break;
        }
        case DeleteWhole: end = Mod_Sci::PositionFromLine(line) + Mod_Sci::LineLength(line); break;
        default: break;
        }
        const auto from = step.kind != Back ? start
                          : column > 0      ? start - 1
                          : line > 0        ? Mod_Sci::GetLineEndPosition(line - 1)
                                            : start;
        if (end < start) return;
        const bool edits = step.kind != Command && step.kind != MoveAway && step.kind != Drain;
        if (edits && !Meaningful(from, end, text)) return;
        const auto& command = Commands[step.command % std::size(Commands)];
        if (told)
            *told += "- " + std::string(step.kind == Command ? command.name : KindNames[step.kind]) + " " +
                     std::to_string(start) + " to " + std::to_string(end) + " " + text + "\n";
        switch (step.kind) {
        case TypeText: TypeAt(start, text); break;
        case NewLine: TypeAt(start, "\n"); break;
        case Back: TypeAt(start, "\b"); break;
        case Undo: Mod_Sci::Undo(); break;
        case Redo: Mod_Sci::Redo(); break;
        case Move: Mod_Sci::GotoPos(start); break;
        case MoveAway: {
            const auto caret = static_cast<int>(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()));
            Leave(caret == 0 ? 1 : caret - 1);
            ActiveForm()->m_oSubclass->DeactivateCheck(); // a text of one line has no other
            break;
        }
        case Drain: ActiveForm()->m_oSubclass->DeactivateCheck(); break;
        case Command:
            Mod_Sci::SetSel(start, end);
            Settle();
            command.run();
            break;
        default: Mod_Sci::SetSel(start, end); Mod_Sci::ReplaceSel(text.c_str());
        }
        Settle();
    }

    // Left out: two words that open or close a scope on one line, which have no meaning that could be kept; a
    // field or a local in front of the beginning or the end of a scope, which count for all of their line;
    // and a tab inside a string, which ends it for one scanner and not for the other.
    static bool Meaningful(std::intptr_t start, std::intptr_t end, const std::string& text) {
        std::string changed = Mod_Sci::GetText();
        changed.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start), text);
        static const std::regex left(
            R"((\b(function|type)\b|;\[)[^\r\n]*(\b(function|type)\b|;\[))"
            R"(|\bfield\b[^\r\n]*\btype\b|\blocal\b[^\r\n]*\bfunction\b|"[^\r\n]*\t)",
            std::regex::icase);
        return !std::regex_search(changed, left);
    }

    static void TypeAt(std::intptr_t position, const std::string& keys) {
        Mod_Sci::GotoPos(position);
        Settle();
        Type(keys);
    }
};

unsigned FromEnvironment(const char* name, unsigned otherwise) {
    const char* text = std::getenv(name);
    return text ? static_cast<unsigned>(std::atoi(text)) : otherwise;
}

// More than the few series of every run on demand: ZOLTO_TEST_SEED is the first, ZOLTO_TEST_SERIES the
// number.
TEST_F(RandomEdits, LeaveWhatAFreshLoadGives) {
    const unsigned first = FromEnvironment("ZOLTO_TEST_SEED", 1);
    const unsigned end = first + FromEnvironment("ZOLTO_TEST_SERIES", 15);
    for (unsigned seed = first; seed < end; ++seed) {
        const Series series = Make(seed, 40);
        if (Fails(series).empty()) continue;
        ADD_FAILURE() << "Seed " << seed << "\n" << Shrunk(series);
        return;
    }
}

} // namespace
