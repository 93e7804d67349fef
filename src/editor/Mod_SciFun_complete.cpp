// A list is built anew for each key: its candidates are kept in order as they are found, as the view's own
// search among them needs.
#include "editor/Mod_SciFun_complete.h"

#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/Keywords.h"
#include "engine/Mod_Parse.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "host/ErrorLog.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace Mod_SciFun {

namespace {

constexpr std::size_t MostNames = 1100;
constexpr std::size_t MostTypesOrFields = 500;
constexpr std::size_t MostLabels = 200;

unsigned char Upper(char c) { return static_cast<unsigned char>(c >= 'a' && c <= 'z' ? c - 32 : c); }

bool Less(std::string_view a, std::string_view b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return Upper(x) < Upper(y); });
}

std::string WordAtCaret(std::intptr_t& start) {
    const auto caret = Mod_Sci::GetCurrentPos();
    start = Mod_Sci::WordStartPosition(caret, 1);
    return Mod_Sci::GetTextRange(start, Mod_Sci::WordEndPosition(caret, 1));
}

std::string WordAtCaret() {
    std::intptr_t start = 0;
    return WordAtCaret(start);
}

// The names that begin with a word, in order.
class Candidates {
public:
    Candidates(std::string_view word, std::size_t most) : word_(word), most_(most) {}

    bool Fits(std::string_view name) const {
        return name.size() >= word_.size() && EqualNoCase(name.substr(0, word_.size()), word_);
    }

    // Adds a name. Namesakes are adjacent, and `once` skips the second one.
    void Insert(const std::string& name, bool once = false) {
        const auto at = std::upper_bound(names_.begin(), names_.end(), &name,
                                         [](const auto* a, const auto* b) { return Less(*a, *b); });
        if (once && at != names_.begin() && !Less(**(at - 1), name)) return;
        names_.insert(at, &name);
        if (names_.size() > most_) names_.pop_back(); // the first ones are shown
    }

    std::size_t Count() const { return names_.size(); }

    std::string Joined() const {
        std::string list;
        for (const std::string* name : names_) {
            if (!list.empty()) list += ' ';
            list += *name;
        }
        return list;
    }

private:
    std::string_view word_;
    std::size_t most_;
    std::vector<const std::string*> names_; // of records, which outlive the list
};

// The list that the view shows. Written by Show alone.
struct ShownList {
    std::intptr_t view = 0;
    std::intptr_t start = 0;
    std::string names;

    bool operator==(const ShownList&) const = default;
} shownList;

void Show(const Candidates& candidates, std::size_t typed) {
    AllowCompletion(false);
    if (candidates.Count() > 0) {
        const auto length = static_cast<std::intptr_t>(typed);
        ShownList list{SciWndData, Mod_Sci::GetCurrentPos() - length, candidates.Joined()};
        // The view makes a new window for each list; the one that is open and right stays.
        if (!Mod_Sci::AutoCActive() || list != shownList) {
            shownList = std::move(list);
            Mod_Sci::AutoCShow(length, shownList.names.c_str());
        }
        if (candidates.Count() == 1 && ACExplicitList && OptionsEdit::ACcompleteOnlyOne && ACExplicitNow)
            Mod_Sci::AutoCComplete();
    }
    NoteListShown();
}

void InsertFrom(const clsHash& table, Candidates& candidates) {
    table.ForEach([&](const Symbol& symbol) {
        if (candidates.Fits(symbol.Ime)) candidates.Insert(symbol.Ime);
    });
}

bool OffersTypesAndLabels() { return ACExplicitList || OptionsEdit::ACTypesLabelsEnable; }

// The list of one table, by the word at the caret alone.
void ShowTable(const char* procedure, const clsHash& table, std::size_t most) {
    Guarded(procedure, "Mod_SciFun", [&] {
        if (!OffersTypesAndLabels()) return;
        const std::string word = WordAtCaret();
        Candidates candidates(word, most);
        InsertFrom(table, candidates);
        Show(candidates, word.size());
    });
}

// The list of all names: one that would spring up by itself stays away when it would be long.
class NameList {
public:
    NameList(const std::string& word, bool open)
        : candidates_(word, MostNames), word_(word), bounded_(!ACExplicitList && !open) {}

    // False when the list would be too long.
    bool Collect() {
        using namespace OptionsEdit;
        const ClsProject& project = *gCurrentProject;
        if (ACIncKeywords) Keywords();
        if (ACIncVars) {
            Table(project.Globals);
            Locals();
            Table(project.Arrays, true);
        }
        if (ACIncFunctions) Table(project.Funkcii);
        if (ACIncConstants) Table(project.Constants);
        return !tooMany_;
    }

    void Show() const { Mod_SciFun::Show(candidates_, word_.size()); }

private:
    void Take(const std::string& name, bool once = false) {
        if (tooMany_ || static_cast<int>(name.size()) <= OptionsEdit::ACshowOnlyLonger ||
            !candidates_.Fits(name))
            return;
        candidates_.Insert(name, once);
        tooMany_ = bounded_ && static_cast<int>(candidates_.Count()) > OptionsEdit::ACshowWhenNoMore;
    }

    void Keywords() {
        const auto bucket = static_cast<std::size_t>(Upper(word_.front()) - FirstKeywordCode);
        if (const auto& dictionary = KeywordTable[bucket])
            dictionary->ForEach([&](const ClsBBFunkcija& keyword) { Take(keyword.Ime); });
    }

    void Locals() {
        if (CurrentFunctionName.empty())
            SetFunction(Mod_Parse::CurrentFunction(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos())));
        const SymbolPointer function = gCurrentProject->Funkcii.ItemHash(CurrentFunctionName);
        if (function) Table(*static_cast<const ClsFunkcija&>(*function).Locals);
    }

    void Table(const clsHash& table, bool once = false) {
        if (tooMany_) return;
        table.ForEach([&](const Symbol& symbol) { Take(symbol.Ime, once); });
    }

    Candidates candidates_;
    const std::string& word_;
    bool bounded_;
    bool tooMany_ = false;
};

void NamesAtCaret() {
    std::intptr_t start = 0;
    const std::string word = WordAtCaret(start);
    if (start > 0 && Mod_Sci::GetCharAt(start - 1) == '.') return AutocompleteType();
    if (word.empty() || Upper(word.front()) < 'A' || Upper(word.front()) > 'Z') return;
    const bool open = Mod_Sci::AutoCActive() != 0;
    if (!ACExplicitList) {
        if (!OptionsEdit::ACshowAuto) return;
        if (!open && static_cast<int>(word.size()) < OptionsEdit::ACstartAfter) return;
    }
    NameList list(word, open);
    if (list.Collect()) list.Show();
}

} // namespace

void Autocomplete() {
    if (InDeclaration) return;
    Guarded("Autocomplete", "Mod_SciFun", NamesAtCaret);
}

void AutocompleteType() { ShowTable("AutocompleteType", gCurrentProject->Types, MostTypesOrFields); }

void AutocompleteLabel() { ShowTable("AutocompleteLabel", gCurrentProject->Labels, MostLabels); }

void AutocompleteBackSlash(const ClsType& typeRecord, const std::string& prefix) {
    Guarded("AutocompleteBackSlash", "Mod_SciFun", [&] {
        if (!OffersTypesAndLabels()) return;
        Candidates candidates(prefix, MostTypesOrFields);
        InsertFrom(*typeRecord.Fields, candidates);
        Mod_Sci::AutoCStops(" ");
        Mod_Sci::AutoCCancel();
        Show(candidates, prefix.size());
    });
}

void ShowAutocomplete() {
    const CompletionAsked asked;
    Mod_Parse::ColorCurrentLine(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()), false);
}

} // namespace Mod_SciFun
