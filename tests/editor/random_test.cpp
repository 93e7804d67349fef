// The property that everything else rests on: whatever was edited, tables, markers, fold levels and styles
// are those of a fresh load of the same text, and the undo history leads back to the first text and forth to
// the last. A series comes from a seed, and one that fails is shrunk before it is told. No text and no edit
// is left out. Three things are compared after a rule: the name of a type that a record holds, without regard
// to case (it takes the spelling of the type when it is coloured as one); spelling, once colouring changes
// nothing any more (a name may take that of another declaration, and the name in a word under the caret
// stays), and what the undo history leads to, without regard to case (spelling is corrected beside it).
#include "engine/fixture/SourceTest.h"

#include "editor/FindRun.h"
#include "editor/Mod_SciFun_edit.h"
#include "host/Text.h"

#include <QCoreApplication>
#include <Qsci/qsciscintillabase.h>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <random>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t LongestPiece = 100;

// clang-format off
const std::vector<std::string> Pieces{
    "Function alpha(a, b#)", "Function beta$()", "End Function", "End Function", "Type Rock", "Type Ship",
    "End Type", "Field x#, y#", "Field link.Rock", "Local n, m# = 1.5", "Local s$", "Global score",
    "Const Most = 12", "Dim grid(4, 4)", ";[Block] part", ";[End Block]", ".start", "Goto start ; comment",
    "; comment only", "Print \"open string", "If n Then Stop", "Stop", "Include \"other.bb\"",
    "score = score + 1 : Local inner", "",
};
// clang-format on

// What nobody means to write and everybody writes on the way to something else.
// clang-format off
const std::vector<std::string> OddPieces{
    // One name in several tables, and in several spellings.
    "Global alpha", "Dim score(3)", "Const rock = 1", ".score", "Local alpha#, ALPHA$",
    "Function score(Rock.Ship, n)", "Type alpha", "global SCORE$, Score", "Const LINK = Print, MOST",
    "Field X#, Link.ship, x", "scOre = ROCK + grid(N, most) * Alpha(1)", "Local link.ROCK = new rock",
    // Lists that are broken off.
    "Global a,", "Local a,", "Field x,", "Const y, LINK", "Dim g(", "Dim grid(2", "Local a[3", "Global v[",
    "Function gamma(", "Function gamma(a,", "Global a = (1, b", "Global a = 1), b",
    "Local a = Rnd(1, 2), b = abs(n), c", "Dim g(Rnd(1, (2)), 3), h$(1), score(2)", "Local w[most(2)], z",
    "Function default(a = rnd(1), b = print, c[PRINT])", "Global a.", "Field", "z\"open",
    // Scopes that begin and end on one line, and words that run together.
    "Function delta() : End Function", "Function delta(n) Local b : b = n : End Function",
    "Function delta() : Return : End Function : Global after", "Type Pair : Field q, r : End Type",
    "End Function Function beta()", "Local early : Function late()", "Field early : End Type : Field late",
    "Local early : End Function : Local late", "Global a, Function f() : End Function", "Local Function",
    "Type Function", "Function Type Rock", "End End Function", "End If End Select",
    "Function alpha() Function alpha()", "End Type Type Rock", "Else End Function", "Type Type Rock",
    "end function", "END TYPE", "Function function()", "Function print()", ";[block] part ;[end]",
    "Function f() ;[Block", "Print \"a\tFunction b\"",
    "\tInclude \"m\xf6\xe4 ~~~~~~~~~~~~~~~~~~~~~~~~\" : Local x\xf6",
};
// clang-format on

// Lines of real programs.
const std::vector<std::string>& RealLines() {
    static const std::vector<std::string> lines = [] {
        std::vector<std::string> all;
        for (const char* folder : {"/examples", "/tests/data"})
            for (const auto& entry :
                 fs::recursive_directory_iterator(ZOLTO_SOURCE_ROOT + std::string(folder))) {
                if (entry.path().extension() != ".bb") continue;
                std::ifstream file(entry.path(), std::ios::binary);
                for (std::string line; std::getline(file, line);) {
                    while (line.ends_with('\r')) line.pop_back();
                    // The block that a file ends in is no source.
                    if (line.size() < LongestPiece && line.find('\0') == line.npos && !line.starts_with(";~"))
                        all.push_back(line);
                }
            }
        std::sort(all.begin(), all.end());
        return all;
    }();
    return lines;
}

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
    bool raw; // counts the line's end among the columns, and so may part a CR LF
    unsigned long line, column, lines, endColumn;
    std::string text;
    unsigned long command;
};

struct Series {
    std::string lineEnd;
    int width, height; // of the window
    bool travels;      // through the undo history, when the steps are done
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

// One series from its seed. Every other one writes what people write; the rest writes what they write by
// mistake, and every eighth has line ends of all kinds in it.
class Maker {
public:
    explicit Maker(unsigned seed) : random_(seed), odd_(seed % 2 == 0), mixed_(seed % 8 == 6) {}

    Series Make(int steps) {
        const bool large = Pick(8) == 0;
        Series series{Pick(2) == 0 ? "\r\n" : "\n", large ? 400 : 60, large ? 150 : 20, Pick(3) == 0, {}, {}};
        if (mixed_ && Pick(2) == 0) series.lineEnd = "\r";
        for (unsigned long i = 0, lines = 3 + Pick(12); i < lines; ++i) series.text.push_back(Piece());
        for (int i = 0; i < steps; ++i) {
            Step step{static_cast<Kind>(Pick(Kinds)),
                      mixed_ && Pick(4) == 0,
                      random_(),
                      0,
                      Pick(3),
                      random_(),
                      Piece(),
                      random_()};
            if (Pick(3) == 0) step.column = random_();
            if (step.kind == Paste)
                for (unsigned long more = 1 + Pick(3) * Pick(2); more > 0; --more)
                    step.text += LineEnd(series) + Piece();
            if (step.kind == InsertWhole) step.text += LineEnd(series);
            series.steps.push_back(step);
        }
        return series;
    }

private:
    unsigned long Pick(unsigned long of) { return random_() % of; }

    std::string LineEnd(const Series& series) {
        static constexpr const char* ends[] = {"\r", "\n", "\r\n", "\n\r", "\r\r\n"};
        return mixed_ && Pick(3) == 0 ? ends[Pick(std::size(ends))] : series.lineEnd;
    }

    std::string Piece() {
        if (!odd_) return Pieces[Pick(Pieces.size())];
        const auto kind = Pick(10);
        const auto& from = kind < 4 ? Pieces : kind < 8 ? OddPieces : RealLines();
        std::string piece = from[Pick(from.size())];
        if (Pick(8) == 0) piece += (Pick(2) == 0 ? " : " : " ") + Piece();
        if (Pick(10) == 0) piece.resize(Pick(piece.size() + 1));
        if (const auto spelling = Pick(12); spelling < 2)
            for (char& c : piece) c = static_cast<char>(spelling == 0 ? std::toupper(c) : std::tolower(c));
        return piece;
    }

    std::mt19937 random_;
    bool odd_;
    bool mixed_;
};

class RandomEdits : public SourceTest {
protected:
    // Runs a series; returns the difference from a fresh load at the first failing check, else nothing.
    std::string Fails(const Series& series, std::string* told = nullptr) {
        if (anew_ == nullptr) {
            anew_ = &Open("");
            static_cast<QWidget*>(anew_->NativeWidget())->hide();
        }
        frmDoc& document = Open(series.Text());
        // A small window paints quickly.
        static_cast<QWidget*>(document.NativeWidget())->resize(series.width, series.height);
        Mod_Sci::Send(QsciScintillaBase::SCI_SETLAYOUTCACHE, QsciScintillaBase::SC_CACHE_DOCUMENT);
        const Setting lists(OptionsEdit::ACstartAfter, series.width > 100 ? OptionsEdit::ACstartAfter : 100);
        const std::string first = Mod_Sci::GetText();
        std::string difference;
        for (const Step& step : series.steps) {
            Do(step, told);
            ++edits;
            if (step.kind == MoveAway || step.kind == Drain) difference = Difference();
            if (!difference.empty()) break;
        }
        if (difference.empty()) difference = Drained();
        if (difference.empty()) difference = UnlikeLoaded();
        if (series.travels) {
            if (difference.empty()) difference = Travel(Mod_Sci::Redo, Mod_Sci::CanRedo);
            const std::string last = Mod_Sci::GetText();
            if (difference.empty()) difference = Travel(Mod_Sci::Undo, Mod_Sci::CanUndo, first);
            if (difference.empty()) difference = Travel(Mod_Sci::Redo, Mod_Sci::CanRedo, last);
        }
        if (told && !difference.empty()) *told += "Now the text is:\n" + Mod_Sci::GetText() + "\n";
        Close(document);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // thousands of views
        const std::string late = TakeLog();
        return difference.empty() ? late : difference;
    }

    unsigned long edits = 0, travelled = 0, compared = 0;

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
    // Removes from a series what it fails without; returns whether it removed anything.
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

    // Walks through the whole undo history; returns what is wrong there. The case of names is not compared,
    // because colouring corrects it outside the history.
    std::string Travel(std::intptr_t (*step)(), std::intptr_t (*can)(),
                       const std::optional<std::string>& to = {}) {
        int steps = 0;
        for (; can() && steps < MostUndoSteps; ++steps) {
            const std::string before = Mod_Sci::GetText();
            step();
            ++travelled;
            Paint();
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
        ++compared;
        return log.empty() ? Unreachable() + UnlikeParsedAnew() : log;
    }

    // The same property against a view that parses all of the text: quicker than a load.
    std::string UnlikeParsedAnew() {
        frmDoc& edited = *ActiveForm();
        const auto caret = Mod_Sci::GetCurrentPos();
        const std::string is = State();
        const std::string text = Mod_Sci::GetText();
        MakeActive(anew_);
        anew_->m_oSubclass->ChangeMany([&] { Mod_Sci::SetText(text.c_str()); });
        Mod_Sci::GotoPos(caret);
        const std::string fresh = State();
        MakeActive(&edited);
        return is == fresh ? "" : "is:\n" + is + "a fresh parse gives:\n" + fresh;
    }

    frmDoc* anew_ = nullptr;

    // A line outside all closed folds must be visible, because no fold could show it.
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

    // What there is to paint; a whole picture each time would take most of a long run's time.
    static void Paint() { QCoreApplication::processEvents(); }

    static void Do(const Step& step, std::string* told) {
        const auto lines = static_cast<unsigned long>(Mod_Sci::GetLineCount());
        const auto line = static_cast<int>(step.line % lines);
        const bool whole = step.kind == InsertWhole || step.kind == DeleteWhole;
        const auto columns = [&](int of) {
            return (step.raw ? static_cast<std::size_t>(Mod_Sci::LineLength(of)) : Text(of).size()) + 1;
        };
        const auto column = whole ? 0 : static_cast<int>(step.column % columns(line));
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
            end =
                Mod_Sci::PositionFromLine(last) + static_cast<std::intptr_t>(step.endColumn % columns(last));
            break;
        }
        case DeleteWhole: end = Mod_Sci::PositionFromLine(line) + Mod_Sci::LineLength(line); break;
        default: break;
        }
        if (end < start) return;
        const auto& command = Commands[step.command % std::size(Commands)];
        if (told)
            *told += "- " + std::string(step.kind == Command ? command.name : KindNames[step.kind]) + " " +
                     std::to_string(start) + " to " + std::to_string(end) + " " + text + "\n";
        switch (step.kind) {
        case TypeText: TypeAt(start, text, step.command % 4 == 0); break;
        case NewLine: TypeAt(start, "\n"); break;
        case Back: TypeAt(start, "\b"); break;
        case Undo: Mod_Sci::Undo(); break;
        case Redo: Mod_Sci::Redo(); break;
        case Move: Mod_Sci::GotoPos(start); break;
        case MoveAway: {
            const auto caret = Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos());
            Leave(caret == 0 ? 1 : caret - 1);
            ActiveForm()->m_oSubclass->DeactivateCheck(); // a text of one line has no other
            break;
        }
        case Drain: ActiveForm()->m_oSubclass->DeactivateCheck(); break;
        case Command:
            Mod_Sci::SetSel(start, end);
            Paint();
            command.run();
            break;
        default: Mod_Sci::SetSel(start, end); Mod_Sci::ReplaceSel(text.c_str());
        }
        Paint();
    }

    static void TypeAt(std::intptr_t position, const std::string& keys, bool painted = true) {
        Mod_Sci::GotoPos(position);
        Paint();
        Type(keys, painted);
    }
};

unsigned FromEnvironment(const char* name, unsigned otherwise) {
    const char* text = std::getenv(name);
    return text ? static_cast<unsigned>(std::atoi(text)) : otherwise;
}

// More than the few series of every run on demand: ZOLTO_TEST_SEED is the first, ZOLTO_TEST_SERIES the
// number; 25000 series are a million edits, and as many steps of undo and redo or more.
TEST_F(RandomEdits, LeaveWhatAFreshLoadGives) {
    const unsigned first = FromEnvironment("ZOLTO_TEST_SEED", 1);
    const unsigned end = first + FromEnvironment("ZOLTO_TEST_SERIES", 16);
    const auto tell = [&](unsigned seed) {
        std::cout << "seeds " << first << " to " << seed << ": " << edits << " edits, " << travelled
                  << " undone and redone, " << compared << " comparisons" << std::endl;
    };
    for (unsigned seed = first; seed < end; ++seed) {
        if (seed % 250 == 0) tell(seed);
        const Series series = Maker(seed).Make(40);
        if (Fails(series).empty()) continue;
        ADD_FAILURE() << "Seed " << seed << "\n" << Shrunk(series);
        return;
    }
    tell(end - 1);
}

} // namespace
