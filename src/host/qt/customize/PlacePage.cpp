// The page on which the entries of a bar or menu are changed.
#include "host/qt/customize/PlacePage.h"

#include "host/qt/system/QtText.h"

#include <QDropEvent>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMimeData>
#include <algorithm>

EntryList::EntryList(QWidget* parent) : QListWidget(parent) {
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setDropIndicatorShown(true);
    setAccessibleName(tr("Entries of the bar or menu"));
}

void EntryList::dragEnterEvent(QDragEnterEvent* event) {
    if (event->source() == this || event->mimeData()->hasFormat(CommandMime)) event->acceptProposedAction();
    QListWidget::dragEnterEvent(event);
    event->accept();
}

void EntryList::dragMoveEvent(QDragMoveEvent* event) {
    QListWidget::dragMoveEvent(event); // for the line that shows the place
    event->setAccepted(event->source() == this || event->mimeData()->hasFormat(CommandMime));
}

int EntryList::RowAt(const QPoint& at) const {
    const QModelIndex index = indexAt(at);
    if (!index.isValid()) return count();
    return at.y() > visualRect(index).center().y() ? index.row() + 1 : index.row();
}

void EntryList::dropEvent(QDropEvent* event) {
    const int row = RowAt(event->position().toPoint());
    if (event->source() == this)
        emit EntryMoved(currentRow(), row);
    else if (event->mimeData()->hasFormat(CommandMime))
        emit CommandDropped(QString::fromUtf8(event->mimeData()->data(CommandMime)), row);
    // The list was filled anew: nothing is left to be moved.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setState(NoState);
}

PlacePage::PlacePage(CustomizeTarget& target, std::function<QtCommand*()> selected, QWidget* parent)
    : QWidget(parent), target_(target), selected_(std::move(selected)), places_(new QComboBox),
      entries_(new EntryList), add_(new QPushButton(tr("&Insert"))), remove_(new QPushButton(tr("&Remove"))),
      up_(new QPushButton(tr("&Up"))), down_(new QPushButton(tr("&Down"))),
      newBar_(new QPushButton(tr("&New Tool Bar…"))), deleteBar_(new QPushButton(tr("D&elete Tool Bar"))),
      group_(new QCheckBox(tr("Begins a &group"))) {
    auto* of = new QLabel(tr("&Bar or menu:"));
    of->setBuddy(places_);
    add_->setToolTip(tr("Inserts the command that is selected in the list"));
    auto* hint = new QLabel(tr("Drag commands from the list to here, or onto a bar of the main window."));
    hint->setWordWrap(true);
    hint->setEnabled(false);
    auto* grid = new QGridLayout(this);
    grid->addWidget(of, 0, 0, 1, 2);
    grid->addWidget(places_, 1, 0, 1, 2);
    grid->addWidget(entries_, 2, 0, 6, 1);
    int row = 2;
    for (QWidget* widget : {static_cast<QWidget*>(add_), static_cast<QWidget*>(remove_),
                            static_cast<QWidget*>(up_), static_cast<QWidget*>(down_)})
        grid->addWidget(widget, row++, 1);
    grid->addWidget(group_, row++, 1);
    grid->setRowStretch(row, 1);
    grid->addWidget(hint, 8, 0, 1, 2);
    auto* bars = new QHBoxLayout;
    bars->addWidget(newBar_);
    bars->addWidget(deleteBar_);
    bars->addStretch();
    grid->addLayout(bars, 9, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    Connect();
    Reload();
}

void PlacePage::Connect() {
    connect(places_, &QComboBox::currentIndexChanged, this, [this] { ShowEntries(0); });
    connect(entries_, &QListWidget::currentRowChanged, this, &PlacePage::ShowState);
    connect(entries_, &EntryList::CommandDropped, this,
            [this](const QString& command, int at) { Insert(Typed(command), at); });
    connect(entries_, &EntryList::EntryMoved, this, &PlacePage::Move);
    connect(add_, &QPushButton::clicked, this, [this] {
        if (const QtCommand* command = selected_()) Insert(command->Name(), entries_->currentRow() + 1);
    });
    connect(remove_, &QPushButton::clicked, this, &PlacePage::Remove);
    connect(up_, &QPushButton::clicked, this,
            [this] { Move(entries_->currentRow(), entries_->currentRow() - 1); });
    connect(down_, &QPushButton::clicked, this,
            [this] { Move(entries_->currentRow(), entries_->currentRow() + 2); });
    connect(group_, &QCheckBox::clicked, this, &PlacePage::SetGroup);
    connect(newBar_, &QPushButton::clicked, this, &PlacePage::NewBar);
    connect(deleteBar_, &QPushButton::clicked, this, &PlacePage::DeleteBar);
}

std::string PlacePage::Place() const { return Typed(places_->currentData().toString()); }

void PlacePage::Reload() {
    const QString shown = places_->currentData().toString();
    const int row = entries_->currentRow();
    {
        const QSignalBlocker quiet(places_);
        places_->clear();
        for (const CommandPlace& place : target_.Places())
            places_->addItem(place.popup ? tr("Menu: %1").arg(place.caption) : place.caption,
                             Shown(place.name));
        places_->setCurrentIndex(std::max(0, places_->findData(shown)));
    }
    ShowEntries(row);
}

void PlacePage::ShowEntries(int row) {
    entries_->clear();
    if (const LayoutEntries* entries = target_.EntriesOf(Place()))
        for (const LayoutEntry& entry : *entries) {
            const QtCommand* command = target_.Table().Find(entry.command);
            auto* item =
                new QListWidgetItem(command ? command->PlainCaption() : Shown(entry.command), entries_);
            if (command) item->setIcon(command->Action()->icon());
            // A group is shown as it is in a menu, by a line of its own above the entry.
            if (entry.beginGroup) item->setText("⎯⎯\n" + item->text());
        }
    entries_->setCurrentRow(std::clamp(row, -1, entries_->count() - 1));
    ShowState();
}

void PlacePage::ShowState() {
    const int row = entries_->currentRow();
    const LayoutEntries* entries = target_.EntriesOf(Place());
    remove_->setEnabled(row >= 0);
    up_->setEnabled(row > 0);
    down_->setEnabled(row >= 0 && row + 1 < entries_->count());
    group_->setEnabled(row > 0);
    group_->setChecked(entries && row >= 0 && (*entries)[static_cast<std::size_t>(row)].beginGroup);
    const auto places = target_.Places();
    deleteBar_->setEnabled(std::any_of(places.begin(), places.end(), [this](const CommandPlace& place) {
        return place.name == Place() && place.ownBar;
    }));
    SelectionChanged();
}

void PlacePage::SelectionChanged() {
    const QtCommand* command = selected_();
    // A menu within itself would never end.
    add_->setEnabled(command && target_.EntriesOf(Place()) && command->Name() != Place());
}

void PlacePage::Insert(const std::string& command, int row) {
    LayoutEntries* entries = target_.EntriesOf(Place());
    if (!entries || !target_.Table().Find(command) || command == Place()) return;
    const auto known = std::find_if(entries->begin(), entries->end(),
                                    [&](const LayoutEntry& entry) { return entry.command == command; });
    if (known != entries->end()) return Move(static_cast<int>(known - entries->begin()), row);
    const int at = std::clamp(row, 0, static_cast<int>(entries->size()));
    entries->insert(entries->begin() + at, LayoutEntry{command, false});
    target_.EntriesChanged(Place());
    ShowEntries(at);
}

void PlacePage::Move(int from, int to) {
    LayoutEntries* entries = target_.EntriesOf(Place());
    if (!entries || from < 0 || from >= static_cast<int>(entries->size())) return;
    to = std::clamp(to, 0, static_cast<int>(entries->size()));
    const LayoutEntry entry = (*entries)[static_cast<std::size_t>(from)];
    entries->erase(entries->begin() + from);
    if (to > from) --to;
    entries->insert(entries->begin() + to, entry);
    target_.EntriesChanged(Place());
    ShowEntries(to);
}

void PlacePage::Remove() {
    LayoutEntries* entries = target_.EntriesOf(Place());
    const int row = entries_->currentRow();
    if (!entries || row < 0) return;
    entries->erase(entries->begin() + row);
    target_.EntriesChanged(Place());
    ShowEntries(row);
}

void PlacePage::SetGroup(bool begins) {
    LayoutEntries* entries = target_.EntriesOf(Place());
    const int row = entries_->currentRow();
    if (!entries || row < 0) return;
    (*entries)[static_cast<std::size_t>(row)].beginGroup = begins;
    target_.EntriesChanged(Place());
    ShowEntries(row);
}

void PlacePage::NewBar() {
    bool given = false;
    const QString caption = QInputDialog::getText(this, tr("New Tool Bar"), tr("Name:"), QLineEdit::Normal,
                                                  tr("My Tool Bar"), &given)
                                .trimmed();
    if (!given || caption.isEmpty()) return;
    const std::string name = target_.AddBar(caption);
    Reload();
    places_->setCurrentIndex(places_->findData(Shown(name)));
    entries_->setFocus();
}

void PlacePage::DeleteBar() {
    target_.RemoveBar(Place());
    Reload();
}

#include "moc_PlacePage.cpp"
