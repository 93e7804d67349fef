// The dialog that tells of a failure and offers a report of it.
#pragma once

#include <QDialog>

class frmError : public QDialog {
public:
    explicit frmError(QWidget* parent);

    // Shows the dialog and comes back when it was closed. A failure during painting comes back at once, and
    // the dialog follows when the painting is done.
    static void ShowModal();

private:
    void OpenLog();
    void SendReport();
};
