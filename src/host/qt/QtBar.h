// A tool bar, the menu bar or the status bar, built from its entries.
#pragma once

#include "host/qt/CommandTable.h"

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

    // Builds the bar anew after its entries changed.
    void Rebuild();
    LayoutEntries& Entries() { return record_.entries; }
    const std::string& Name() const { return record_.name; }
    // The record as it is now, for saving.
    LayoutBar Record() const;

private:
    void FillMenuBar();
    void FillToolBar();
    void FillStatusBar();
    QWidget* Native() const;

    LayoutBar record_;
    QMainWindow& window_;
    CommandTable& table_;
    QPointer<QToolBar> toolBar_;
    std::vector<QPointer<QWidget>> statusWidgets_;
};
