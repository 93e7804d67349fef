// All commands of the main window by name, and the one place from which they fire.
#pragma once

#include "host/qt/commands/QtCommand.h"

#include <memory>
#include <vector>

class CommandTable {
public:
    // Null for an unknown name.
    QtCommand* Find(const std::string& name) const;
    // Adds a command, whose name must be new.
    QtCommand& Add(LayoutCommand record);
    // Makes the table hold exactly these commands. One that is there already keeps its object and state.
    void Replace(const std::vector<LayoutCommand>& records);
    const std::vector<std::unique_ptr<QtCommand>>& All() const { return commands_; }

    // Called when a command is chosen; never for a disabled one.
    void Fire(QtCommand& command, int item = -1) const;
    void FireByKey(QtCommand& command) const;
    // The enabled command of a key, null where there is none.
    QtCommand* OfKey(QKeyCombination key) const;

    // Returns the command with a key, enabled or not; null if no command has it.
    QtCommand* OwnerOf(QKeyCombination key) const;

    DockStudioEvents* events = nullptr; // written by the frame alone

private:
    void Connect(QtCommand& command);

    std::vector<std::unique_ptr<QtCommand>> commands_;
};
