// The window in which the user changes keys, bars and menus.
#include "host/qt/customize/CustomizeDialog.h"

#include <QDialogButtonBox>
#include <QScreen>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {
constexpr int Border = 60; // pixels for the frame that the desktop draws
}

CustomizeDialog::CustomizeDialog(CustomizeTarget& target, QWidget* parent)
    : QDialog(parent), target_(target), editor_(target), commands_(new CommandList(target, this)),
      keys_(new KeyPage(target, this)), places_(new PlacePage(
                                            target, [this] { return commands_->Selected(); }, this)) {
    setWindowTitle(tr("Customize"));
    auto* pages = new QTabWidget;
    pages->setAccessibleName(tr("What to change"));
    pages->tabBar()->setAccessibleName(pages->accessibleName());
    pages->addTab(keys_, tr("&Keyboard"));
    pages->addTab(places_, tr("Bars and &Menus"));
    auto* parts = new QSplitter;
    parts->setChildrenCollapsible(false);
    parts->addWidget(commands_);
    parts->addWidget(pages);
    parts->setStretchFactor(0, 3);
    parts->setStretchFactor(1, 2);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton* revert = buttons->addButton(tr("Re&vert"), QDialogButtonBox::ResetRole);
    revert->setToolTip(tr("Puts everything back as it was when this window was opened"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(parts, 1);
    column->addWidget(buttons);
    // Tab enters the button box at its first button and would skip the widgets after it in the order.
    setTabOrder(revert, buttons->button(QDialogButtonBox::Close));
    // The fields and lists use Enter themselves, so no button is the default.
    for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
    const QSize wanted(fontMetrics().averageCharWidth() * 150, fontMetrics().height() * 32);
    resize(wanted.boundedTo(parent->screen()->availableSize() - QSize(Border, Border)));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    Connect(*revert);
    keys_->SetCommand(commands_->Selected());
}

void CustomizeDialog::Connect(const QPushButton& revert) {
    connect(&revert, &QPushButton::clicked, this, [this] {
        target_.Revert();
        commands_->Reload();
        keys_->SetCommand(commands_->Selected());
        places_->Reload();
    });
    connect(commands_, &CommandList::SelectionChanged, this, [this] {
        keys_->SetCommand(commands_->Selected());
        places_->SelectionChanged();
    });
    connect(keys_, &KeyPage::KeysChanged, commands_, &CommandList::ShowKeys);
    connect(&editor_, &BarEditor::EntriesChanged, places_, &PlacePage::Reload);
}

#include "moc_CustomizeDialog.cpp"
