// Each move reads the lines of symbols from their markers; no range is stored.
#include "engine/ScopeMoves.h"

#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/Markers.h"
#include "engine/Mod_Parse.h"
#include "engine/ParserState.h"
#include "engine/SymbolLine.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>

namespace Mod_Parse {

namespace {

// Returns the symbols of the active view in `all` below a line, up to the first scope word of the line `end`.
std::vector<SymbolPointer> Below(const std::vector<SymbolPointer>& all, int line, int end) {
    std::vector<SymbolPointer> below;
    for (const SymbolPointer& symbol : all) {
        if (symbol->SciWndData != SciWndData) continue;
        const int at = LineOf(*symbol);
        if (at > line && (at < end || (at == end && symbol->ScopesBefore == 0))) below.push_back(symbol);
    }
    return below;
}

std::vector<SymbolPointer> Loose() {
    std::vector<SymbolPointer> fields;
    for (const auto& entry : gActiveDoc->tmpFields) fields.push_back(entry.second);
    return fields;
}

// Finds the record of each name of a line in the table that it must be in.
class SymbolSearch {
public:
    SymbolSearch(int line, bool sequential, const Token* tokens)
        : line_(line), sequential_(sequential), tokens_(tokens) {}

    LineSymbols Run(const LineEvents& events) {
        for (const LineEvent& event : events) Find(event);
        return std::move(found_);
    }

private:
    void Find(const LineEvent& event) {
        ClsProject& project = *gCurrentProject;
        switch (event.kind) {
        case LineEvent::Label: Find(event, project.Labels); break;
        case LineEvent::Include: Find(event, project.Includes, clsInclude::KeyOf(NameOf(event))); break;
        case LineEvent::Dim: Find(event, project.Arrays); break;
        case LineEvent::Global: Find(event, project.Globals); break;
        case LineEvent::Const: Find(event, project.Constants); break;
        case LineEvent::Local:
            KnowFunction();
            found_.locals = true;
            Find(event, *found_.localsBehind);
            break;
        case LineEvent::Parameter: Find(event, *found_.localsBehind); break;
        case LineEvent::Function: {
            KnowFunction();
            found_.functions = true;
            const SymbolPointer record = Find(event, project.Funkcii);
            if (record) found_.localsBehind = static_cast<ClsFunkcija&>(*record).Locals;
            break;
        }
        case LineEvent::EndFunction:
            KnowFunction();
            found_.functions = true;
            found_.localsBehind = project.MainFunLocals;
            break;
        case LineEvent::Type: {
            KnowType();
            found_.types = true;
            const SymbolPointer record = Find(event, project.Types);
            found_.fieldsBehind = record ? static_cast<ClsType&>(*record).Fields : nullptr;
            break;
        }
        case LineEvent::EndType:
            KnowType();
            found_.types = true;
            found_.fieldsBehind = nullptr;
            break;
        case LineEvent::Field:
            KnowType();
            if (found_.fieldsBehind)
                Find(event, *found_.fieldsBehind);
            else
                FindLoose(event);
            break;
        default: break;
        }
    }

    // Most lines need not ask which scopes they lie in.
    void KnowFunction() {
        if (functionKnown_) return;
        functionKnown_ = true;
        if (!sequential_ || CurrentFunctionName.empty()) SetFunction(CurrentFunction(line_ - 1));
        found_.localsBefore = found_.localsBehind = CurrentLocals;
    }

    void KnowType() {
        if (typeKnown_) return;
        typeKnown_ = true;
        if (!sequential_ || CurrentTypeName.empty()) SetType(CurrentType(line_ - 1));
        if (!CurrentTypeName.empty()) found_.fieldsBefore = found_.fieldsBehind = CurrentFields;
    }

    const std::string& NameOf(const LineEvent& event) const { return tokens_[event.token].Text; }

    SymbolPointer Find(const LineEvent& event, clsHash& table) { return Find(event, table, NameOf(event)); }

    SymbolPointer Find(const LineEvent& event, clsHash& table, const std::string& key) {
        const std::string& name = NameOf(event);
        const auto namesakes =
            std::count_if(found_.symbols.begin(), found_.symbols.end(), [&](const LineSymbol& other) {
                return other.table == &table && EqualNoCase(other.name, name);
            });
        SymbolPointer record = table.ItemHandle(key, line_, SciWndData, static_cast<int>(namesakes));
        found_.symbols.push_back({event, name, &table, record});
        return record;
    }

    void FindLoose(const LineEvent& event) {
        const std::string& name = NameOf(event);
        for (const auto& [handle, field] : gActiveDoc->tmpFields) {
            if (!EqualNoCase(field->Ime, name) || LineOf(*field) != line_) continue;
            const auto same = [&record = field](const LineSymbol& other) { return other.record == record; };
            if (std::any_of(found_.symbols.begin(), found_.symbols.end(), same)) continue;
            found_.symbols.push_back({event, name, nullptr, field});
            return;
        }
    }

    int line_;
    bool sequential_;
    const Token* tokens_;
    LineSymbols found_;
    bool functionKnown_ = false;
    bool typeKnown_ = false;
};

} // namespace

int NextLineWith(int line, int marker) {
    const int next = Mod_Sci::MarkerNext(line, MaskOf(marker));
    return next < 0 ? NoEnd : next;
}

void Enter(clsHash& table, const SymbolPointer& symbol) {
    if (ParsingFile)
        table.Add(symbol->Key(), symbol);
    else
        table.AddInOrder(symbol->Key(), symbol);
}

void MoveLocalsBelow(int line, clsHash& from, clsHash& to) {
    if (&from == &to) return;
    const int end = NextLineWith(line + 1, MarkerFunction);
    const int local = NextLineWith(line + 1, MarkerLocal);
    if (local == NoEnd || local > end) return;
    for (const SymbolPointer& symbol : Below(from.Items(), line, end)) {
        Enter(to, symbol);
        from.RemoveRecord(symbol->Ime, *symbol);
    }
}

void MoveFieldsBelow(int line, clsHash* from, clsHash* to) {
    if (from == to) return;
    const int end = NextLineWith(line + 1, MarkerType);
    auto& loose = gActiveDoc->tmpFields;
    for (const SymbolPointer& symbol : Below(from == nullptr ? Loose() : from->Items(), line, end)) {
        if (to == nullptr)
            loose[symbol->Handle] = std::static_pointer_cast<ClsField>(symbol);
        else
            Enter(*to, symbol);
        if (from == nullptr)
            loose.erase(symbol->Handle);
        else
            from->RemoveRecord(symbol->Ime, *symbol);
    }
}

LineSymbols FindLineSymbols(int line, bool sequential, const Token* tokens, const LineEvents& events) {
    return SymbolSearch(line, sequential, tokens).Run(events);
}

} // namespace Mod_Parse
