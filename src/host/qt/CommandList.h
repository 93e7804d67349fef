// All commands with their keys, narrowed by words and by category. A command can be dragged out of it.
#pragma once

#include "host/qt/CommandTable.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTreeWidget>

class CommandList : public QWidget {
    Q_OBJECT

public:
    CommandList(CommandTable& table, QWidget* parent);

    // Null where none is selected.
    QtCommand* Selected() const;
    void Select(const std::string& name);
    // Shows the keys as they are now, or after a new arrangement the commands as well.
    void ShowKeys();
    void Reload();

signals:
    void SelectionChanged();

private:
    void Narrow();

    CommandTable& table_;
    QLineEdit* words_;
    QComboBox* category_;
    QTreeWidget* tree_;
};
