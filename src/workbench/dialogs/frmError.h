// The dialog that reports a failure and offers to send a report.
#pragma once

#include <QDialog>

class frmError : public QDialog {
public:
    explicit frmError(QWidget* parent);

    // Shows the dialog and returns when it is closed. For a failure during painting it returns at once, and
    // the dialog follows after the painting.
    static void ShowModal();

private:
    void OpenLog();
    void SendReport();
};
