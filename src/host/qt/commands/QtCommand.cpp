// One named command. Its shortcut is shown after the caption as text, because an action with the shortcut
// would take the key away from every widget.
#include "host/qt/commands/QtCommand.h"

#include "host/qt/system/QtText.h"

#include <QIcon>
#include <QKeySequence>

QtCommand::QtCommand(LayoutCommand record) : action_(new QAction(this)) { Replace(std::move(record)); }

QtCommand::~QtCommand() = default;

void QtCommand::Replace(LayoutCommand record) {
    record_ = std::move(record);
    shortcuts_.clear();
    for (const std::string& text : record_.shortcuts) {
        const QKeySequence sequence = QKeySequence::fromString(Shown(text), QKeySequence::PortableText);
        if (sequence.count() == 1) shortcuts_.push_back(sequence[0]);
    }
    if (record_.kind == CommandKind::Popup && !menu_) {
        menu_ = std::make_unique<QMenu>();
        action_->setMenu(menu_.get());
    }
    action_->setData(Shown(record_.name));
    Show();
}

QString QtCommand::PlainCaption() const {
    QString text = Shown(record_.caption);
    text.replace("&&", "\x01").remove('&').replace('\x01', '&').remove(QChar(0x2026));
    return text.trimmed();
}

void QtCommand::Show() {
    QString caption = Shown(record_.caption);
    QString tip = record_.tip.empty() ? PlainCaption() : Shown(record_.tip);
    if (!shortcuts_.empty()) {
        const QString keys = QKeySequence(shortcuts_.front()).toString(QKeySequence::NativeText);
        caption += '\t' + keys;
        tip += " (" + keys + ')';
    }
    action_->setText(caption);
    action_->setIconText(PlainCaption());
    action_->setToolTip(tip);
    if (!record_.icon.empty()) action_->setIcon(QIcon::fromTheme(Shown(record_.icon)));
    action_->setCheckable(record_.checked.has_value());
    action_->setChecked(record_.checked.value_or(false));
    action_->setVisible(record_.visible);
    if (menu_) menu_->setTitle(Shown(record_.caption));
    emit StateChanged();
}

void QtCommand::SetShortcuts(const std::vector<QKeyCombination>& keys) {
    shortcuts_ = keys;
    record_.shortcuts.clear();
    for (const QKeyCombination key : keys)
        record_.shortcuts.push_back(Typed(QKeySequence(key).toString(QKeySequence::PortableText)));
    Show();
}

void QtCommand::SetCaption(const std::string& caption) {
    if (caption == record_.caption) return;
    record_.caption = caption;
    Show();
}

void QtCommand::SetEnabled(bool enabled) {
    if (enabled == action_->isEnabled()) return;
    action_->setEnabled(enabled);
    emit StateChanged();
}

void QtCommand::SetChecked(bool checked) {
    record_.checked = checked;
    action_->setCheckable(true);
    action_->setChecked(checked);
}

void QtCommand::SetVisible(bool visible) {
    if (visible == record_.visible) return;
    record_.visible = visible;
    action_->setVisible(visible);
    emit StateChanged();
}

void QtCommand::SetItems(const std::vector<std::string>& items) {
    if (record_.kind == CommandKind::Item) record_.kind = CommandKind::List;
    items_ = items;
    emit ItemsChanged();
}

void QtCommand::SetText(const std::string& text) {
    if (text == text_ && marked_.hot.empty()) return;
    SetMarkedText(text, "", "", 0);
}

void QtCommand::SetMarkedText(const std::string& left, const std::string& hot, const std::string& right,
                              int colour) {
    text_ = left + hot + right;
    marked_ = {left, hot, right, colour};
    emit TextShown();
}

#include "moc_QtCommand.cpp"
