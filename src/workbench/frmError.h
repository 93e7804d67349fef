// The dialog that tells of a failure and offers a report of it.
#pragma once

#include <QDialog>

class frmError : public QDialog {
public:
    explicit frmError(QWidget* parent);

    // Shows the dialog and comes back when it was closed.
    static void ShowModal();

private:
    void OpenLog();
    void SendReport();
};
