// What the document area shows while no document is open: a few commands with their keys.
#include "host/qt/frame/StartPage.h"

#include "host/Paths.h"
#include "host/qt/system/QtText.h"

#include <QGridLayout>
#include <QKeySequence>
#include <QLabel>
#include <QToolButton>

namespace {

constexpr int TitlePercent = 220;

QLabel* MakeTitle(QWidget* parent) {
    auto* title = new QLabel(Shown(ProgramName), parent);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * TitlePercent / 100);
    font.setWeight(QFont::Light);
    title->setFont(font);
    title->setAlignment(Qt::AlignCenter);
    return title;
}

QToolButton* MakeButton(QtCommand& command, CommandTable& table, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setIcon(command.Action()->icon());
    button->setText(command.PlainCaption());
    button->setFocusPolicy(Qt::TabFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QObject::connect(button, &QToolButton::clicked, &command, [&command, &table] { table.Fire(command); });
    return button;
}

}

StartPage::StartPage(const std::vector<std::string>& commands, CommandTable& table) {
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(6);
    grid->setRowStretch(0, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(3, 1);
    grid->addWidget(MakeTitle(this), 1, 1, 1, 2);
    grid->setRowMinimumHeight(2, 12);
    int row = 3;
    for (const std::string& name : commands) {
        QtCommand* command = table.Find(name);
        if (!command) continue;
        grid->addWidget(MakeButton(*command, table, this), row, 1);
        if (!command->Shortcuts().empty()) {
            const QKeySequence keys(command->Shortcuts().front());
            auto* label = new QLabel(keys.toString(QKeySequence::NativeText), this);
            label->setForegroundRole(QPalette::PlaceholderText);
            grid->addWidget(label, row, 2);
        }
        ++row;
    }
    grid->setRowStretch(row, 2);
}
