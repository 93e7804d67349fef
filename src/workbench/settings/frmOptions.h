// "Preferences": what the program does, the compilers, backups.
#pragma once

#include "workbench/settings/CompilersPage.h"
#include "workbench/settings/SettingsDialog.h"

class frmOptions : public SettingsDialog {
public:
    explicit frmOptions(QWidget* parent);

protected:
    void ApplyChanges() override;

private:
    void GeneralPage();
    void FilesPage();
    void ExplorerPage();
    void CompilePage();
    void HelpPage();
    void BackupPage();
    void TakeHelpPage(const char* page);

    CompilersPage* compilers_;
};
