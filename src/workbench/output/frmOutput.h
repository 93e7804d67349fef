// The Output pane: what the compiler and the running program print.
#pragma once

#include "host/DockStudio.h"

#include <QPlainTextEdit>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <string>

class frmOutput : public QObject, public Form {
public:
    // The oldest lines go when there are more than this many.
    static constexpr int MostLines = 20000;

    // The one pane, made on first use.
    static frmOutput& Instance();
    frmOutput();
    ~frmOutput() override;

    void* NativeWidget() override;
    void Clear();
    // Adds a line. It is shown, with all others of its turn, when the event loop comes round.
    void Append(const std::string& line);
    void ScrollToEnd();

private:
    void Flush();

    QPointer<QPlainTextEdit> text_;
    QStringList pending_;
    QTimer flush_;
    bool toEnd_ = false;
};
