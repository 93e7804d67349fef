// The Output pane: shows what the compiler and the running program print.
#pragma once

#include "host/DockStudio.h"

#include <QPlainTextEdit>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <string>

class frmOutput : public QObject, public Form {
public:
    // The oldest lines beyond this number are dropped.
    static constexpr int MostLines = 20000;

    // The only pane of this kind, created on first use.
    static frmOutput& Instance();
    frmOutput();
    ~frmOutput() override;

    void* NativeWidget() override;
    void Clear();
    // Adds a line. All lines of one turn of the event loop are shown together.
    void Append(const std::string& line);
    void ScrollToEnd();

private:
    void Flush();

    QPointer<QPlainTextEdit> text_;
    QStringList pending_;
    QTimer flush_;
    bool toEnd_ = false;
};
