// What a command is in a tool bar or the status bar when it is more than a button.
#pragma once

#include "host/qt/commands/CommandTable.h"

#include <QComboBox>

// A combo box for a command. The owner is notified of text that the user selects or enters, not of text that
// the program sets.
class CommandCombo : public QComboBox {
    Q_OBJECT

public:
    CommandCombo(QtCommand& command, CommandTable& table, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void ShowItems();
    void ShowText();
    void Changed(bool committed);

    QtCommand& command_;
    CommandTable& table_;
    bool showing_ = false;     // the program sets the text
    bool uncommitted_ = false; // the user typed and has not entered it
    QString before_;           // what stood there when the user began to type
};

// The widget of a status command: a text, a progress bar or a clock.
QWidget* MakeStatusWidget(QtCommand& command, QWidget* parent);
