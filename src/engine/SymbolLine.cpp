// Each view has a list of the changes of its lines. A marker was last seen on a line when there were so many
// changes; the later ones carry it to its line of today.
#include "engine/SymbolLine.h"

#include "sci/Mod_Sci.h"

#include <unordered_map>
#include <vector>

namespace {

// To follow more changes than this takes as long as to ask.
constexpr std::size_t MostChanges = 20000;

struct Change {
    int line;
    int count; // below 0: lines that went into `line`
};

class Changes {
public:
    unsigned Now() const { return first_ + static_cast<unsigned>(list_.size()); }

    void Add(Change change) {
        if (list_.size() == MostChanges) Forget();
        list_.push_back(change);
    }

    void Forget() {
        first_ = Now() + 1;
        list_.clear();
    }

    // Returns where a line is after the changes from number `since` on; -1 if unknown.
    int Follow(int line, unsigned since) const {
        if (since < first_) return -1;
        for (std::size_t i = since - first_; i < list_.size(); ++i) {
            const Change& change = list_[i];
            if (change.count >= 0) {
                if (line >= change.line) line += change.count;
            } else if (line > change.line) {
                line = line > change.line - change.count ? line + change.count : change.line;
            }
        }
        return line;
    }

private:
    unsigned first_ = 1;
    std::vector<Change> list_;
};

std::unordered_map<std::intptr_t, Changes> changesOf;

// The changes of the most recently used view, which is likely to be used next.
Changes& Of(std::intptr_t view) {
    static std::intptr_t lastView = 0;
    static Changes* last = nullptr;
    if (last == nullptr || lastView != view) {
        lastView = view;
        last = &changesOf[view];
    }
    return *last;
}

} // namespace

void LinesInserted(std::intptr_t view, int line, int count) { Of(view).Add({line, count}); }
void LinesRemoved(std::intptr_t view, int line, int count) { Of(view).Add({line, -count}); }
void ForgetLines(std::intptr_t view) { Of(view).Forget(); }

SeenLine Seen(std::intptr_t view, int line) { return {line, Of(view).Now()}; }

int LineOfMarker(std::intptr_t view, int handle, SeenLine& seen) {
    const Changes& changes = Of(view);
    const unsigned now = changes.Now();
    if (seen.changes == now) return seen.line;
    const int line = changes.Follow(seen.line, seen.changes);
    seen.line = line >= 0 ? line : static_cast<int>(Mod_Sci::SendTo(view, SCI_MARKERLINEFROMHANDLE, handle));
    seen.changes = now;
    return seen.line;
}

void DeclaredOn(Symbol& symbol, int line) { symbol.Seen = Seen(symbol.SciWndData, line); }

int LineOf(const Symbol& symbol) {
    return symbol.SciWndData == 0 ? -1 : LineOfMarker(symbol.SciWndData, symbol.Handle, symbol.Seen);
}
