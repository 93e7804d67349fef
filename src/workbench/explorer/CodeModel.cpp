// Reconciling and sorting. A pass costs one look-up for each symbol; a label is made when it is shown.
#include "workbench/explorer/CodeModel.h"

#include "engine/Mod_Lexer.h"
#include "host/Text.h"
#include "workbench/parts/Shown.h"
#include "workbench/parts/SymbolIcons.h"

#include <algorithm>

namespace {

// More changes than this are signalled as one reset.
constexpr std::size_t FewRows = 64;

constexpr int LineDigits = 6;

}

std::string SymbolLabel(const Symbol& symbol, LabelParts parts) {
    std::string label = symbol.Ime;
    // The main program is declared on no line and has no type.
    if (parts.suffix && symbol.Handle != 0) {
        if (symbol.Tip == TipCustom)
            label += "." + symbol.Tajp;
        else
            label += SuffixText[symbol.Tip];
    }
    if (parts.arraySize && symbol.IsBBArray) label += symbol.ArraySize;
    return label;
}

CodeModel::CodeModel(const QStringList& headers, const char* icon, LabelParts parts, QObject* parent)
    : QAbstractItemModel(parent), headers_(headers), icon_(SymbolIcon(icon)), parts_(parts) {}

CodeModel::RowPointer CodeModel::MakeRow(SymbolPointer symbol) const {
    auto row = std::make_unique<Row>();
    row->sortText = UCase(SymbolLabel(*symbol, parts_));
    row->file = symbol->File;
    row->typeName = symbol->Tajp;
    row->symbol = std::move(symbol);
    return row;
}

bool CodeModel::Less(const Row& a, const Row& b) const {
    const Row& first = order_ == Qt::AscendingOrder ? a : b;
    const Row& second = order_ == Qt::AscendingOrder ? b : a;
    if (sortColumn_ == Line && first.line != second.line) return first.line < second.line;
    if (sortColumn_ == File && first.file != second.file) return UCase(first.file) < UCase(second.file);
    if (const int names = a.sortText.compare(b.sortText); names != 0)
        return sortColumn_ == Name && order_ == Qt::DescendingOrder ? names > 0 : names < 0;
    if (a.file != b.file) return a.file < b.file;
    return a.symbol->Handle < b.symbol->Handle;
}

void CodeModel::Reconcile(const std::vector<SymbolPointer>& symbols) {
    ++pass_;
    std::size_t kept = 0;
    std::vector<SymbolPointer> added;
    for (const SymbolPointer& symbol : symbols) {
        const auto at = rowOf_.find(symbol.get());
        // A row whose file was renamed or whose type was respelled is removed and inserted again.
        if (at == rowOf_.end() || at->second->file != symbol->File || at->second->typeName != symbol->Tajp) {
            added.push_back(symbol);
        } else {
            at->second->pass = pass_;
            ++kept;
        }
    }
    if (added.empty() && kept == rows_.size()) return;
    if (sortColumn_ == Name) TakeOver(added);
    std::vector<RowPointer> rows;
    rows.reserve(added.size());
    for (SymbolPointer& symbol : added) {
        rows.push_back(MakeRow(std::move(symbol)));
        rows.back()->pass = pass_;
    }
    if (rows.size() + rows_.size() - kept > FewRows) return Replace(std::move(rows));
    Remove();
    Insert(std::move(rows));
}

// Most edits of a declaring line leave its names alone. New symbols that look like removed ones therefore
// take over their rows, and nothing on the screen changes.
void CodeModel::TakeOver(std::vector<SymbolPointer>& added) {
    if (added.empty() || added.size() > FewRows) return;
    std::unordered_multimap<std::string, Row*> gone;
    for (const RowPointer& row : rows_)
        if (row->pass != pass_) gone.emplace(row->symbol->Ime, row.get());
    std::erase_if(added, [&](const SymbolPointer& symbol) {
        auto [at, end] = gone.equal_range(symbol->Ime);
        for (; at != end; ++at) {
            Row& row = *at->second;
            const Symbol& old = *row.symbol;
            if (old.SciWndData != symbol->SciWndData || row.file != symbol->File ||
                SymbolLabel(old, parts_) != SymbolLabel(*symbol, parts_) || row.typeName != symbol->Tajp)
                continue;
            rowOf_.erase(row.symbol.get());
            row.symbol = symbol;
            row.pass = pass_;
            rowOf_.emplace(symbol.get(), &row);
            gone.erase(at);
            return true;
        }
        return false;
    });
}

void CodeModel::Unlist(std::size_t from, std::size_t to) {
    for (std::size_t at = from; at < to; ++at) rowOf_.erase(rows_[at]->symbol.get());
}

// Removes the rows that this pass did not find, from the last to the first.
void CodeModel::Remove() {
    for (std::size_t end = rows_.size(); end > 0;) {
        if (rows_[end - 1]->pass == pass_) {
            --end;
            continue;
        }
        std::size_t first = end - 1;
        while (first > 0 && rows_[first - 1]->pass != pass_) --first;
        beginRemoveRows({}, static_cast<int>(first), static_cast<int>(end) - 1);
        Unlist(first, end);
        const auto begin = rows_.begin();
        rows_.erase(begin + static_cast<std::ptrdiff_t>(first), begin + static_cast<std::ptrdiff_t>(end));
        endRemoveRows();
        end = first;
    }
}

void CodeModel::Insert(std::vector<RowPointer> added) {
    for (RowPointer& row : added) {
        const auto at = std::upper_bound(rows_.begin(), rows_.end(), row,
                                         [this](const auto& a, const auto& b) { return Less(*a, *b); });
        const int place = static_cast<int>(at - rows_.begin());
        beginInsertRows({}, place, place);
        rowOf_.emplace(row->symbol.get(), row.get());
        rows_.insert(at, std::move(row));
        endInsertRows();
    }
}

void CodeModel::Replace(std::vector<RowPointer> added) {
    beginResetModel();
    std::erase_if(rows_, [this](const RowPointer& row) { return row->pass != pass_; });
    rows_.insert(rows_.end(), std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()));
    rowOf_.clear();
    for (const RowPointer& row : rows_) rowOf_.emplace(row->symbol.get(), row.get());
    std::sort(rows_.begin(), rows_.end(), [this](const auto& a, const auto& b) { return Less(*a, *b); });
    endResetModel();
}

void CodeModel::SetLines(const std::function<int(const Symbol&)>& lineOf) {
    bool sorted = true;
    for (std::size_t at = 0; at < rows_.size(); ++at) {
        Row& row = *rows_[at];
        const int line = lineOf(*row.symbol);
        if (line != row.line) {
            row.line = line;
            const QModelIndex cell = index(static_cast<int>(at), Line);
            emit dataChanged(cell, cell, {Qt::DisplayRole});
        }
        if (at > 0 && Less(row, *rows_[at - 1])) sorted = false;
    }
    if (sortColumn_ == Line && !sorted) Sort();
}

void CodeModel::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= headers_.size() || (column == sortColumn_ && order == order_)) return;
    sortColumn_ = column;
    order_ = order;
    Sort();
}

void CodeModel::Sort() {
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<const Symbol*> symbols;
    for (const QModelIndex& index : before) symbols.push_back(At(index.row()).symbol.get());
    std::sort(rows_.begin(), rows_.end(), [this](const auto& a, const auto& b) { return Less(*a, *b); });
    QModelIndexList after;
    for (int i = 0; i < before.size(); ++i)
        after.push_back(index(RowOf(symbols[static_cast<std::size_t>(i)]), before[i].column()));
    changePersistentIndexList(before, after);
    emit layoutChanged({}, VerticalSortHint);
}

SymbolPointer CodeModel::SymbolAt(int row) const {
    return row < 0 || row >= rowCount() ? nullptr : At(row).symbol;
}

int CodeModel::RowOf(const Symbol* symbol) const {
    if (!rowOf_.contains(symbol)) return -1;
    const auto at = std::find_if(rows_.begin(), rows_.end(),
                                 [&](const RowPointer& row) { return row->symbol.get() == symbol; });
    return static_cast<int>(at - rows_.begin());
}

int CodeModel::RowOfName(const std::string& name, std::intptr_t view) const {
    const auto at = std::find_if(rows_.begin(), rows_.end(), [&](const RowPointer& row) {
        return row->symbol->SciWndData == view && row->symbol->Ime == name;
    });
    return at == rows_.end() ? -1 : static_cast<int>(at - rows_.begin());
}

int CodeModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int CodeModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(headers_.size());
}

QModelIndex CodeModel::index(int row, int column, const QModelIndex& parent) const {
    if (parent.isValid() || row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) return {};
    return createIndex(row, column);
}

Qt::ItemFlags CodeModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags;
}

QVariant CodeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const Row& row = At(index.row());
    if (role == Qt::DecorationRole && index.column() == Name) return icon_;
    if (role == Qt::ToolTipRole) {
        QString tip = Shown(SymbolLabel(*row.symbol, parts_));
        if (!row.file.empty()) tip += "\n" + Shown(row.file);
        return tip;
    }
    if (role != Qt::DisplayRole) return {};
    switch (index.column()) {
    case Name: return Shown(SymbolLabel(*row.symbol, parts_));
    case File: return Shown(row.file);
    default: return row.line < 0 ? QString() : QString::number(row.line + 1).rightJustified(LineDigits, '0');
    }
}

QVariant CodeModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= headers_.size()) return {};
    return headers_[section];
}
