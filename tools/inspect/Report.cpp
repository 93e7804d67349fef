// Walks the open documents and the symbol tables of the current project.
#include "Report.h"

#include "Json.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "engine/Mod_Parse.h"
#include "engine/ParserState.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <QCryptographicHash>
#include <algorithm>
#include <functional>
#include <set>

namespace {

// Makes each open document of a project the active one in turn, in the project's order.
void ForEachDocument(const std::shared_ptr<ClsProject>& project, const std::function<void(frmDoc&)>& visit) {
    if (!project) return; // the last document was closed
    frmDoc* const before = ActiveForm();
    for (const auto& source : project->Sources) {
        frmDoc& document = FormOf(*source.record);
        MakeActive(&document);
        visit(document);
    }
    MakeActive(before);
}

std::string Sha256(const std::string& text) {
    const auto bytes = QByteArray::fromRawData(text.data(), static_cast<int>(text.size()));
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().toStdString();
}

void PerLine(Json& json, const char* key, const std::function<void(int line)>& print) {
    json.Line().Key(key).Array();
    const int lines = Mod_Sci::GetLineCount();
    for (int line = 0; line < lines; ++line) print(line);
    json.EndArray();
}

void Styles(Json& json, int line) {
    json.Array();
    const auto start = Mod_Sci::PositionFromLine(line);
    const auto end = start + Mod_Sci::LineLength(line);
    for (auto at = start; at < end;) {
        const auto style = Mod_Sci::GetStyleAt(at);
        auto run = at + 1;
        while (run < end && Mod_Sci::GetStyleAt(run) == style) ++run;
        json.Array().Number(style).Number(run - at).EndArray();
        at = run;
    }
    json.EndArray();
}

void Fold(Json& json, int line) {
    const auto level = Mod_Sci::GetFoldLevel(line);
    json.Array()
        .Number(level & SC_FOLDLEVELNUMBERMASK)
        .Number((level & SC_FOLDLEVELHEADERFLAG) != 0)
        .EndArray();
}

void Document(Json& json, const frmDoc& document, const ReportOptions& options) {
    const std::string text = Mod_Sci::GetText();
    json.Line().Object();
    json.Key("path").FileName(document.FullFilename);
    json.Key("bytes").Number(static_cast<long long>(text.size()));
    json.Key("lines").Number(Mod_Sci::GetLineCount());
    json.Key("sha256").String(Sha256(text));
    if (options.styles) PerLine(json, "styles", [&](int line) { Styles(json, line); });
    if (options.folds) PerLine(json, "folds", [&](int line) { Fold(json, line); });
    if (options.indents)
        PerLine(json, "indents", [&](int line) { json.Number(Mod_Sci::GetLineIndentation(line)); });
    if (options.markers) PerLine(json, "markers", [&](int line) { json.Number(Mod_Sci::MarkerGet(line)); });
    if (options.text) json.Line().Key("text").String(text);
    json.EndObject();
}

struct Row {
    SymbolPointer symbol;
    std::string upper;
    int line;
};

int LineOf(const Symbol& symbol) {
    return symbol.SciWndData == 0 ? -1
                                  : static_cast<int>(Mod_Sci::SendTo(
                                        symbol.SciWndData, SCI_MARKERLINEFROMHANDLE, symbol.Handle));
}

void Table(Json& json, const char* key, const std::vector<SymbolPointer>& items);

void SymbolRow(Json& json, const Row& row) {
    const Symbol& symbol = *row.symbol;
    const auto* function = dynamic_cast<const ClsFunkcija*>(&symbol);
    const auto* type = dynamic_cast<const ClsType*>(&symbol);
    const bool array = dynamic_cast<const ClsArrayVar*>(&symbol) != nullptr;
    const bool constant = dynamic_cast<const clsConstant*>(&symbol) != nullptr;
    const bool plain = type != nullptr || dynamic_cast<const clsLabel*>(&symbol) != nullptr ||
                       dynamic_cast<const clsInclude*>(&symbol) != nullptr;
    json.Line().Object();
    json.Key("Ime").String(symbol.Ime);
    json.Key("line").Number(row.line);
    json.Key("File").FileName(symbol.File);
    if (!plain) json.Key("Tip").Number(symbol.Tip);
    if (!plain && !constant) json.Key("Tajp").String(symbol.Tajp);
    if (function != nullptr) {
        json.Key("VlezNum").Number(function->VlezNum);
        json.Key("Help").String(function->Help);
    }
    if (!plain && !constant && !array) json.Key("IsBBArray").Bool(symbol.IsBBArray);
    if (!plain && !constant && function == nullptr) json.Key("ArraySize").String(symbol.ArraySize);
    if (function != nullptr) Table(json, "Locals", function->Locals->Items());
    if (type != nullptr) Table(json, "Fields", type->Fields->Items());
    json.EndObject();
}

void Table(Json& json, const char* key, const std::vector<SymbolPointer>& items) {
    std::vector<Row> rows;
    for (const SymbolPointer& symbol : items)
        if (symbol->Ime != MainProgram) rows.push_back({symbol, UCase(symbol->Ime), LineOf(*symbol)});
    std::stable_sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) {
        return std::tie(a.upper, a.symbol->File, a.line) < std::tie(b.upper, b.symbol->File, b.line);
    });
    json.Key(key).Array();
    for (const Row& row : rows) SymbolRow(json, row);
    json.EndArray();
}

void Symbols(Json& json, const std::shared_ptr<ClsProject>& project) {
    std::vector<SymbolPointer> loose;
    for (const auto& source : project->Sources)
        for (const auto& entry : source.record->tmpFields) loose.push_back(entry.second);
    json.Line().Key("symbols").Object();
    Table(json, "Funkcii", project->Funkcii.Items());
    Table(json.Line(), "Globals", project->Globals.Items());
    Table(json.Line(), "Types", project->Types.Items());
    Table(json.Line(), "Arrays", project->Arrays.Items());
    Table(json.Line(), "Labels", project->Labels.Items());
    Table(json.Line(), "Includes", project->Includes.Items());
    Table(json.Line(), "Constants", project->Constants.Items());
    Table(json.Line(), "MainFunLocals", project->MainFunLocals->Items());
    Table(json.Line(), "tmpFields", loose);
    json.EndObject();
}

} // namespace

void StyleAll() {
    ForEachDocument(gCurrentProject, [](frmDoc&) {
        ForgetScope();
        const int lines = Mod_Sci::GetLineCount();
        for (int line = 0; line < lines; ++line)
            if (Mod_Parse::HasMarker(line, Mod_Parse::MarkerParsed)) Mod_Parse::ColorLineLight(line, true);
    });
}

std::string Report(const ReportOptions& options) {
    const auto project = gCurrentProject;
    Json json;
    json.Object();
    json.Key("documents").Array();
    ForEachDocument(project, [&](frmDoc& document) { Document(json, document, options); });
    json.EndArray();
    if (options.symbols && project) Symbols(json, project);
    if (!options.times.empty()) {
        json.Line().Key("time_us").Object();
        for (const auto& [stage, microseconds] : options.times) json.Key(stage).Number(microseconds);
        json.Key("edits").Array();
        for (const long long microseconds : options.editTimes) json.Number(microseconds);
        json.EndArray();
        json.EndObject();
    }
    json.EndObject();
    return json.Text() + "\n";
}
