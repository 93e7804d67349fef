// The rows of one list of the Code Explorer. Rows are reconciled with a symbol table and never rebuilt, so
// that a view keeps its scroll position, its selection and what it has painted.
#pragma once

#include "engine/clsHash.h"

#include <QAbstractItemModel>
#include <QIcon>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

// Which parts of a symbol its label shows.
struct LabelParts {
    bool suffix = false;    // the suffix of its value type, or the name of its custom type
    bool arraySize = false; // the size of an array inside a variable
};
std::string SymbolLabel(const Symbol& symbol, LabelParts parts);

class CodeModel : public QAbstractItemModel {
public:
    enum Column : int { Name, File, Line };

    CodeModel(const QStringList& headers, const char* icon, LabelParts parts, QObject* parent);

    // Reconciles the rows with the symbols (in any order). A few differences are signalled row by row, many
    // as a reset. A symbol declared anew under its old name and label takes over its row.
    void Reconcile(const std::vector<SymbolPointer>& symbols);
    // Sets the line (from 0; -1 unknown) of every row, and sorts again if the list is sorted by line.
    void SetLines(const std::function<int(const Symbol&)>& lineOf);

    // Returns null for an index outside the rows.
    SymbolPointer SymbolAt(int row) const;
    int RowOf(const Symbol* symbol) const;
    // Returns the first row with this name that belongs to the view; -1 if there is none.
    int RowOfName(const std::string& name, std::intptr_t view) const;
    int SortColumn() const { return sortColumn_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex&) const override { return {}; }
    bool hasChildren(const QModelIndex& parent = {}) const override { return !parent.isValid(); }
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    struct Row {
        SymbolPointer symbol; // kept alive, so that its address identifies it
        std::string sortText; // the label in upper case
        std::string file;     // the file name on show; the symbol's own may change
        std::string typeName;
        int line = -1;
        unsigned pass = 0; // the last Reconcile that found the symbol
    };
    using RowPointer = std::unique_ptr<Row>;

    RowPointer MakeRow(SymbolPointer symbol) const;
    bool Less(const Row& a, const Row& b) const;
    void TakeOver(std::vector<SymbolPointer>& added);
    void Remove();
    void Insert(std::vector<RowPointer> added);
    void Replace(std::vector<RowPointer> added);
    void Sort();
    void Unlist(std::size_t from, std::size_t to);
    const Row& At(int row) const { return *rows_[static_cast<std::size_t>(row)]; }

    QStringList headers_;
    QIcon icon_;
    LabelParts parts_;
    std::vector<RowPointer> rows_;
    std::unordered_map<const Symbol*, Row*> rowOf_;
    unsigned pass_ = 0;
    int sortColumn_ = Name;
    Qt::SortOrder order_ = Qt::AscendingOrder;
};
