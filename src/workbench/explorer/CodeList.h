// A list of the Code Explorer: the view of one CodeModel.
#pragma once

#include "workbench/explorer/CodeModel.h"

#include <QTreeView>
#include <functional>

class CodeList : public QTreeView {
public:
    CodeList(const char* name, const QStringList& headers, const char* icon, LabelParts parts);

    // Tells that another row became the current one, or none.
    std::function<void()> clicked;
    // Tells that the current row was chosen: by a double click or by Enter.
    std::function<void()> chosen;
    // Tells that the user wants out of the list.
    std::function<void()> left;

    CodeModel& Rows() { return model_; }
    // Brings the rows into agreement with the symbols. What is current stays so as long as its symbol is
    // there, or one of the same name in its place; the view keeps its top row.
    void Show(const std::vector<SymbolPointer>& symbols);
    // Null without a current row.
    SymbolPointer Current() const { return model_.SymbolAt(currentIndex().row()); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;

private:
    CodeModel model_;
    bool showing_ = false;
};
