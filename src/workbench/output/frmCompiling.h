// The small window that shows how far a compile has come.
#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;

class frmCompiling : public QDialog {
public:
    // The one window, made on first use above the main window.
    static frmCompiling& Instance();
    explicit frmCompiling(QWidget* parent);

    // Shows the window with its bar at 0.
    void Open(const QString& label);
    // The bar from 0 to 100.
    void SetValue(int value);

private:
    QLabel* label_;
    QProgressBar* bar_;
};
