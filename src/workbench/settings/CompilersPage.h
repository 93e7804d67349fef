// The page of the preferences with the list of compilers.
#pragma once

#include "documents/CompilerEdit.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>

class CompilersPage : public QWidget {
public:
    CompilersPage();

    // Makes the edited list the registry. Throws a Failure if it cannot be written.
    void Apply();
    // The folder of the help of the selected compiler.
    std::string SelectedHelpPath() const;

private:
    void MakeControls();
    void Arrange();
    void Connect();
    void PopulateCompilers(std::size_t selected);
    void ShowSelected();
    void TakeFields();
    void cmdAdd_Click();
    void cmdRemove_Click();
    void cmdRename_Click();
    void cmdRefreshDef_Click();
    void cmdBrowseBpath_Click();
    void BrowseHelp();
    void MakeDefault(std::size_t index);

    std::size_t Row() const;
    CompilerEdit::Entry* Selected();

    CompilerEdit edit_;
    bool showing_ = false; // the fields are being filled
    QListWidget* lvCompilers;
    QLineEdit* txtBlitzPath;
    QLineEdit* txtHelpPath;
    QLineEdit* txtExeCommand;
    QCheckBox* chkUseBlitzConsole;
    QPushButton *cmdAdd, *cmdRemove, *cmdRename, *cmdSetAsDefault, *cmdRefreshDef;
    QPushButton *cmdBrowseBpath, *cmdBrowseHPath;
};
