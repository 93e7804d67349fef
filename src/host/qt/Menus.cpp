// Fills menus from the entries of pop-ups, each time that one opens: its lists are those of that moment.
#include "host/qt/Menus.h"

#include "host/qt/QtText.h"

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
        if (entry.beginGroup) menu.addSeparator();
        if (command->Record().kind == CommandKind::List)
            AddList(menu, *command, command->Items());
        else if (command->Record().kind == CommandKind::Windows)
            AddList(menu, *command, windows_());
        else
            menu.addAction(command->Action());
    }
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
