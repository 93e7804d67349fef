// Fills menus from the entries of pop-ups.
#pragma once

#include "host/qt/commands/CommandTable.h"

#include <functional>

class Menus {
public:
    // `windows` returns the captions of the open documents for the list of windows.
    Menus(CommandTable& table, std::function<std::vector<std::string>()> windows)
        : table_(table), windows_(std::move(windows)) {}

    // Makes the menu of a pop-up fill itself whenever it is about to be shown.
    void Prepare(QtCommand& popup);
    void Fill(QtCommand& popup);

private:
    void Watch(QtCommand& popup, QtCommand& entry);
    void AddList(QMenu& menu, QtCommand& command, const std::vector<std::string>& items);

    CommandTable& table_;
    std::function<std::vector<std::string>()> windows_;
};
