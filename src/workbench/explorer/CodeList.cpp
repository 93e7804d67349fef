// Keyboard, current row, and the view's state while its rows change.
#include "workbench/explorer/CodeList.h"

#include "workbench/explorer/CodeDelegate.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

CodeList::CodeList(const char* name, const QStringList& headers, const char* icon, LabelParts parts)
    : model_(headers, icon, parts, nullptr) {
    setObjectName(name);
    setAccessibleName(QString(name).mid(2)); // without its prefix
    setModel(&model_);
    setItemDelegate(new CodeDelegate(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideRight);
    setFrameShape(QFrame::NoFrame);
    header()->setStretchLastSection(headers.size() == 1);
    header()->setSectionsMovable(false);
    sortByColumn(CodeModel::Name, Qt::AscendingOrder);
    setSortingEnabled(true);
    connect(this, &QTreeView::doubleClicked, this, [this] {
        if (chosen) chosen();
    });
}

void CodeList::Show(const std::vector<SymbolPointer>& symbols) {
    const SymbolPointer current = Current();
    const SymbolPointer top = model_.SymbolAt(indexAt({0, 0}).row());
    const int scrolled = verticalScrollBar()->value();
    {
        const QScopedValueRollback<bool> guard(showing_, true);
        model_.Reconcile(symbols);
    }
    // A reset loses the current row, and a symbol declared anew has another record: find the row again.
    if (current && !currentIndex().isValid()) {
        int row = model_.RowOf(current.get());
        if (row < 0) row = model_.RowOfName(current->Ime, current->SciWndData);
        const QScopedValueRollback<bool> guard(showing_, row >= 0 && model_.SymbolAt(row) == current);
        selectionModel()->setCurrentIndex(model_.index(row, 0),
                                          QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    if (scrolled > 0 && top && indexAt({0, 0}).row() != model_.RowOf(top.get()))
        scrollTo(model_.index(model_.RowOf(top.get()), 0), PositionAtTop);
}

void CodeList::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (currentIndex().isValid() && chosen) chosen();
        return event->accept();
    case Qt::Key_Escape:
        if (left) left();
        return event->accept();
    default: QTreeView::keyPressEvent(event);
    }
}

void CodeList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (!showing_ && clicked) clicked();
}

// When the current row is removed no row becomes current, because nobody has chosen its neighbour.
void CodeList::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) {
    const int row = currentIndex().row();
    if (row >= start && row <= end) selectionModel()->clear();
    QTreeView::rowsAboutToBeRemoved(parent, start, end);
}
