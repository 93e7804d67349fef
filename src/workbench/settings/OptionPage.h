// A page of a settings dialog: groups of controls, one below the other.
#pragma once

#include "workbench/settings/OptionControls.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <initializer_list>
#include <set>

class OptionPage : public QWidget {
public:
    // A control and the words by which a search finds it.
    struct Entry {
        QWidget* control; // gets the focus
        QWidget* shown;   // is highlighted: the control, or its label
        QString words;
    };
    struct Code {
        int code;
        const char* caption;
    };

    explicit OptionPage(OptionControls& controls);

    // Begins a box with a title; the controls that follow are in it.
    QGroupBox* Group(const QString& title);
    QCheckBox* Check(const char* name, const char* key, const QString& caption, int bit = 0);
    // The unit is behind the field.
    QSpinBox* Number(const char* name, const char* key, const QString& caption, const QString& unit = {});
    // One button for each code, named after the group: optName0, optName1 …
    QButtonGroup* Choice(const char* name, const char* key, std::initializer_list<Code> codes);
    QLineEdit* Text(const char* name, const char* key, const QString& caption);
    // Controls without an option.
    QCheckBox* PlainCheck(const char* name, const QString& caption);
    QLineEdit* PlainText(const char* name, const QString& caption);
    QLabel* Note(const char* name, const QString& text);
    // Buttons in one row.
    QPushButton* Button(const char* name, const QString& caption, bool newRow = true);
    void Add(QWidget* widget);
    // Shows that a control belongs to the one above it.
    void Indent(QWidget* widget);

    // Gives every control a mnemonic that is not taken yet, adds them to `taken`, and closes the page.
    void Finish(std::set<QChar> taken);
    const std::vector<Entry>& Entries() const { return entries_; }

private:
    QLabel* Label(const QString& caption, QWidget* buddy);
    void Remember(QWidget* control, QWidget* shown, const QString& caption, const char* key);

    OptionControls& controls_;
    QVBoxLayout* column_;
    QGridLayout* grid_ = nullptr;
    QHBoxLayout* buttons_ = nullptr;
    QString group_;
    std::vector<Entry> entries_;
};
