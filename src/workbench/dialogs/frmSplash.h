// The splash window of a slow start.
#pragma once

#include <QElapsedTimer>
#include <QFrame>
#include <memory>

class QLabel;

class frmSplash : public QFrame {
public:
    // Shows the text in the splash window, which appears once the start takes noticeably long.
    static void SetStatus(const std::string& text);
    static void Unload();

private:
    frmSplash();

    QLabel* status_;
};
