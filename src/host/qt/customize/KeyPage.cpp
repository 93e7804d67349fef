// The page on which the keys of one command are changed.
#include "host/qt/customize/KeyPage.h"

#include "host/qt/commands/ShortcutFilter.h"
#include "host/qt/system/QtText.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QKeySequence>

namespace {

QString Text(QKeyCombination key) { return QKeySequence(key).toString(QKeySequence::NativeText); }

bool IsModifier(int key) {
    return key == Qt::Key_Control || key == Qt::Key_Shift || key == Qt::Key_Alt || key == Qt::Key_Meta ||
           key == Qt::Key_AltGr || key == Qt::Key_unknown || key == 0;
}

// A key that writes something when it is pressed alone.
bool Writes(QKeyCombination key) {
    return !(key.keyboardModifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) &&
           key.key() < Qt::Key_Escape;
}

}

KeyField::KeyField(QWidget* parent) : QLineEdit(parent) {
    setReadOnly(true);
    setPlaceholderText(tr("Press a key here"));
    setAccessibleName(tr("New key"));
    setContextMenuPolicy(Qt::NoContextMenu);
}

void KeyField::Clear() {
    key_.reset();
    clear();
    emit KeyChanged();
}

bool KeyField::event(QEvent* event) {
    // No key is anyone else's while this field waits for one.
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        auto* press = static_cast<QKeyEvent*>(event);
        // Tab alone leads on to the buttons, and Escape out of the window.
        const bool leaves =
            press->key() == Qt::Key_Tab || press->key() == Qt::Key_Backtab || press->key() == Qt::Key_Escape;
        if (!leaves || press->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) {
            keyPressEvent(press);
            return true;
        }
    }
    return QLineEdit::event(event);
}

void KeyField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return QLineEdit::keyPressEvent(event);
    event->accept();
    if (IsModifier(event->key())) return;
    key_ = ShortcutFilter::KeyOf(*event);
    setText(Text(*key_));
    emit KeyChanged();
}

KeyPage::KeyPage(CustomizeTarget& target, QWidget* parent)
    : QWidget(parent), target_(target), name_(new QLabel), keys_(new QListWidget), field_(new KeyField),
      word_(new QLabel), assign_(new QPushButton(tr("Assi&gn"))), remove_(new QPushButton(tr("&Remove"))),
      default_(new QPushButton(tr("&Default"))) {
    name_->setTextFormat(Qt::PlainText);
    QFont bold = name_->font();
    bold.setBold(true);
    name_->setFont(bold);
    name_->setWordWrap(true);
    word_->setTextFormat(Qt::PlainText);
    word_->setWordWrap(true);
    word_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    keys_->setAccessibleName(tr("Keys of the command"));
    default_->setToolTip(tr("The keys that the command had at first"));
    auto* has = new QLabel(tr("&Keys:"));
    has->setBuddy(keys_);
    auto* pressed = new QLabel(tr("&New key:"));
    pressed->setBuddy(field_);
    auto* grid = new QGridLayout(this);
    grid->addWidget(name_, 0, 0, 1, 2);
    grid->addWidget(has, 1, 0, 1, 2);
    grid->addWidget(keys_, 2, 0, 3, 1);
    grid->addWidget(remove_, 2, 1);
    grid->addWidget(default_, 3, 1);
    grid->addWidget(pressed, 5, 0, 1, 2);
    grid->addWidget(field_, 6, 0);
    grid->addWidget(assign_, 6, 1);
    grid->addWidget(word_, 7, 0, 1, 2);
    grid->setRowStretch(4, 1);
    grid->setRowMinimumHeight(7, 4 * fontMetrics().height());
    Connect();
    SetCommand(nullptr);
}

void KeyPage::Connect() {
    connect(field_, &KeyField::KeyChanged, this, &KeyPage::ShowConflict);
    connect(keys_, &QListWidget::currentRowChanged, this,
            [this](int row) { remove_->setEnabled(command_ && row >= 0); });
    connect(assign_, &QPushButton::clicked, this, &KeyPage::Assign);
    connect(remove_, &QPushButton::clicked, this, &KeyPage::Remove);
    connect(default_, &QPushButton::clicked, this, &KeyPage::PutBack);
}

void KeyPage::SetCommand(QtCommand* command) {
    command_ = command;
    name_->setText(command ? command->PlainCaption() : tr("Select a command in the list."));
    field_->setEnabled(command);
    default_->setEnabled(command && target_.Factory(command->Name()));
    field_->Clear();
    ShowKeys();
}

void KeyPage::ShowKeys() {
    keys_->clear();
    if (command_)
        for (const QKeyCombination key : command_->Shortcuts()) keys_->addItem(Text(key));
    keys_->setCurrentRow(keys_->count() > 0 ? 0 : -1);
    remove_->setEnabled(keys_->count() > 0);
}

void KeyPage::ShowConflict() {
    assign_->setEnabled(command_ && field_->Key());
    word_->clear();
    if (!command_ || !field_->Key()) return;
    const QKeyCombination key = *field_->Key();
    const QtCommand* owner = target_.Table().OwnerOf(key);
    if (Writes(key)) {
        assign_->setEnabled(false);
        word_->setText(tr("%1 writes a character. Hold down Ctrl or Alt with it.").arg(Text(key)));
    } else if (owner == command_) {
        assign_->setEnabled(false);
        word_->setText(tr("%1 is a key of this command already.").arg(Text(key)));
    } else if (owner) {
        word_->setText(tr("%1 belongs to “%2”. If you assign it here, it is taken away from there.")
                           .arg(Text(key), owner->PlainCaption()));
    } else {
        word_->setText(tr("%1 is free.").arg(Text(key)));
    }
}

void KeyPage::TakeFrom(QKeyCombination key, QtCommand& from) {
    std::vector<QKeyCombination> keys = from.Shortcuts();
    std::erase(keys, key);
    from.SetShortcuts(keys);
}

void KeyPage::Assign() {
    if (!command_ || !field_->Key()) return;
    const QKeyCombination key = *field_->Key();
    if (QtCommand* owner = target_.Table().OwnerOf(key)) TakeFrom(key, *owner);
    std::vector<QKeyCombination> keys = command_->Shortcuts();
    keys.push_back(key);
    command_->SetShortcuts(keys);
    field_->Clear();
    ShowKeys();
    emit KeysChanged();
}

void KeyPage::Remove() {
    const int row = keys_->currentRow();
    if (!command_ || row < 0) return;
    TakeFrom(command_->Shortcuts()[static_cast<std::size_t>(row)], *command_);
    ShowKeys();
    emit KeysChanged();
}

// Takes the key back from the command that has it now.
void KeyPage::PutBack() {
    const LayoutCommand* record = command_ ? target_.Factory(command_->Name()) : nullptr;
    if (!record) return;
    const QtCommand first(*record);
    for (const QKeyCombination key : first.Shortcuts()) {
        QtCommand* owner = target_.Table().OwnerOf(key);
        if (owner && owner != command_) TakeFrom(key, *owner);
    }
    command_->SetShortcuts(first.Shortcuts());
    field_->Clear();
    ShowKeys();
    emit KeysChanged();
}

#include "moc_KeyPage.cpp"
