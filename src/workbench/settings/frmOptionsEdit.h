// "Editor options": the view, the margins, indentation, the autolists.
#pragma once

#include "workbench/settings/SettingsDialog.h"

class frmOptionsEdit : public SettingsDialog {
public:
    explicit frmOptionsEdit(QWidget* parent);

protected:
    void ApplyChanges() override;

private:
    void ViewPage();
    void TypingPage();
    void WrappingPage();
    void AutolistPage();
    void NavigationPage();
    void FilesPage();
};
