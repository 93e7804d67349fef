// The splash window of a start that takes longer than a blink.
#pragma once

#include <QElapsedTimer>
#include <QFrame>
#include <memory>

class QLabel;

class frmSplash : public QFrame {
public:
    // Shows the line on the splash window, which appears once the start has taken long enough to be noticed.
    static void SetStatus(const std::string& text);
    static void Unload();

private:
    frmSplash();

    QLabel* status_;
};
