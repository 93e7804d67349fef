// What the document area shows while no document is open: a few commands with their keys.
#pragma once

#include "host/qt/commands/CommandTable.h"

#include <QWidget>

class StartPage : public QWidget {
public:
    StartPage(const std::vector<std::string>& commands, CommandTable& table);
};
