// All commands with their keys, narrowed by words and by category.
#include "host/qt/CommandList.h"

#include "host/qt/CustomizeTarget.h"
#include "host/qt/QtText.h"

#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QMimeData>
#include <QVBoxLayout>

namespace {

enum Column { Name, Category, Keys, Columns };

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
};

QString KeysOf(const QtCommand& command) {
    QStringList keys;
    for (const QKeyCombination key : command.Shortcuts())
        keys << QKeySequence(key).toString(QKeySequence::NativeText);
    return keys.join(", ");
}

}

CommandList::CommandList(CommandTable& table, QWidget* parent)
    : QWidget(parent), table_(table), words_(new QLineEdit), category_(new QComboBox), tree_(new Tree) {
    words_->setPlaceholderText(tr("Words of the name, or a key such as Ctrl+K"));
    words_->setClearButtonEnabled(true);
    tree_->setHeaderLabels({tr("Command"), tr("Category"), tr("Keys")});
    tree_->setRootIsDecorated(false);
    tree_->setUniformRowHeights(true);
    tree_->setDragEnabled(true);
    tree_->setDragDropMode(QAbstractItemView::DragOnly);
    tree_->setAllColumnsShowFocus(true);
    tree_->setAccessibleName(tr("Commands"));
    auto* search = new QLabel(tr("&Search:"));
    search->setBuddy(words_);
    auto* of = new QLabel(tr("C&ategory:"));
    of->setBuddy(category_);
    auto* row = new QHBoxLayout;
    row->addWidget(search);
    row->addWidget(words_, 1);
    row->addWidget(of);
    row->addWidget(category_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(row);
    column->addWidget(tree_, 1);
    connect(words_, &QLineEdit::textChanged, this, &CommandList::Narrow);
    connect(category_, &QComboBox::currentIndexChanged, this, &CommandList::Narrow);
    connect(tree_, &QTreeWidget::currentItemChanged, this, &CommandList::SelectionChanged);
    Reload();
}

void CommandList::Reload() {
    const QtCommand* selected = Selected();
    const std::string name = selected ? selected->Name() : std::string();
    tree_->clear();
    QStringList categories;
    for (const auto& command : table_.All()) {
        auto* item = new QTreeWidgetItem(tree_);
        item->setText(Name, command->PlainCaption());
        item->setIcon(Name, command->Action()->icon());
        item->setText(Category, Shown(command->Category()));
        item->setText(Keys, KeysOf(*command));
        item->setData(Name, Qt::UserRole, Shown(command->Name()));
        item->setToolTip(Name, Shown(command->Name()));
        if (!categories.contains(item->text(Category))) categories << item->text(Category);
    }
    categories.removeAll({});
    categories.sort();
    const QString shown = category_->currentIndex() > 0 ? category_->currentText() : QString();
    category_->clear();
    category_->addItem(tr("All"));
    category_->addItems(categories);
    if (!shown.isEmpty()) category_->setCurrentText(shown);
    tree_->sortItems(Name, Qt::AscendingOrder);
    for (int at = 0; at < Columns; ++at) tree_->resizeColumnToContents(at);
    Select(name);
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
    const QString category = category_->currentIndex() > 0 ? category_->currentText() : QString();
    QTreeWidgetItem* first = nullptr;
    for (int at = 0; at < tree_->topLevelItemCount(); ++at) {
        QTreeWidgetItem* item = tree_->topLevelItem(at);
        const QString text = item->text(Name) + ' ' + item->data(Name, Qt::UserRole).toString() + ' ' +
                             item->text(Category) + ' ' + item->text(Keys);
        bool shown = category.isEmpty() || item->text(Category) == category;
        for (const QString& word : words) shown = shown && text.contains(word, Qt::CaseInsensitive);
        item->setHidden(!shown);
        if (shown && !first) first = item;
    }
    QTreeWidgetItem* current = tree_->currentItem();
    if (!current || current->isHidden()) tree_->setCurrentItem(first);
}

#include "moc_CommandList.cpp"
