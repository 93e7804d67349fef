// What a command is in a tool bar or the status bar when it is more than a button.
#include "host/qt/commands/CommandWidgets.h"

#include "host/qt/commands/StatusText.h"
#include "host/qt/system/QtText.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QProgressBar>
#include <QScopedValueRollback>
#include <QTime>
#include <QTimer>

namespace {

constexpr int SideMargin = 6;
constexpr int ClockMilliseconds = 1000;

QWidget* MakeLabel(QtCommand& command, QWidget* parent) {
    auto* label = new StatusText(command.Record().width, parent);
    label->setAccessibleDescription(command.PlainCaption());
    const auto show = [&command, label] {
        const MarkedText& text = command.Marked();
        const QColor colour(text.colour & 0xFF, (text.colour >> 8) & 0xFF, (text.colour >> 16) & 0xFF);
        label->Show(Shown(text.left), Shown(text.hot), Shown(text.right), colour);
    };
    QObject::connect(&command, &QtCommand::TextShown, label, show);
    show();
    return label;
}

QWidget* MakeProgress(QtCommand& command, QWidget* parent) {
    auto* bar = new QProgressBar(parent);
    bar->setMaximumWidth(std::max(100, command.Record().width));
    bar->setTextVisible(false);
    bar->setAccessibleName(command.PlainCaption());
    const auto show = [&command, bar] { bar->setValue(Shown(command.Text()).toInt()); };
    QObject::connect(&command, &QtCommand::TextShown, bar, show);
    show();
    return bar;
}

QWidget* MakeClock(QtCommand& command, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setContentsMargins(SideMargin, 0, SideMargin, 0);
    label->setAccessibleDescription(command.PlainCaption()); // its name is the time that it shows
    const auto show = [label] {
        label->setText(QLocale().toString(QTime::currentTime(), QLocale::ShortFormat));
    };
    auto* timer = new QTimer(label);
    QObject::connect(timer, &QTimer::timeout, label, show);
    timer->start(ClockMilliseconds);
    show();
    return label;
}

}

CommandCombo::CommandCombo(QtCommand& command, CommandTable& table, QWidget* parent)
    : QComboBox(parent), command_(command), table_(table) {
    const LayoutCommand& record = command.Record();
    setEditable(record.kind == CommandKind::EditCombo);
    setInsertPolicy(QComboBox::NoInsert);
    setMinimumWidth(record.width > 0 ? record.width : 160);
    setAccessibleName(command.PlainCaption());
    setProperty("command", Shown(record.name));
    setToolTip(command.PlainCaption());
    setFocusPolicy(Qt::StrongFocus);
    if (isEditable()) {
        lineEdit()->setPlaceholderText(command.PlainCaption());
        lineEdit()->setAccessibleName(command.PlainCaption());
        setCompleter(nullptr);
        connect(lineEdit(), &QLineEdit::returnPressed, this, [this] { Changed(true); });
        // Leaving the box commits what was typed and not entered yet.
        connect(lineEdit(), &QLineEdit::editingFinished, this, [this] {
            if (uncommitted_) Changed(true);
        });
    }
    connect(this, &QComboBox::activated, this, [this] { Changed(true); });
    connect(this, &QComboBox::editTextChanged, this, [this] { Changed(false); });
    connect(&command, &QtCommand::ItemsChanged, this, &CommandCombo::ShowItems);
    connect(&command, &QtCommand::TextShown, this, &CommandCombo::ShowText);
    connect(&command, &QtCommand::StateChanged, this, [this] { setEnabled(command_.Enabled()); });
    ShowItems();
}

// The toolkit's box takes Escape for a letter to look for.
void CommandCombo::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        if (uncommitted_) setEditText(before_);
        uncommitted_ = false;
        return event->ignore();
    }
    QComboBox::keyPressEvent(event);
}

void CommandCombo::ShowItems() {
    {
        const QScopedValueRollback<bool> guard(showing_, true);
        clear();
        for (const std::string& item : command_.Items()) addItem(Shown(item));
    }
    ShowText();
}

void CommandCombo::ShowText() {
    const QScopedValueRollback<bool> guard(showing_, true);
    const QString text = Shown(command_.Text());
    if (isEditable())
        setEditText(text);
    else
        setCurrentIndex(findText(text));
}

void CommandCombo::Changed(bool committed) {
    if (showing_) return;
    const std::string text = Typed(currentText());
    const bool differs = text != command_.Text();
    if (differs && !uncommitted_) before_ = Shown(command_.Text());
    if (differs) command_.SetText(text);
    uncommitted_ = !committed && (uncommitted_ || differs);
    if (!table_.events) return;
    if (differs) table_.events->DS_ComboTextChanged(command_);
    if (committed) table_.events->DS_ComboTextCommitted(command_);
}

QWidget* MakeStatusWidget(QtCommand& command, QWidget* parent) {
    QWidget* widget = command.Record().kind == CommandKind::Progress ? MakeProgress(command, parent)
                      : command.Record().kind == CommandKind::Clock  ? MakeClock(command, parent)
                                                                     : MakeLabel(command, parent);
    QObject::connect(&command, &QtCommand::StateChanged, widget,
                     [&command, widget] { widget->setVisible(command.Visible()); });
    return widget;
}

#include "moc_CommandWidgets.cpp"
