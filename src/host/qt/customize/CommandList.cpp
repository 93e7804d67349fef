// All commands with their keys and menus, narrowed by words and by menu.
#include "host/qt/customize/CommandList.h"

#include "host/Outside.h"
#include "host/qt/system/QtText.h"

#include <QDrag>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QMimeData>
#include <QPixmap>
#include <QStyle>
#include <QVBoxLayout>

namespace {

enum Column { Name, Menu, Keys, Columns };

constexpr QChar Into(0x25B8); // separates a menu from a menu within it

// A list whose items are dragged as commands.
class Tree : public QTreeWidget {
protected:
    QStringList mimeTypes() const override { return {CommandMime}; }
    QMimeData* mimeData(const QList<QTreeWidgetItem*>& items) const override {
        if (items.isEmpty()) return nullptr;
        auto* mime = new QMimeData;
        mime->setData(CommandMime, items.front()->data(Name, Qt::UserRole).toString().toUtf8());
        return mime;
    }
    // Only the name is dragged, beside the pointer: a picture of the whole row would cover the target.
    void startDrag(Qt::DropActions) override {
        QMimeData* mime = currentItem() ? mimeData({currentItem()}) : nullptr;
        if (!mime) return;
        QLabel label(currentItem()->text(Name));
        label.setFrameShape(QFrame::StyledPanel);
        label.setAutoFillBackground(true);
        label.setMargin(3);
        label.adjustSize();
        auto* drag = new QDrag(this);
        drag->setMimeData(mime);
        drag->setPixmap(label.grab());
        drag->setHotSpot({-14, -14});
        const NestedLoop loop;
        drag->exec(Qt::CopyAction);
    }
};

QString KeysOf(const QtCommand& command) {
    QStringList keys;
    for (const QKeyCombination key : command.Shortcuts())
        keys << QKeySequence(key).toString(QKeySequence::NativeText);
    return keys.join(", ");
}

}

CommandList::CommandList(CustomizeTarget& target, QWidget* parent)
    : QWidget(parent), target_(target), table_(target.Table()), words_(new QLineEdit), menu_(new QComboBox),
      tree_(new Tree) {
    words_->setPlaceholderText(tr("Words of the name, or a key such as Ctrl+K"));
    words_->setClearButtonEnabled(true);
    tree_->setHeaderLabels({tr("Command"), tr("Where"), tr("Keys")});
    tree_->setRootIsDecorated(false);
    tree_->setUniformRowHeights(true);
    tree_->setDragEnabled(true);
    tree_->setDragDropMode(QAbstractItemView::DragOnly);
    tree_->setAllColumnsShowFocus(true);
    tree_->setAccessibleName(tr("Commands"));
    auto* search = new QLabel(tr("&Search:"));
    search->setBuddy(words_);
    auto* of = new QLabel(tr("&Where:"));
    of->setBuddy(menu_);
    auto* row = new QHBoxLayout;
    row->addWidget(search);
    row->addWidget(words_, 1);
    row->addWidget(of);
    row->addWidget(menu_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(row);
    column->addWidget(tree_, 1);
    connect(words_, &QLineEdit::textChanged, this, &CommandList::Narrow);
    connect(menu_, &QComboBox::currentIndexChanged, this, &CommandList::Narrow);
    connect(tree_, &QTreeWidget::currentItemChanged, this, &CommandList::SelectionChanged);
    Reload();
}

// Returns the first menu with a command, preceded by the menus that contain this menu.
void CommandList::FindMenus(const std::string& place, const QString& path,
                            std::map<std::string, QString>& menus) {
    const LayoutEntries* entries = target_.EntriesOf(place);
    if (!entries) return;
    for (const LayoutEntry& entry : *entries) {
        const QtCommand* command = table_.Find(entry.command);
        if (!command || !menus.emplace(entry.command, path).second || !command->Menu()) continue;
        FindMenus(entry.command,
                  path.isEmpty() ? command->PlainCaption()
                                 : path + ' ' + Into + ' ' + command->PlainCaption(),
                  menus);
    }
}

void CommandList::Reload() {
    const QtCommand* selected = Selected();
    const std::string name = selected ? selected->Name() : std::string();
    std::map<std::string, QString> menus;
    for (const CommandPlace& place : target_.Places())
        if (place.kind == BarKind::Menu && !place.popup) FindMenus(place.name, {}, menus);
    tree_->clear();
    QStringList tops;
    // Names begin in one line, with an icon or without.
    QPixmap empty(tree_->style()->pixelMetric(QStyle::PM_SmallIconSize), 1);
    empty.fill(Qt::transparent);
    const QIcon nothing(empty);
    for (const auto& command : table_.All()) {
        const CommandKind kind = command->Record().kind;
        const bool shows =
            kind == CommandKind::Status || kind == CommandKind::Progress || kind == CommandKind::Clock;
        // What only shows something, or has no routine, is none to choose.
        if (!command->Visible() || (shows && command->Shortcuts().empty())) continue;
        auto* item = new QTreeWidgetItem(tree_);
        item->setText(Name, command->Menu() ? tr("%1 (menu)").arg(command->PlainCaption())
                                            : command->PlainCaption());
        const QIcon icon = command->Action()->icon();
        item->setIcon(Name, icon.isNull() ? nothing : icon);
        item->setText(Menu, menus[command->Name()]);
        item->setText(Keys, KeysOf(*command));
        item->setData(Name, Qt::UserRole, Shown(command->Name()));
        item->setToolTip(Name, Shown(command->Name()));
        const QString top = item->text(Menu).section(Into, 0, 0).trimmed();
        if (!top.isEmpty() && !tops.contains(top)) tops << top;
    }
    const QString shown = menu_->currentIndex() > 0 ? menu_->currentText() : QString();
    menu_->clear();
    menu_->addItem(tr("Everywhere"));
    menu_->addItems(tops);
    if (!shown.isEmpty()) menu_->setCurrentText(shown);
    tree_->sortItems(Name, Qt::AscendingOrder);
    for (int at = 0; at < Columns; ++at) tree_->resizeColumnToContents(at);
    name.empty() ? tree_->setCurrentItem(tree_->topLevelItem(0)) : Select(name);
}

void CommandList::ShowKeys() {
    for (int at = 0; at < tree_->topLevelItemCount(); ++at) {
        QTreeWidgetItem* item = tree_->topLevelItem(at);
        if (const QtCommand* command = table_.Find(Typed(item->data(Name, Qt::UserRole).toString())))
            item->setText(Keys, KeysOf(*command));
    }
}

QtCommand* CommandList::Selected() const {
    const QTreeWidgetItem* item = tree_->currentItem();
    return item ? table_.Find(Typed(item->data(Name, Qt::UserRole).toString())) : nullptr;
}

void CommandList::Select(const std::string& name) {
    for (int at = 0; at < tree_->topLevelItemCount(); ++at) {
        QTreeWidgetItem* item = tree_->topLevelItem(at);
        if (Typed(item->data(Name, Qt::UserRole).toString()) != name) continue;
        tree_->setCurrentItem(item);
        tree_->scrollToItem(item);
    }
}

void CommandList::Narrow() {
    const QStringList words = words_->text().split(' ', Qt::SkipEmptyParts);
    const QString menu = menu_->currentIndex() > 0 ? menu_->currentText() : QString();
    QTreeWidgetItem* first = nullptr;
    for (int at = 0; at < tree_->topLevelItemCount(); ++at) {
        QTreeWidgetItem* item = tree_->topLevelItem(at);
        const QString text =
            item->text(Name) + ' ' + item->data(Name, Qt::UserRole).toString() + ' ' + item->text(Keys);
        bool shown = menu.isEmpty() || item->text(Menu).section(Into, 0, 0).trimmed() == menu;
        for (const QString& word : words) shown = shown && text.contains(word, Qt::CaseInsensitive);
        item->setHidden(!shown);
        if (shown && !first) first = item;
    }
    QTreeWidgetItem* current = tree_->currentItem();
    if (!current || current->isHidden()) tree_->setCurrentItem(first);
}

#include "moc_CommandList.cpp"
