// All commands with their keys and menus, filtered by words and by menu. A command can be dragged out of the
// list.
#pragma once

#include "host/qt/customize/CustomizeTarget.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTreeWidget>
#include <map>

class CommandList : public QWidget {
    Q_OBJECT

public:
    CommandList(CustomizeTarget& target, QWidget* parent);

    // Returns null if no command is selected.
    QtCommand* Selected() const;
    void Select(const std::string& name);
    // Shows the keys as they are now, or after a new arrangement the commands as well.
    void ShowKeys();
    void Reload();

signals:
    void SelectionChanged();

private:
    void Narrow();
    void FindMenus(const std::string& place, const QString& path, std::map<std::string, QString>& menus);

    CustomizeTarget& target_;
    CommandTable& table_;
    QLineEdit* words_;
    QComboBox* menu_;
    QTreeWidget* tree_;
};
