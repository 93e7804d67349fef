#include "workbench/settings/frmOptions.h"

#include "documents/DocumentCalls.h"
#include "documents/Options.h"
#include "documents/RecentFiles.h"
#include "engine/ClsProject.h"
#include "host/Dialogs.h"
#include "host/DockStudio.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/SettingsStore.h"
#include "workbench/parts/Shown.h"

#include <QComboBox>
#include <QRadioButton>

namespace {

using namespace Options;

constexpr const char* MailboxKey = "ErrorReportMailbox";

bool Sure(const char* question) {
    return gHost.dialogs->Show(
               {.text = question, .icon = MessageIcon::Question, .buttons = MessageButtons::YesNo}) ==
           MessageAnswer::Yes;
}

// Controls that have no function yet are shown as they are, and cannot be used.
void Without(std::initializer_list<QWidget*> controls) {
    for (QWidget* control : controls) control->setEnabled(false);
}

}

frmOptions::frmOptions(QWidget* parent)
    : SettingsDialog(tr("Preferences"), "LastSelectedTabOptions", "frmOptions", parent),
      compilers_(new CompilersPage) {
    GeneralPage();
    FilesPage();
    ExplorerPage();
    AddPage(tr("Compilers"), compilers_);
    CompilePage();
    HelpPage();
    BackupPage();
    OpenLastPage();
}

void frmOptions::GeneralPage() {
    OptionPage& page = AddPage(tr("General"));
    page.Group(tr("Start-up"));
    page.Check("chkMultipleInstances", "MultipleInstances", tr("Allow multiple program instances"));
    page.Choice("optStartUp", "gStartUp",
                {{StartRestoresWorkspace, "Open last opened files ( restore last workspace )"},
                 {StartOpensNewFile, "Open new empty file"},
                 {StartOpensNothing, "Do not create any documents"}});
    page.Group(tr("Tabs"));
    page.Check("chkDoubleClickClosesTab", "gDoubleClickClosesTabs",
               tr("Double Click on File Tab's caption closes file"));
    page.Check("chkTabbingStartsWithPrevious", "gTabbingStartsWithPrevious",
               tr("CTRL-Tabbing starts with previous active file"));
    page.Group(tr("Window"));
    page.Check("chkDisplayTimeInStatus", "gDisplayTimeInStatusBar", tr("Display Time in Statusbar"));
    page.Number("txtClipRingMaxItems", "gClipRingMaxItems", tr("Clipboard ring holds"), tr("recent items"));
    page.Group(tr("Error reports"));
    QLineEdit* mailbox = page.PlainText("txtErrorReportMailbox", tr("Send error reports to:"));
    mailbox->setPlaceholderText(tr("name@example.org"));
    controls_.Bind([mailbox] { mailbox->setText(Shown(gHost.settings->Get("Options", MailboxKey, ""))); },
                   [mailbox] { gHost.settings->Save("Options", MailboxKey, mailbox->text().toStdString()); });
}

void frmOptions::FilesPage() {
    OptionPage& page = AddPage(tr("Files"));
    page.Group(tr("New files"));
    page.Text("txtDefNewName", "gDefNewName", tr("Default name for new file:"));
    page.Check("chkEnumerateNewFiles", "gEnumerateNewFiles", tr("Enumerate new files"));
    page.Group(tr("Recent files"));
    page.Number("txtRecentFiles", "gRecentFiles", tr("Recent Files/Projects in menus:"), tr("entries"));
    page.Check("chkShowRecentFull", "gShowRecentFull", tr("Show Recent files with full path"));
    connect(page.Button("cmdClearRecent", tr("Clear Recent Files")), &QPushButton::clicked, this, [] {
        if (Sure("Are you sure you want to purge 'recent files' list now ?")) Mod_File::ClearRecentFiles();
    });
    connect(page.Button("cmdClearRecentProjects", tr("Clear Recent Projects"), false), &QPushButton::clicked,
            this, [] {
                if (Sure("Are you sure you want to purge 'recent projects' list now ?"))
                    Mod_File::ClearRecentProjects();
            });
    page.Group(tr("Default Filetype"))->setObjectName("fraExpl");
    QCheckBox* last = page.PlainCheck("chkExLastType", tr("Last used Filetype"));
    auto* type = new QComboBox;
    type->setObjectName("cboDefExt");
    type->setAccessibleName(tr("Default Filetype"));
    page.Add(type);
    page.Group(tr("Save"))->setObjectName("fraSave");
    int index = 0;
    for (const char* caption : {"&No", "&Only active Document", "&All"}) {
        auto* option = new QRadioButton(tr(caption));
        option->setObjectName("optSave" + QString::number(index++));
        option->setEnabled(false);
        page.Add(option);
    }
    Without({last, type, page.PlainCheck("chkPromtSave", tr("&Prompt before saving"))});
}

void frmOptions::ExplorerPage() {
    OptionPage& page = AddPage(tr("Explorers"));
    page.Group(tr("Code Explorer"));
    QCheckBox* unsorted = page.Check("chkUnsortedFunctions", "gUnsortedFunctions",
                                     tr("Don't sort functions in the Code Explorer when in file mode"));
    connect(unsorted, &QCheckBox::clicked, this, [](bool on) {
        if (!gCurrentProject) return;
        gUnsortedFunctions = on;
        gDocumentCalls.RefreshCodeExplorer();
    });
    page.Group(tr("File Explorer starts in"));
    page.Choice("OptFileExStartPath", "gFileExStartPath",
                {{ExplorerStartsInLastFolder, "Last Used Directory"},
                 {ExplorerStartsInSystemFolder, "System's Current Directory"}});
    page.Group(tr("HTML files"));
    page.Check("chkOpenHtmlInZolto", "gOpenHtmlInZolto",
               tr("Use this browser when opening HTML files from file explorer"));
}

void frmOptions::CompilePage() {
    OptionPage& page = AddPage(tr("Compiling"));
    page.Group(tr("Before compiling"));
    page.Choice("optOnCompile", "gOnCompileSave",
                {{CompileSavesAll, "Save all open files"},
                 {CompileSavesProject, "Save only files that belong to the active project"}});
    page.Group(tr("Debugger"));
    page.Check("chkDebugMaximized", "gDebugMaximized", tr("Start debugger window maximized"));
}

// Puts a page of the help of the compiler that is selected on its page into the box.
void frmOptions::TakeHelpPage(const char* page) {
    const std::string path = CollapseSeparators(compilers_->SelectedHelpPath() + page);
    findChild<QLineEdit*>("txtDefaultHelp")->setText(Shown(path));
}

void frmOptions::HelpPage() {
    OptionPage& page = AddPage(tr("Help"));
    page.Group(tr("Browser"));
    page.Check("chkOpenBrowserAtStartup", "gOpenBrowserAtStartup", tr("Open browser at start-up"));
    page.Note("lblDefaultHelp",
              tr("Default Page for New window in browser ( leave blank for blank page ) :"));
    QLineEdit* path = page.Text("txtDefaultHelp", "gDefaultHelpPage", tr("Page:"));
    connect(page.Button("cmdSetHelpPage", tr("Index of the Help")), &QPushButton::clicked, this,
            [this] { TakeHelpPage("/index.html"); });
    connect(page.Button("cmdSetHelpPage2", tr("Index of Commands"), false), &QPushButton::clicked, this,
            [this] { TakeHelpPage("/commands/index.htm"); });
    connect(page.Button("cmdBrowseDefPage", tr("Browse…"), false), &QPushButton::clicked, this, [path] {
        const auto chosen = gHost.dialogs->OpenFiles({.title = "Choose file for the default page...",
                                                      .filter = "HTML Files (*.html,*.htm)|*.html;*.htm",
                                                      .fileName = {},
                                                      .folder = {}});
        if (!chosen.empty()) path->setText(Shown(chosen.front()));
    });
}

void frmOptions::BackupPage() {
    OptionPage& page = AddPage(tr("Backup"));
    page.Group(tr("Automatic backup"));
    QCheckBox* enabled = page.Check("chkEnableBackup", "gBackupEnabled", tr("Enable Automatic Backup"));
    QGroupBox* names = page.Group(tr("Names"));
    QButtonGroup* type =
        page.Choice("optBackupType", "gBackupType",
                    {{BackupNumbered, "Add incremental .bak extension and keep the last "},
                     {BackupStamped, "Add date/time stamp to the file name and keep all backup files"}});
    QSpinBox* kept = page.Number("spnBak", "gBackupBakIncrement", tr("Keep the last"), tr("backup files"));
    QGroupBox* places = page.Group(tr("Place"));
    QButtonGroup* store = page.Choice("optStoreIn", "gBackupStoreType",
                                      {{BackupBesideFile, "In the same directory as the file"},
                                       {BackupInFolder, "In the specified backup directory:"}});
    QLineEdit* folder = page.Text("txtBackupFolder", "gBackupStoreFolder", tr("Directory:"));
    QPushButton* browse = page.Button("cmdBrowseBackup", tr("Browse…"));
    connect(browse, &QPushButton::clicked, this, [folder] {
        Guarded("cmdBrowseBackup_Click", "frmOptions", [folder] {
            const std::string path =
                gHost.dialogs->Folder("Select your Backup directory...", folder->text().toStdString());
            if (!path.empty()) folder->setText(Shown(path));
        });
    });
    const auto follow = [=] {
        names->setEnabled(enabled->isChecked());
        places->setEnabled(enabled->isChecked());
        kept->setEnabled(type->checkedId() == BackupNumbered);
        for (QWidget* widget : {static_cast<QWidget*>(folder), static_cast<QWidget*>(browse)})
            widget->setEnabled(store->checkedId() == BackupInFolder);
    };
    connect(enabled, &QCheckBox::toggled, this, follow);
    for (QButtonGroup* group : {type, store}) connect(group, &QButtonGroup::idToggled, this, follow);
    follow();
}

void frmOptions::ApplyChanges() {
    const int timeBefore = gDisplayTimeInStatusBar;
    // The list that is written first is the one that may fail; then nothing else has changed yet.
    compilers_->Apply();
    controls_.Store();
    if (gDisplayTimeInStatusBar != timeBefore)
        if (DockCommand* pane = gHost.dock->FindCommand("StatusTime"))
            pane->SetVisible(gDisplayTimeInStatusBar != 0);
    GetOptions();
    // The lists get their new length and captions.
    Mod_File::SaveRecentFilesProjects();
    Mod_File::LoadRecentFilesProjects();
}
