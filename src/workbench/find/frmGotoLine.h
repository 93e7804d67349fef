// The dialog that asks for a line number.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;

class frmGotoLine : public QDialog {
public:
    // Asks for a line of the active document.
    explicit frmGotoLine(QWidget* parent);

private:
    void cmdOK_Click();

    QLineEdit* txtLine_;
    QLabel* lblWrong_; // says what is wrong with the number
    long lines_;
};
