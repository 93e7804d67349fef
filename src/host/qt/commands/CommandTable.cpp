// All commands of the main window by name, and the one place from which they fire.
#include "host/qt/commands/CommandTable.h"

#include <QPointer>
#include <algorithm>

QtCommand* CommandTable::Find(const std::string& name) const {
    const auto at = std::find_if(commands_.begin(), commands_.end(),
                                 [&](const auto& command) { return command->Name() == name; });
    return at == commands_.end() ? nullptr : at->get();
}

QtCommand& CommandTable::Add(LayoutCommand record) {
    commands_.push_back(std::make_unique<QtCommand>(std::move(record)));
    Connect(*commands_.back());
    return *commands_.back();
}

void CommandTable::Connect(QtCommand& command) {
    QObject::connect(command.Action(), &QAction::triggered, &command, [this, &command] {
        // The check mark belongs to the routine of the command, not to the click.
        command.Action()->setChecked(command.Checked());
        Fire(command);
    });
}

void CommandTable::Replace(const std::vector<LayoutCommand>& records) {
    std::vector<std::unique_ptr<QtCommand>> old = std::move(commands_);
    commands_.clear();
    for (const LayoutCommand& record : records) {
        const auto at = std::find_if(old.begin(), old.end(), [&](const auto& command) {
            return command && command->Name() == record.name && command->Record().kind == record.kind;
        });
        if (at == old.end()) {
            Add(record);
        } else {
            (*at)->Replace(record);
            commands_.push_back(std::move(*at));
        }
    }
    // The click that loads a layout may come from a command that the layout lacks.
    for (auto& command : old)
        if (command) command.release()->deleteLater();
}

void CommandTable::Fire(QtCommand& command, int item) const {
    if (events && command.Enabled()) events->DS_CommandClick(command, item);
}

void CommandTable::FireByKey(QtCommand& command) const {
    const QPointer<QtCommand> fired(&command); // an arrangement that it loads may lack it
    command.SetFiredByKey(true);
    Fire(command);
    if (fired) fired->SetFiredByKey(false);
}

QtCommand* CommandTable::OwnerOf(QKeyCombination key) const {
    for (const auto& command : commands_) {
        const auto& keys = command->Shortcuts();
        if (std::find(keys.begin(), keys.end(), key) != keys.end()) return command.get();
    }
    return nullptr;
}

QtCommand* CommandTable::OfKey(QKeyCombination key) const {
    for (const auto& command : commands_) {
        const auto& keys = command->Shortcuts();
        if (command->Enabled() && std::find(keys.begin(), keys.end(), key) != keys.end())
            return command.get();
    }
    return nullptr;
}
