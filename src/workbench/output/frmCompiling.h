// The small window that shows the progress of a compilation.
#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;

class frmCompiling : public QDialog {
public:
    // The only window of this kind, created on first use above the main window.
    static frmCompiling& Instance();
    explicit frmCompiling(QWidget* parent);

    // Shows the window with its bar at 0.
    void Open(const QString& label);
    // Sets the bar, 0 to 100.
    void SetValue(int value);

private:
    QLabel* label_;
    QProgressBar* bar_;
};
