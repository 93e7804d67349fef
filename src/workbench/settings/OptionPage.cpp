#include "workbench/settings/OptionPage.h"

#include "workbench/parts/Shown.h"

#include <QRadioButton>
#include <QVBoxLayout>

namespace {

enum : int { LabelColumn, FieldColumn, UnitColumn, RestColumn, Columns };

constexpr int GroupSpacing = 12; // pixels
constexpr int IndentSpacing = 24;

// The caption with a mark before a letter that begins a word, or any letter, that is not taken; the letter is
// taken then. The caption as it is if it has a mark, or if no letter is left.
QString WithMnemonic(const QString& caption, std::set<QChar>& taken) {
    const auto mark = caption.indexOf('&');
    if (mark >= 0 && mark + 1 < caption.size() && caption[mark + 1] != '&') {
        taken.insert(caption[mark + 1].toLower());
        return caption;
    }
    for (const bool wordsOnly : {true, false})
        for (int at = 0; at < caption.size(); ++at) {
            const bool begins = at == 0 || !caption[at - 1].isLetter();
            if (!caption[at].isLetter() || (wordsOnly && !begins)) continue;
            if (!taken.insert(caption[at].toLower()).second) continue;
            QString marked = caption;
            return marked.insert(at, '&');
        }
    return caption;
}

}

OptionPage::OptionPage(OptionControls& controls) : controls_(controls), column_(new QVBoxLayout(this)) {
    column_->setSpacing(GroupSpacing);
}

QGroupBox* OptionPage::Group(const QString& title) {
    auto* box = new QGroupBox(title);
    grid_ = new QGridLayout(box);
    grid_->setColumnStretch(RestColumn, 1);
    column_->addWidget(box);
    buttons_ = nullptr;
    group_ = title;
    return box;
}

void OptionPage::Remember(QWidget* control, QWidget* shown, const QString& caption, const char* key) {
    const Option* option = key ? FindOption(key) : nullptr;
    const QString meaning = option ? Shown(option->meaning) : QString();
    if (!meaning.isEmpty()) {
        control->setToolTip(meaning);
        control->setAccessibleDescription(meaning);
    }
    entries_.push_back({control, shown, (caption + ' ' + group_ + ' ' + meaning + ' ' + key).toLower()});
}

void OptionPage::Add(QWidget* widget) {
    if (grid_ == nullptr) return column_->addWidget(widget, 1);
    grid_->addWidget(widget, grid_->rowCount(), 0, 1, Columns);
    buttons_ = nullptr;
}

void OptionPage::Indent(QWidget* widget) {
    int row = 0, column = 0, rows = 0, columns = 0;
    grid_->getItemPosition(grid_->indexOf(widget), &row, &column, &rows, &columns);
    grid_->removeWidget(widget);
    auto* indented = new QHBoxLayout;
    indented->addSpacing(IndentSpacing);
    indented->addWidget(widget);
    grid_->addLayout(indented, row, column, rows, columns);
}

QCheckBox* OptionPage::PlainCheck(const char* name, const QString& caption) {
    auto* box = new QCheckBox(caption);
    box->setObjectName(name);
    Add(box);
    Remember(box, box, caption, nullptr);
    return box;
}

QCheckBox* OptionPage::Check(const char* name, const char* key, const QString& caption, int bit) {
    auto* box = new QCheckBox(caption);
    box->setObjectName(name);
    Add(box);
    Remember(box, box, caption, key);
    controls_.Bind(*box, key, bit);
    return box;
}

QLabel* OptionPage::Label(const QString& caption, QWidget* buddy) {
    auto* label = new QLabel(caption);
    label->setBuddy(buddy);
    return label;
}

QSpinBox* OptionPage::Number(const char* name, const char* key, const QString& caption, const QString& unit) {
    auto* field = new QSpinBox;
    field->setObjectName(name);
    field->setAccelerated(true);
    auto* label = Label(caption, field);
    const int row = grid_->rowCount();
    grid_->addWidget(label, row, LabelColumn);
    grid_->addWidget(field, row, FieldColumn);
    if (!unit.isEmpty()) grid_->addWidget(new QLabel(unit), row, UnitColumn);
    Remember(field, label, caption + ' ' + unit, key);
    controls_.Bind(*field, key);
    buttons_ = nullptr;
    return field;
}

QButtonGroup* OptionPage::Choice(const char* name, const char* key, std::initializer_list<Code> codes) {
    auto* group = new QButtonGroup(this);
    group->setObjectName(name);
    for (const Code& code : codes) {
        auto* button = new QRadioButton(tr(code.caption));
        button->setObjectName(name + QString::number(code.code));
        group->addButton(button, code.code);
        Add(button);
        Remember(button, button, button->text(), key);
    }
    controls_.Bind(*group, key);
    return group;
}

QLineEdit* OptionPage::PlainText(const char* name, const QString& caption) {
    auto* field = new QLineEdit;
    field->setObjectName(name);
    auto* label = Label(caption, field);
    const int row = grid_->rowCount();
    grid_->addWidget(label, row, LabelColumn);
    grid_->addWidget(field, row, FieldColumn, 1, Columns - 1);
    Remember(field, label, caption, nullptr);
    buttons_ = nullptr;
    return field;
}

QLineEdit* OptionPage::Text(const char* name, const char* key, const QString& caption) {
    QLineEdit* field = PlainText(name, caption);
    entries_.pop_back();
    // The label is the last but one: its field follows it.
    auto* label = qobject_cast<QLabel*>(grid_->itemAt(grid_->count() - 2)->widget());
    Remember(field, label, caption, key);
    controls_.Bind(*field, key);
    return field;
}

QLabel* OptionPage::Note(const char* name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    Add(label);
    return label;
}

QPushButton* OptionPage::Button(const char* name, const QString& caption, bool newRow) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false);
    if (newRow || buttons_ == nullptr) {
        auto* row = new QHBoxLayout;
        row->addStretch();
        grid_->addLayout(row, grid_->rowCount(), 0, 1, Columns);
        buttons_ = row;
    }
    buttons_->insertWidget(buttons_->count() - 1, button);
    Remember(button, button, caption, nullptr);
    return button;
}

void OptionPage::Finish(std::set<QChar> taken) {
    const auto marked = [](const QString& text) { return text.contains('&'); };
    // Captions with a mark of their own come first, because the others have a choice.
    for (const bool own : {true, false})
        for (const Entry& entry : entries_) {
            if (auto* button = qobject_cast<QAbstractButton*>(entry.shown)) {
                if (marked(button->text()) == own) button->setText(WithMnemonic(button->text(), taken));
            } else if (auto* label = qobject_cast<QLabel*>(entry.shown)) {
                if (marked(label->text()) == own) label->setText(WithMnemonic(label->text(), taken));
            }
        }
    if (grid_ != nullptr) column_->addStretch();
}
