// Edits in a long source: leaving a line that declares something, pasting and undoing thousands of lines, a
// list among ten thousand names, and the cursor key held down.
#include "Floor.h"
#include "Keys.h"
#include "Source.h"
#include "editor/Mod_SciFun_complete.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "engine/Mod_Parse.h"
#include "engine/ParserState.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

#include <QApplication>
#include <QClipboard>
#include <algorithm>
#include <benchmark/benchmark.h>

namespace {

constexpr QSize Large(1024, 768);
constexpr int LongSource = 52000;
constexpr int Rounds = 20;

QAbstractScrollArea& ActiveWidget() { return *Widget(*ActiveForm()->View); }

int SymbolCount() {
    const ClsProject& project = *gCurrentProject;
    int count = 0;
    for (const clsHash* table : {&project.Funkcii, &project.Globals, &project.Types, &project.Arrays,
                                 &project.Labels, &project.Constants, &project.Includes})
        count += table->Count();
    project.Funkcii.ForEach(
        [&](const Symbol& symbol) { count += static_cast<const ClsFunkcija&>(symbol).Locals->Count(); });
    return count;
}

void GoTo(std::intptr_t line) { Mod_Sci::GotoPos(Mod_Sci::PositionFromLine(line)); }

// From the cursor key that leaves the line to the tables; the paint is not part of it.
void LeaveDeclaringLine(benchmark::State& state) {
    const OpenSource source(LongSource);
    QAbstractScrollArea& widget = ActiveWidget();
    Show(widget, Large);
    GoTo(LongSource / 2);
    Mod_Sci::ReplaceSel("Global declared0\r\n");
    double worst = 0;
    for (auto _ : state) {
        GoTo(LongSource / 2);
        Mod_Sci::GotoPos(Mod_Sci::GetLineEndPosition(LongSource / 2));
        Press(widget, 0, QStringLiteral("x"));
        Paint(widget, false);
        const double seconds = Seconds([&] {
            Press(widget, Qt::Key_Down);
            ActiveForm()->m_oSubclass->ParseNow();
        });
        Paint(widget, false);
        worst = std::max(worst, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["worst"] = worst * 1000;
    state.counters["symbols"] = SymbolCount();
    widget.hide();
}

// The load that a paste is held against, from text to parsed.
void LoadPasted(benchmark::State& state) {
    for (auto _ : state) {
        const OpenSource source(static_cast<int>(state.range(0)));
        benchmark::DoNotOptimize(SymbolCount());
    }
}

enum class Change { Paste, Undo };

// Into the middle of the long source, through to the paint.
void PasteLines(benchmark::State& state, Change measured) {
    const OpenSource source(LongSource);
    QAbstractScrollArea& widget = ActiveWidget();
    Show(widget, Large);
    QApplication::clipboard()->setText(QString::fromLatin1(Source(static_cast<int>(state.range(0))).c_str()));
    for (auto _ : state) {
        GoTo(LongSource / 2);
        Paint(widget, false);
        const double paste = Seconds([&] {
            Mod_Sci::Paste();
            Paint(widget, false);
        });
        const double undo = Seconds([&] {
            Mod_Sci::Undo();
            Paint(widget, false);
        });
        state.SetIterationTime(measured == Change::Paste ? paste : undo);
    }
    if (Mod_Sci::GetLineCount() != LongSource + 1) state.SkipWithError("the undo left other lines");
    widget.hide();
}

// The list for a word, without its paint: for a beginning of few names, as it opens by itself, and for one of
// hundreds of names, which opens on request.
void CompletionList(benchmark::State& state, const char* word, bool asked) {
    constexpr int Names = 10000;
    const OpenSource source(1000);
    std::string text;
    for (int i = 0; i < Names; ++i)
        text +=
            std::string("Global ") + static_cast<char>('a' + i % 26) + "name" + std::to_string(i) + "\r\n";
    QAbstractScrollArea& widget = ActiveWidget();
    Show(widget, Large);
    Mod_Sci::ReplaceSel(text.c_str());
    Paint(widget, true);
    GoTo(0);
    Mod_Sci::ReplaceSel("\r\n");
    GoTo(0);
    Paint(widget, true);
    for (const char* key = word; *key; ++key) {
        Press(widget, 0, QString(QLatin1Char(*key)));
        Paint(widget, false);
    }
    double worst = 0;
    for (auto _ : state) {
        Mod_Sci::AutoCCancel();
        const double seconds = Seconds([&] {
            if (asked) return Mod_SciFun::ShowAutocomplete();
            AllowCompletion(true);
            Mod_Parse::ColorCurrentLine(0, false);
            AllowCompletion(false);
        });
        if (!Mod_Sci::AutoCActive()) return state.SkipWithError("no list opened");
        worst = std::max(worst, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["worst"] = worst * 1000;
    Mod_Sci::AutoCCancel();
    widget.hide();
}

// Each key with its paint, for 200 lines.
void CursorHeld(benchmark::State& state) {
    constexpr int Lines = 200;
    const OpenSource source(LongSource);
    QAbstractScrollArea& widget = ActiveWidget();
    Show(widget, Large);
    GoTo(LongSource / 2);
    Paint(widget, true);
    double worst = 0;
    for (auto _ : state) {
        double total = 0;
        for (int i = 0; i < Lines; ++i) {
            const double seconds = Seconds([&] {
                Press(widget, Qt::Key_Down);
                Paint(widget, false);
            });
            worst = std::max(worst, seconds);
            total += seconds;
        }
        state.SetIterationTime(total / Lines);
    }
    state.counters["worst"] = worst * 1000;
    widget.hide();
}

BENCHMARK(LeaveDeclaringLine)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(200);
BENCHMARK(LoadPasted)->Arg(10000)->Arg(52000)->Unit(benchmark::kMillisecond)->Iterations(Rounds);
BENCHMARK_CAPTURE(PasteLines, paste, Change::Paste)
    ->Arg(10000)
    ->Arg(52000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(Rounds);
BENCHMARK_CAPTURE(PasteLines, undo, Change::Undo)
    ->Arg(10000)
    ->Arg(52000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(Rounds);
BENCHMARK_CAPTURE(CompletionList, few, "qname12", false)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(200);
BENCHMARK_CAPTURE(CompletionList, hundreds, "qname", true)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(200);
BENCHMARK(CursorHeld)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);

} // namespace
