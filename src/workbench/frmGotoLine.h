// The dialog that asks for a line number.
#pragma once

#include <QDialog>

class QLineEdit;

class frmGotoLine : public QDialog {
public:
    // Asks for a line of the active document.
    explicit frmGotoLine(QWidget* parent);

private:
    void cmdOK_Click();

    QLineEdit* txtLine_;
    long lines_;
};
