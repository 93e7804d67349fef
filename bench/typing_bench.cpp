// Typing: from a key to the tables and the screen, in the middle of a long source. Each figure is the mean
// for a key, with p50, p99 and the worst beside it, in milliseconds.
#include "Floor.h"
#include "Keys.h"
#include "Source.h"
#include "editor/frmDoc.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

#include <QAccessible>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstring>
#include <vector>

namespace {

constexpr int Keys = 1000;
constexpr int Rounds = 3;
constexpr const char* Typed = "local speed# = abs(12.5 + score)\nplayer = speed * 2 : print \"ready\"\n";
// A window of one line paints next to nothing; the other is as large as people have it.
constexpr QSize OneLine(400, 20);
constexpr QSize Large(1024, 768);

// One key as the program gets it, up to the end of the paint that follows.
double Type(EditorView& view, QAbstractScrollArea& widget, char key) {
    return Seconds([&] {
        if (key == '\n')
            view.DirectFunction()(view.DirectPointer(), SCI_NEWLINE, 0, 0);
        else
            Press(widget, 0, QString(QLatin1Char(key)));
        Paint(widget, true);
    });
}

void TypeIn(benchmark::State& state, EditorView& view, long middle, QSize size) {
    QAbstractScrollArea& widget = *Widget(view);
    const auto send = [&view](unsigned message, std::uintptr_t w = 0) {
        return view.DirectFunction()(view.DirectPointer(), message, w, 0);
    };
    send(SCI_GOTOPOS,
         static_cast<std::uintptr_t>(send(SCI_POSITIONFROMLINE, static_cast<std::uintptr_t>(middle))));
    Show(widget, size);
    std::vector<double> times;
    for (auto _ : state) {
        double total = 0;
        for (int i = 0; i < Keys; ++i) {
            times.push_back(Type(view, widget, Typed[static_cast<std::size_t>(i) % std::strlen(Typed)]));
            total += times.back();
        }
        state.SetIterationTime(total / Keys);
    }
    std::sort(times.begin(), times.end());
    state.counters["p50"] = times[times.size() / 2] * 1000;
    state.counters["p99"] = times[times.size() * 99 / 100] * 1000;
    state.counters["worst"] = times.back() * 1000;
    widget.hide();
}

void Floor_Typing(benchmark::State& state, QSize size) {
    BareView view;
    view.Load(Source(static_cast<int>(state.range(0))));
    TypeIn(state, view.View(), state.range(0) / 2, size);
}

void Typing(benchmark::State& state, QSize size) {
    const OpenSource source(static_cast<int>(state.range(0)));
    TypeIn(state, *ActiveForm()->View, state.range(0) / 2, size);
}

// With assistive technology, the caret at the begin, in the middle and at the end (lines): a key must cost
// the same.
void TypingHeard(benchmark::State& state, bool utf8) {
    QAccessible::setActive(true);
    {
        const OpenSource source(static_cast<int>(state.range(0)));
        if (utf8) ActiveForm()->View->SetUtf8(true);
        QAccessible::queryAccessibleInterface(Widget(*ActiveForm()->View));
        TypeIn(state, *ActiveForm()->View, state.range(1), OneLine);
    }
    QAccessible::setActive(false);
}

BENCHMARK_CAPTURE(TypingHeard, single_byte, false)
    ->ArgsProduct({{52000}, {10, 26000, 51000}})
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(1);
BENCHMARK_CAPTURE(TypingHeard, utf8, true)
    ->ArgsProduct({{52000}, {10, 26000, 51000}})
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(1);
BENCHMARK_CAPTURE(Floor_Typing, one_line, OneLine)
    ->Arg(52000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(Rounds);
BENCHMARK_CAPTURE(Typing, one_line, OneLine)
    ->Arg(52000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(Rounds);
BENCHMARK_CAPTURE(Floor_Typing, repaint, Large)
    ->Arg(52000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(Rounds);
BENCHMARK_CAPTURE(Typing, repaint, Large)
    ->Arg(52000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(Rounds);
BENCHMARK_CAPTURE(Floor_Typing, repaint, Large)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(Rounds);
BENCHMARK_CAPTURE(Typing, repaint, Large)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(Rounds);

} // namespace
