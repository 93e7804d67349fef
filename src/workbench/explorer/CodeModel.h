// The rows of one list of the Code Explorer. They are brought into agreement with a symbol table and never
// built anew, so a view keeps its place, its selection and what it has painted.
#pragma once

#include "engine/clsHash.h"

#include <QAbstractItemModel>
#include <QIcon>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

// What of a symbol its label tells.
struct LabelParts {
    bool suffix = false;    // the suffix of its value type, or the name of its custom type
    bool arraySize = false; // of an array inside a variable
};
std::string SymbolLabel(const Symbol& symbol, LabelParts parts);

class CodeModel : public QAbstractItemModel {
public:
    enum Column : int { Name, File, Line };

    CodeModel(const QStringList& headers, const char* icon, LabelParts parts, QObject* parent);

    // Makes the rows those of the symbols, in whatever order these come. Where few of them differ each row
    // comes and goes by itself; where many do the model is reset. A symbol that was declared anew under its
    // old name and label takes its row over.
    void Reconcile(const std::vector<SymbolPointer>& symbols);
    // Asks for the line (from 0; -1 unknown) of every row. Sorts again where the order is by lines.
    void SetLines(const std::function<int(const Symbol&)>& lineOf);

    // Null outside the rows.
    SymbolPointer SymbolAt(int row) const;
    int RowOf(const Symbol* symbol) const;
    // The first row with a name of a view; -1 when there is none.
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
        SymbolPointer symbol; // held, so that its address tells it from every other one
        std::string sortText; // the label in upper case
        std::string file;     // as shown: a record's own may change
        std::string typeName;
        int line = -1;
        unsigned pass = 0; // the pass that last met the symbol
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
