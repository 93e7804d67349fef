#include "workbench/settings/CompilersPage.h"

#include "host/Dialogs.h"
#include "host/DockStudio.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "host/Text.h"
#include "toolchain/Mod_Compiler.h"
#include "workbench/parts/Shown.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QSignalBlocker>

namespace {

QPushButton* MakeButton(const char* name, const QString& caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

QLineEdit* MakeField(const char* name) {
    auto* field = new QLineEdit;
    field->setObjectName(name);
    return field;
}

QLabel* MakeLabel(const QString& caption, QWidget* buddy) {
    auto* label = new QLabel(caption);
    label->setBuddy(buddy);
    return label;
}

// Runs the handler of a control, and reports a failure under its name.
template <class Handler>
void Handle(const char* name, Handler handler) {
    Guarded(name, "frmOptions", handler);
}

}

CompilersPage::CompilersPage() {
    MakeControls();
    Arrange();
    Connect();
    Handle("PopulateCompilers", [this] { PopulateCompilers(0); });
}

void CompilersPage::MakeControls() {
    lvCompilers = new QListWidget;
    lvCompilers->setObjectName("lvCompilers");
    lvCompilers->setAccessibleName(tr("Compilers"));
    txtBlitzPath = MakeField("txtBlitzPath");
    txtHelpPath = MakeField("txtHelpPath");
    txtExeCommand = MakeField("txtExeCommand");
    // Nothing runs this command.
    txtExeCommand->setEnabled(false);
    chkUseBlitzConsole = new QCheckBox(tr("On compile, &use original console instead of the output window"));
    chkUseBlitzConsole->setObjectName("chkUseBlitzConsole");
    cmdAdd = MakeButton("cmdAdd", tr("&Add new"));
    cmdRemove = MakeButton("cmdRemove", tr("&Remove"));
    cmdRename = MakeButton("cmdRename", tr("Re&name"));
    cmdSetAsDefault = MakeButton("cmdSetAsDefault", tr("&Set as Default"));
    cmdRefreshDef = MakeButton("cmdRefreshDef", tr("Refresh &Definitions"));
    cmdBrowseBpath = MakeButton("cmdBrowseBpath", tr("Browse…"));
    cmdBrowseHPath = MakeButton("cmdBrowseHPath", tr("Browse…"));
    cmdBrowseBpath->setAccessibleName(tr("Browse for the Blitz path"));
    cmdBrowseHPath->setAccessibleName(tr("Browse for the help path"));
}

void CompilersPage::Arrange() {
    auto* buttons = new QVBoxLayout;
    for (QPushButton* button : {cmdAdd, cmdRemove, cmdRename, cmdSetAsDefault, cmdRefreshDef})
        buttons->addWidget(button);
    buttons->addStretch();
    auto* list = new QHBoxLayout;
    list->addWidget(lvCompilers, 1);
    list->addLayout(buttons);
    auto* note = new QLabel(tr("Note: Checked compiler will be default one"));
    auto* box = new QGroupBox(tr("Selected compiler"));
    auto* grid = new QGridLayout(box);
    grid->addWidget(MakeLabel(tr("&Blitz path"), txtBlitzPath), 0, 0);
    grid->addWidget(txtBlitzPath, 0, 1);
    grid->addWidget(cmdBrowseBpath, 0, 2);
    grid->addWidget(MakeLabel(tr("&Help Path"), txtHelpPath), 1, 0);
    grid->addWidget(txtHelpPath, 1, 1);
    grid->addWidget(cmdBrowseHPath, 1, 2);
    grid->addWidget(chkUseBlitzConsole, 2, 0, 1, 3);
    auto* hint = new QLabel(tr("( not recommended, as Zolto won't be able to parse output )"));
    grid->addWidget(hint, 3, 0, 1, 3);
    auto* command =
        new QLabel(tr("Run this command on compiled EXE ( use %exe for full path to created EXE ) :"));
    command->setEnabled(false);
    txtExeCommand->setAccessibleName(command->text());
    grid->addWidget(command, 4, 0, 1, 3);
    grid->addWidget(txtExeCommand, 5, 0, 1, 3);
    auto* column = new QVBoxLayout(this);
    column->addLayout(list, 1);
    column->addWidget(note);
    column->addWidget(box);
}

void CompilersPage::Connect() {
    connect(lvCompilers, &QListWidget::currentRowChanged, this, &CompilersPage::ShowSelected);
    connect(lvCompilers, &QListWidget::itemChanged, this, [this](const QListWidgetItem* item) {
        // A default compiler is changed by checking another one.
        MakeDefault(static_cast<std::size_t>(lvCompilers->row(item)));
    });
    for (QLineEdit* field : {txtBlitzPath, txtHelpPath})
        connect(field, &QLineEdit::textChanged, this, &CompilersPage::TakeFields);
    connect(chkUseBlitzConsole, &QCheckBox::toggled, this, &CompilersPage::TakeFields);
    connect(cmdAdd, &QPushButton::clicked, this,
            [this] { Handle("cmdAdd_Click", [this] { cmdAdd_Click(); }); });
    connect(cmdRemove, &QPushButton::clicked, this,
            [this] { Handle("cmdRemove_Click", [this] { cmdRemove_Click(); }); });
    connect(cmdRename, &QPushButton::clicked, this,
            [this] { Handle("cmdRename_Click", [this] { cmdRename_Click(); }); });
    connect(cmdSetAsDefault, &QPushButton::clicked, this, [this] { MakeDefault(Row()); });
    connect(cmdRefreshDef, &QPushButton::clicked, this,
            [this] { Handle("cmdRefreshDef_Click", [this] { cmdRefreshDef_Click(); }); });
    connect(cmdBrowseBpath, &QPushButton::clicked, this,
            [this] { Handle("cmdBrowseBpath_Click", [this] { cmdBrowseBpath_Click(); }); });
    connect(cmdBrowseHPath, &QPushButton::clicked, this,
            [this] { Handle("cmdBrowseHPath_Click", [this] { BrowseHelp(); }); });
}

std::size_t CompilersPage::Row() const {
    return static_cast<std::size_t>(std::max(0, lvCompilers->currentRow()));
}

CompilerEdit::Entry* CompilersPage::Selected() {
    return Row() < edit_.Entries().size() ? &edit_.Entries()[Row()] : nullptr;
}

std::string CompilersPage::SelectedHelpPath() const {
    auto& entries = const_cast<CompilersPage*>(this)->edit_.Entries();
    return Row() < entries.size() ? entries[Row()].helpPath : std::string();
}

void CompilersPage::PopulateCompilers(std::size_t selected) {
    {
        const QSignalBlocker quiet(lvCompilers);
        lvCompilers->clear();
        for (const CompilerEdit::Entry& entry : edit_.Entries()) {
            auto* item = new QListWidgetItem(Shown(entry.name), lvCompilers);
            const bool byDefault = EqualNoCase(entry.name, edit_.Default());
            item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
            item->setCheckState(byDefault ? Qt::Checked : Qt::Unchecked);
            item->setIcon(QIcon::fromTheme(byDefault ? "emblem-favorite" : "run-build"));
        }
        lvCompilers->setCurrentRow(static_cast<int>(std::min(selected, edit_.Entries().size() - 1)));
    }
    ShowSelected();
}

void CompilersPage::ShowSelected() {
    const CompilerEdit::Entry* entry = Selected();
    if (entry == nullptr) return;
    showing_ = true;
    txtBlitzPath->setText(Shown(entry->path));
    txtHelpPath->setText(Shown(entry->helpPath));
    chkUseBlitzConsole->setChecked(entry->realConsole);
    showing_ = false;
}

void CompilersPage::TakeFields() {
    CompilerEdit::Entry* entry = Selected();
    if (showing_ || entry == nullptr) return;
    // A path that cannot be shown as it is stays as it is until it is typed over.
    const auto take = [](std::string& text, const QLineEdit& field) {
        if (field.text() != Shown(text)) text = field.text().toStdString();
    };
    take(entry->path, *txtBlitzPath);
    take(entry->helpPath, *txtHelpPath);
    entry->realConsole = chkUseBlitzConsole->isChecked();
}

void CompilersPage::MakeDefault(std::size_t index) {
    if (index >= edit_.Entries().size()) return;
    edit_.SetDefault(index);
    PopulateCompilers(Row());
}

void CompilersPage::cmdAdd_Click() {
    if (!edit_.MayAdd()) return;
    const auto name = gHost.dialogs->Input("Enter name for the new compiler:", "New compiler", "");
    if (!name || name->empty() || !edit_.Add(*name)) return;
    const std::size_t added = edit_.Entries().size() - 1;
    PopulateCompilers(added);
    cmdBrowseBpath_Click();
}

void CompilersPage::cmdRemove_Click() {
    if (edit_.Remove(Row())) PopulateCompilers(Row());
}

void CompilersPage::cmdRename_Click() {
    const CompilerEdit::Entry* entry = Selected();
    if (entry == nullptr) return;
    const auto name =
        gHost.dialogs->Input("Please enter the new name for this compiler", "Rename compiler", entry->name);
    if (name && !name->empty() && edit_.Rename(Row(), *name)) PopulateCompilers(Row());
}

void CompilersPage::cmdBrowseBpath_Click() {
    const std::string path =
        gHost.dialogs->Folder("Select Blitz path for this compiler...", txtBlitzPath->text().toStdString());
    if (path.empty()) return;
    edit_.SetPath(Row(), path);
    ShowSelected();
}

void CompilersPage::BrowseHelp() {
    const std::string path =
        gHost.dialogs->Folder("Select Blitz Help Path", txtHelpPath->text().toStdString());
    if (path.empty()) return;
    Selected()->helpPath = path;
    ShowSelected();
}

// The keywords of a compiler that is renamed here have its old name until the list is applied.
void CompilersPage::cmdRefreshDef_Click() {
    const CompilerEdit::Entry* entry = Selected();
    if (entry == nullptr) return;
    ClsCompiler edited;
    edited.Path = entry->path;
    Mod_Compiler::RefreshDefinitions(entry->keywords, edited.Folder());
}

void CompilersPage::Apply() {
    edit_.Apply();
    DockCommand* box = gHost.dock->FindCommand("cboCompilers");
    if (box == nullptr) return;
    std::vector<std::string> names;
    for (const CompilerEdit::Entry& entry : edit_.Entries()) names.push_back(entry.name);
    box->SetItems(names);
    box->SetText(gActiveCompiler ? gActiveCompiler->Name : std::string());
}
