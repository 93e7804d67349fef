// The editor of colour styles. It works on the style table itself; closing it brings back the style in use.
#pragma once

#include "workbench/styles/StyleSlots.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFontComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <functional>
#include <optional>

class frmColors : public QDialog {
public:
    explicit frmColors(QWidget* parent);

    // Asks for a colour; nothing if the user cancels. The desktop's dialog, unless a test answers.
    std::function<std::optional<QColor>(const QColor& start)> AskColour;

    void reject() override;

private:
    void MakeControls();
    void Arrange();
    QWidget* TextPage();
    QWidget* ColourPage();
    void Connect();

    void ListViewRecurseScan(const std::string& selected);
    void ShowStyle(const std::string& name);
    void ColorControls();
    void lblText_Click();
    void UpdateSelected();
    void ChooseTextColour();
    void ChooseCellColour(const ColourCell& cell, QPushButton& button);
    void ShowContrast();
    void Changed();
    bool AskToSave();
    void SaveStyle(const std::string& name);
    void lvStyles_ItemClick();
    void cmdApplyStyle_Click();
    void cmdApplyFontToAll_Click();
    void NewStyle();
    void cmdDeleteStyle_Click();
    void cmdRenameStyle_Click();
    std::string SelectedName() const;
    const TextStyle* SelectedText() const;

    std::string shown_; // the name of the style in the table
    bool dirty_ = false;
    bool filling_ = false; // the controls are being filled from the table
    QListWidget* lvStyles;
    QListWidget* lblText;
    QFontComboBox* cboFont;
    QComboBox* cboSize;
    QCheckBox *chkBold, *chkItalic, *chkUnderline, *chkSeeChanges;
    QPushButton *cmdColor, *cmdApplyFontToAll, *cmdAddNew, *cmdDeleteStyle, *cmdRenameStyle;
    QPushButton *cmdSaveStyle, *cmdApplyStyle, *cmdClose;
    QLineEdit* txtDescription;
    QLabel* lblContrast;
    std::vector<QPushButton*> cells_; // in the order of ColourCells
};
