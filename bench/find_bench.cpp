// Large edits and searches: replacing all hits of a long source against a bare loop over the target, finding
// the one hit in the last of many files, commenting many lines and taking that back. Each with the tables up
// to date and the screen painted.
#include "Floor.h"
#include "Keys.h"
#include "Source.h"
#include "documents/Mod_File.h"
#include "editor/FindRun.h"
#include "editor/Mod_SciFun_edit.h"
#include "editor/frmDoc.h"
#include "host/DockStudio.h"
#include "host/Files.h"
#include "host/Host.h"
#include "sci/Mod_Sci.h"

#include <benchmark/benchmark.h>
#include <filesystem>

namespace {

constexpr int Hits = 50000;
constexpr int Files = 50;
constexpr const char* Sought = "hitHere";
constexpr const char* Replacement = "replacedThere";

void Paint(EditorView& view) { Paint(*Widget(view), false); }
void Show(EditorView& view) { Show(*Widget(view), {1024, 768}); }

// A long source with one hit in each of its first lines, in what the line does.
std::string SourceWithHits(int lines) {
    const std::string source = Source(lines);
    std::string text;
    int hits = 0;
    for (std::size_t from = 0; from < source.size();) {
        const std::size_t end = std::min(source.find('\r', from), source.size());
        const std::string line = source.substr(from, end - from);
        text += line;
        // A comment stays a comment; after anything else the hit is a statement of its own.
        if (hits < Hits && ++hits) text += (line.empty() ? "" : " : ") + std::string(Sought) + " = 1";
        text += "\r\n";
        from = end + 2;
    }
    return text;
}

class OpenText {
public:
    OpenText(const std::string& name, const std::string& text)
        : path_((std::filesystem::temp_directory_path() / name).string()) {
        gHost.files->Write(path_, text);
        Mod_File::OpenFile(path_);
    }
    ~OpenText() {
        if (DocumentWindow* window = gHost.dock->FindDocumentWindow(path_)) {
            DocumentIn(window)->SetDirty(false);
            window->SetVisible(false);
        }
        std::filesystem::remove(path_);
    }
    OpenText(const OpenText&) = delete;
    OpenText& operator=(const OpenText&) = delete;

private:
    std::string path_;
};

void Floor_ReplaceAll(benchmark::State& state) {
    BareView bare;
    bare.Load(SourceWithHits(52000));
    EditorView& view = bare.View();
    Show(view);
    const auto send = [&view](unsigned message, std::uintptr_t w = 0, const void* l = nullptr) {
        return view.DirectFunction()(view.DirectPointer(), message, w, reinterpret_cast<std::intptr_t>(l));
    };
    int count = 0;
    for (auto _ : state) {
        state.SetIterationTime(Seconds([&] {
            count = 0;
            send(SCI_BEGINUNDOACTION);
            send(SCI_SETSEARCHFLAGS, SCFIND_MATCHCASE);
            for (std::intptr_t from = 0;;) {
                send(SCI_SETTARGETSTART, static_cast<std::uintptr_t>(from));
                send(SCI_SETTARGETEND, static_cast<std::uintptr_t>(send(SCI_GETLENGTH)));
                if (send(SCI_SEARCHINTARGET, std::strlen(Sought), Sought) < 0) break;
                send(SCI_REPLACETARGET, std::strlen(Replacement), Replacement);
                from = send(SCI_GETTARGETEND);
                ++count;
            }
            send(SCI_ENDUNDOACTION);
            Paint(view);
        }));
        send(SCI_UNDO);
    }
    state.counters["hits"] = count;
}

void ReplaceAll(benchmark::State& state) {
    const OpenText source("zolto_bench_replace.bb", SourceWithHits(52000));
    EditorView& view = *ActiveForm()->View;
    Show(view);
    FindOptions options;
    options.text = Sought;
    options.flags = SCFIND_MATCHCASE;
    int count = 0;
    for (auto _ : state) {
        FindRun run;
        state.SetIterationTime(Seconds([&] {
            count = run.ReplaceAll(options, Replacement);
            Paint(view);
        }));
        Mod_Sci::Undo();
        Paint(view);
        Mod_Sci::SetSel(0, 0);
        Paint(view);
    }
    state.counters["hits"] = count;
}

void FindInTheLastFile(benchmark::State& state) {
    std::vector<std::unique_ptr<OpenText>> files;
    files.reserve(Files);
    for (int i = 0; i < Files; ++i)
        files.push_back(std::make_unique<OpenText>("zolto_bench_" + std::to_string(i) + ".bb",
                                                   Source(1000) + (i + 1 == Files ? Sought : "")));
    FindOptions options;
    options.text = Sought;
    options.area = SearchIn::AllFiles;
    bool found = true;
    for (auto _ : state) {
        gHost.dock->DocumentWindows().front()->Activate();
        MakeActive(DocumentIn(gHost.dock->DocumentWindows().front()));
        FindRun run;
        state.SetIterationTime(Seconds([&] {
            found = run.FindNext(options, true) && found;
            Paint(*ActiveForm()->View);
        }));
    }
    if (!found) state.SkipWithError("not found");
}

void Comment(benchmark::State& state, bool undo) {
    const OpenSource source(static_cast<int>(state.range(0)));
    EditorView& view = *ActiveForm()->View;
    Show(view);
    for (auto _ : state) {
        Mod_Sci::SelectAll();
        const double done = Seconds([&] {
            Mod_SciFun::CommentSelection();
            Paint(view);
        });
        const double undone = Seconds([&] {
            Mod_Sci::Undo();
            Paint(view);
        });
        state.SetIterationTime(undo ? undone : done);
        ActiveForm()->SetDirty(false);
    }
}

BENCHMARK(Floor_ReplaceAll)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(3);
BENCHMARK(ReplaceAll)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(3);
BENCHMARK(FindInTheLastFile)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(20);
BENCHMARK_CAPTURE(Comment, comment, false)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(3);
BENCHMARK_CAPTURE(Comment, undo, true)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(3);

} // namespace
