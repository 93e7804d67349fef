#include "workbench/settings/SettingsDialog.h"

#include "engine/WaitCursor.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "host/SettingsStore.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <cstdlib>

namespace {

constexpr const char* Section = "Options";
constexpr int Spacing = 12;
constexpr int Border = 60;    // pixels for the frame that the desktop draws
constexpr int ListWidth = 22; // characters, at least

// Letters of the buttons that every page has beside its own controls.
const std::set<QChar> Reserved{'a', 'o', 'c'};

// By weight and not by colour, which not every style paints behind a check box.
void Highlight(QWidget& widget, bool on) {
    if (widget.font().bold() == on) return;
    QFont font = widget.font();
    font.setBold(on);
    widget.setFont(font);
}

bool Found(const OptionPage::Entry& entry, const QStringList& words) {
    return std::all_of(words.begin(), words.end(),
                       [&](const QString& word) { return entry.words.contains(word); });
}

}

SettingsDialog::SettingsDialog(const QString& title, const char* pageKey, const char* module, QWidget* parent)
    : QDialog(parent), pageKey_(pageKey), module_(module), search_(new QLineEdit), list_(new QListWidget),
      pages_(new QStackedWidget) {
    setWindowTitle(title);
    search_->setObjectName("txtSearch");
    search_->setPlaceholderText(tr("Search settings"));
    search_->setAccessibleName(search_->placeholderText());
    search_->setClearButtonEnabled(true);
    list_->setObjectName("lstPages");
    list_->setAccessibleName(tr("Pages"));
    auto* buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply);
    auto* left = new QVBoxLayout;
    left->addWidget(search_);
    left->addWidget(list_, 1);
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing);
    row->addLayout(left);
    row->addWidget(pages_, 1);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(Spacing);
    column->addLayout(row, 1);
    column->addWidget(buttons);
    connect(search_, &QLineEdit::textChanged, this, &SettingsDialog::Search);
    connect(list_, &QListWidget::currentRowChanged, this, &SettingsDialog::ShowPage);
    connect(buttons, &QDialogButtonBox::accepted, this, &SettingsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SettingsDialog::reject);
    connect(buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &SettingsDialog::Apply);
}

OptionPage& SettingsDialog::AddPage(const QString& caption) {
    auto* page = new OptionPage(controls_);
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(page);
    AddPage(caption, area);
    optionPages_.back() = page;
    return *page;
}

void SettingsDialog::AddPage(const QString& caption, QWidget* page) {
    list_->addItem(caption);
    page->setEnabled(false);
    pages_->addWidget(page);
    optionPages_.push_back(nullptr);
}

void SettingsDialog::OpenLastPage() {
    const int character = fontMetrics().averageCharWidth();
    list_->setFixedWidth(std::max(ListWidth * character,
                                  list_->sizeHintForColumn(0) + 2 * list_->frameWidth() + 2 * character));
    search_->setFixedWidth(list_->width());
    QSize wanted(0, 0);
    for (std::size_t at = 0; at < optionPages_.size(); ++at) {
        if (optionPages_[at]) optionPages_[at]->Finish(Reserved);
        const QWidget* page = optionPages_[at] ? optionPages_[at] : pages_->widget(static_cast<int>(at));
        wanted = wanted.expandedTo(page->sizeHint());
    }
    controls_.Load();
    const int bar = QScrollBar(Qt::Vertical).sizeHint().width();
    const QSize around(list_->width() + Spacing + bar + 4 * Spacing, 7 * fontMetrics().height());
    const QSize screen = parentWidget() ? parentWidget()->screen()->availableSize() : wanted + around;
    resize((wanted + around).boundedTo(screen - QSize(Border, Border)));
    const int page = std::atoi(gHost.settings->Get(Section, pageKey_, "0").c_str());
    list_->setCurrentRow(page >= 0 && page < list_->count() ? page : 0);
    list_->setFocus();
}

// Only the page on top takes keys, because the mnemonics of the others are the same letters.
void SettingsDialog::ShowPage(int page) {
    if (page < 0) return;
    pages_->setCurrentIndex(page);
    for (int at = 0; at < pages_->count(); ++at) pages_->widget(at)->setEnabled(at == page);
}

void SettingsDialog::Search(const QString& text) {
    const QStringList words = text.toLower().split(' ', Qt::SkipEmptyParts);
    int first = -1;
    for (int at = 0; at < list_->count(); ++at) {
        const OptionPage* page = optionPages_[static_cast<std::size_t>(at)];
        bool any = words.isEmpty() || list_->item(at)->text().toLower().contains(text.toLower().trimmed());
        if (page)
            for (const OptionPage::Entry& entry : page->Entries()) {
                const bool found = !words.isEmpty() && Found(entry, words);
                Highlight(*entry.shown, found);
                any = any || found;
            }
        list_->item(at)->setHidden(!any);
        if (any && first < 0) first = at;
    }
    const QListWidgetItem* current = list_->currentItem();
    if (first >= 0 && (current == nullptr || current->isHidden())) list_->setCurrentRow(first);
}

// From the search to the first control that it found on the page.
void SettingsDialog::FocusFound() {
    const QStringList words = search_->text().toLower().split(' ', Qt::SkipEmptyParts);
    const OptionPage* page = optionPages_[static_cast<std::size_t>(pages_->currentIndex())];
    if (words.isEmpty() || page == nullptr) return;
    for (const OptionPage::Entry& entry : page->Entries())
        if (Found(entry, words) && entry.control->isEnabled())
            return entry.control->setFocus(Qt::ShortcutFocusReason);
}

void SettingsDialog::keyPressEvent(QKeyEvent* event) {
    const bool back = event->key() == Qt::Key_Backtab;
    if ((back || event->key() == Qt::Key_Tab) && event->modifiers() & Qt::ControlModifier) {
        const int count = list_->count();
        const bool backwards = back || event->modifiers() & Qt::ShiftModifier;
        int row = list_->currentRow();
        do row = (row + (backwards ? count - 1 : 1)) % count;
        while (list_->item(row)->isHidden() && row != list_->currentRow());
        return list_->setCurrentRow(row);
    }
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && search_->hasFocus() && !search_->text().isEmpty()) return FocusFound();
    QDialog::keyPressEvent(event);
}

bool SettingsDialog::Apply() {
    return Guarded("cmdApply_Click", module_, false, [this] {
        const WaitCursor wait;
        ApplyChanges();
        return true;
    });
}

void SettingsDialog::accept() {
    if (Apply()) QDialog::accept();
}

void SettingsDialog::done(int result) {
    gHost.settings->Save(Section, pageKey_, std::to_string(list_->currentRow()));
    QDialog::done(result);
}
