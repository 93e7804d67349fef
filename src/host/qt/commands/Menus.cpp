// Fills menus from the entries of pop-ups, each time that one opens: its lists are those of that moment.
#include "host/qt/commands/Menus.h"

#include "host/qt/system/QtText.h"

#include <algorithm>

void Menus::Prepare(QtCommand& popup) {
    popup.Menu()->disconnect(&popup);
    QObject::connect(popup.Menu(), &QMenu::aboutToShow, &popup, [this, &popup] { Fill(popup); });
    Fill(popup);
}

void Menus::Fill(QtCommand& popup) {
    QMenu& menu = *popup.Menu();
    menu.clear();
    for (const LayoutEntry& entry : popup.Entries()) {
        QtCommand* command = table_.Find(entry.command);
        if (!command) continue;
        Watch(popup, *command);
        if (entry.beginGroup) menu.addSeparator();
        if (!command->Visible()) continue;
        if (command->Record().kind == CommandKind::List)
            AddList(menu, *command, command->Items());
        else if (command->Record().kind == CommandKind::Windows)
            AddList(menu, *command, windows_());
        else
            menu.addAction(command->Action());
    }
}

// A menu in which nothing is left to choose is not offered.
void Menus::Watch(QtCommand& popup, QtCommand& entry) {
    const auto show = [this, &popup] {
        const LayoutEntries& entries = popup.Entries();
        popup.SetVisible(entries.empty() ||
                         std::any_of(entries.begin(), entries.end(), [this](const LayoutEntry& other) {
                             const QtCommand* command = table_.Find(other.command);
                             return command && command->Visible();
                         }));
    };
    QObject::disconnect(&entry, &QtCommand::StateChanged, &popup, nullptr);
    QObject::connect(&entry, &QtCommand::StateChanged, &popup, show);
}

void Menus::AddList(QMenu& menu, QtCommand& command, const std::vector<std::string>& items) {
    if (items.empty()) {
        menu.addAction(QObject::tr("(none)"))->setEnabled(false);
        return;
    }
    for (std::size_t index = 0; index < items.size(); ++index) {
        QString text = Shown(items[index]).replace('&', "&&");
        if (index < 9) text = QString("&%1  %2").arg(index + 1).arg(text);
        QAction* action = menu.addAction(text);
        action->setEnabled(command.Enabled());
        QObject::connect(action, &QAction::triggered, &command,
                         [this, &command, index] { table_.Fire(command, static_cast<int>(index)); });
    }
}
