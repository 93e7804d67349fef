// A list of the Code Explorer: the view of one CodeModel.
#pragma once

#include "workbench/explorer/CodeModel.h"

#include <QTreeView>
#include <functional>

class CodeList : public QTreeView {
public:
    CodeList(const char* name, const QStringList& headers, const char* icon, LabelParts parts);

    // Called when another row becomes current, or none.
    std::function<void()> clicked;
    // Called when the current row is chosen by a double click or Enter.
    std::function<void()> chosen;
    // Called when the user wants to leave the list (Escape).
    std::function<void()> left;

    CodeModel& Rows() { return model_; }
    // Updates the rows from the symbols. The current row stays current while its symbol, or one of the same
    // name, is listed; the view keeps its top row.
    void Show(const std::vector<SymbolPointer>& symbols);
    // Returns null without a current row.
    SymbolPointer Current() const { return model_.SymbolAt(currentIndex().row()); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;

private:
    CodeModel model_;
    bool showing_ = false;
};
