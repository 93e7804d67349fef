// A tool bar, the menu bar or the status bar, built from its entries.
#pragma once

#include "host/qt/commands/CommandTable.h"

#include <QMainWindow>
#include <QPointer>
#include <QToolBar>

class QtBar : public DockBar {
public:
    QtBar(LayoutBar record, QMainWindow& window, CommandTable& table);
    ~QtBar() override;

    bool Visible() const override;
    void SetVisible(bool visible) override;
    void FocusFirstControl() override;

    // Takes over what a newly loaded layout says; the kind is the same.
    void Replace(LayoutBar record);
    // Builds the bar anew after its entries changed.
    void Rebuild();
    LayoutEntries& Entries() { return record_.entries; }
    const std::string& Name() const { return record_.name; }
    BarKind Kind() const { return record_.kind; }
    // The tool bar; null for the other kinds.
    QToolBar* ToolBar() const { return toolBar_; }
    // The record as it is now, for saving.
    LayoutBar Record() const;

private:
    void FillMenuBar();
    void FillToolBar();
    void FillStatusBar();
    static void ShowSeparators(QToolBar& bar);
    QWidget* Native() const;

    LayoutBar record_;
    QMainWindow& window_;
    CommandTable& table_;
    QPointer<QToolBar> toolBar_;
    std::vector<QPointer<QWidget>> statusWidgets_;
    std::vector<QPointer<QAction>> ownActions_; // of boxes and separators, which are made anew
};
