// The controls of the find dialog, its stored options, and its place on the screen.
#include "workbench/find/frmFind.h"

#include "documents/ClsMRU.h"
#include "host/Host.h"
#include "host/SettingsStore.h"
#include "host/Twips.h"
#include "sci/Mod_Sci.h"

#include <QApplication>
#include <QFocusEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>
#include <QSignalBlocker>
#include <array>
#include <cstdlib>

namespace {

constexpr int FieldWidth = 320;
constexpr int FindEntries = 5;
constexpr int ReplaceEntries = 10;
constexpr int Gap = 12; // pixels between the dialog and the hit that it uncovers
constexpr const char* Section = "FindOptions";

int Stored(const char* key, int byDefault) {
    return std::atoi(gHost.settings->Get(Section, key, std::to_string(byDefault)).c_str());
}

void Store(const char* key, int value) { gHost.settings->Save(Section, key, std::to_string(value)); }

QComboBox* Field(const char* name, const QString& spoken) {
    auto* box = new QComboBox;
    box->setObjectName(name);
    box->setAccessibleName(spoken);
    box->setEditable(true);
    box->lineEdit()->setAccessibleName(spoken);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setCompleter(nullptr); // a completed text would be searched instead of the typed one
    box->setMaxVisibleItems(ReplaceEntries);
    box->setMinimumWidth(FieldWidth);
    return box;
}

QPushButton* Button(const char* name, const QString& caption) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    // An auto-default button would take Enter after a click, and Enter has to find.
    button->setAutoDefault(false);
    return button;
}

QCheckBox* Check(const char* name, const QString& caption) {
    auto* box = new QCheckBox(caption);
    box->setObjectName(name);
    return box;
}

// Returns the place nearest to the given one at which the whole dialog is on the screen.
QPoint Inside(QPoint place, QSize size, const QRect& screen) {
    place.setX(std::clamp(place.x(), screen.left(), std::max(screen.left(), screen.right() - size.width())));
    place.setY(std::clamp(place.y(), screen.top(), std::max(screen.top(), screen.bottom() - size.height())));
    return place;
}

}

frmFind::frmFind(QWidget* parent) : QDialog(parent) {
    setObjectName("frmFind");
    setWindowTitle(tr("Find"));
    // The dialog has a fixed size and no minimise or maximise button.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint);
    MakeControls();
    Arrange();
    MRUFind.Number = FindEntries;
    MRUReplace.Number = ReplaceEntries;
    MRUFind.Load();
    MRUReplace.Load();
    LoadOptions();
    Connect();
    Expand(false);
    Enable();
    ShowRun();
}

frmFind::~frmFind() = default;

void frmFind::MakeControls() {
    cboFind = Field("cboFind", tr("Text to find"));
    cboReplace = Field("cboReplace", tr("Text to replace it with"));
    lblFind = new QLabel(tr("Find :"));
    lblFind->setBuddy(cboFind);
    lblReplace = new QLabel(tr("Replace &with"));
    lblReplace->setBuddy(cboReplace);
    lblStatus = new QLabel;
    lblStatus->setObjectName("lblStatus");
    lblStatus->setTextFormat(Qt::PlainText);
    lblStatus->setMinimumHeight(
        lblFind->sizeHint().height()); // without it the dialog would shrink when there is no result
    cmdFind = Button("cmdFind", tr("&Find"));
    cmdFindPrev = Button("cmdFindPrev", tr("Find Previous from cursor"));
    cmdInsertWordUnderCursor = Button("cmdInsertWordUnderCursor", tr("Insert word under cursor"));
    cmdMarkAll = Button("cmdMarkAll", tr("Find && &Mark All"));
    cmdReplace = Button("cmdReplace", tr("&Replace..."));
    cmdReplaceAll = Button("cmdReplaceAll", tr("Replace All"));
    cmdCancel = Button("cmdCancel", tr("Close"));
    chkMatchCase = Check("chkMatchCase", tr("Match case"));
    chkWholeWord = Check("chkWholeWord", tr("Whole word only"));
    chkWordStart = Check("chkWordStart", tr("Match word start"));
    chkRegExp = Check("chkRegExp", tr("Use regular e&xp."));
    optStartAt = new QButtonGroup(this);
    optSearchIn = new QButtonGroup(this);
    cmdFind->setDefault(true);
}

QGroupBox* frmFind::Group(const char* name, const QString& title, QButtonGroup* buttons,
                          const QStringList& captions) {
    auto* group = new QGroupBox(title);
    group->setObjectName(name);
    auto* layout = new QVBoxLayout(group);
    layout->setSpacing(4);
    for (const QString& caption : captions) {
        auto* option = new QRadioButton(caption);
        const int index = static_cast<int>(buttons->buttons().size());
        option->setObjectName(QString(name) + QString::number(index));
        buttons->addButton(option, index);
        layout->addWidget(option);
    }
    layout->addStretch();
    return group;
}

QGridLayout* frmFind::TextFields() {
    auto* texts = new QGridLayout;
    texts->setHorizontalSpacing(8);
    texts->addWidget(lblFind, 0, 0);
    texts->addWidget(cboFind, 0, 1);
    texts->addWidget(lblReplace, 1, 0);
    texts->addWidget(cboReplace, 1, 1);
    texts->setColumnStretch(1, 1);
    return texts;
}

QHBoxLayout* frmFind::OptionGroups() {
    auto* match = new QGroupBox(tr("Options"));
    auto* checks = new QVBoxLayout(match);
    checks->setSpacing(4);
    for (QCheckBox* box : {chkMatchCase, chkWholeWord, chkWordStart, chkRegExp}) checks->addWidget(box);
    checks->addStretch();
    startAt_ = Group("optStartAt", tr("Start at"), optStartAt, {tr("&Top"), tr("Cu&rsor")});
    searchIn_ = Group("optSearchIn", tr("Search In"), optSearchIn,
                      {tr("&Current File"), tr("Current &Project"), tr("&All Files"), tr("&Selection")});
    auto* options = new QHBoxLayout;
    options->setSpacing(12);
    options->addWidget(match, 1);
    options->addWidget(startAt_);
    options->addWidget(searchIn_);
    return options;
}

QVBoxLayout* frmFind::ButtonColumn() {
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(6);
    for (QPushButton* button :
         {cmdFind, cmdFindPrev, cmdReplace, cmdReplaceAll, cmdMarkAll, cmdInsertWordUnderCursor})
        buttons->addWidget(button);
    buttons->addStretch();
    buttons->addWidget(cmdCancel);
    return buttons;
}

void frmFind::Arrange() {
    auto* left = new QVBoxLayout;
    left->setSpacing(10);
    left->addLayout(TextFields());
    left->addLayout(OptionGroups());
    left->addStretch();
    left->addWidget(lblStatus);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(14, 14, 14, 12);
    layout->setSpacing(14);
    layout->addLayout(left, 1);
    layout->addLayout(ButtonColumn());
    layout->setSizeConstraint(QLayout::SetFixedSize);
    SetTabStops();
}

void frmFind::SetTabStops() {
    QList<QWidget*> stops{cboFind, cboReplace, chkMatchCase, chkWholeWord, chkWordStart, chkRegExp};
    for (const QGroupBox* group : {startAt_, searchIn_})
        for (QRadioButton* option : group->findChildren<QRadioButton*>()) stops << option;
    stops << cmdFind << cmdFindPrev << cmdReplace << cmdReplaceAll << cmdMarkAll << cmdInsertWordUnderCursor
          << cmdCancel;
    for (qsizetype i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1], stops[i]);
}

void frmFind::Connect() {
    connect(cmdFind, &QPushButton::clicked, this, [this] { FindNext(true); });
    connect(cmdFindPrev, &QPushButton::clicked, this, [this] { FindPrevious(true); });
    connect(cmdReplace, &QPushButton::clicked, this, [this] { cmdReplace_Click(); });
    connect(cmdReplaceAll, &QPushButton::clicked, this, [this] { cmdReplaceAll_Click(); });
    connect(cmdMarkAll, &QPushButton::clicked, this, [this] { cmdMarkAll_Click(); });
    connect(cmdInsertWordUnderCursor, &QPushButton::clicked, this, [this] { InsertWordUnderCursor(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
    connect(cboFind, &QComboBox::editTextChanged, this, [this] { NewRun(); });
    for (QCheckBox* box : {chkMatchCase, chkWholeWord, chkWordStart, chkRegExp})
        connect(box, &QCheckBox::toggled, this, [this] {
            Enable();
            NewRun();
        });
    for (QButtonGroup* group : {optStartAt, optSearchIn})
        connect(group, &QButtonGroup::idToggled, this, [this] {
            Enable();
            NewRun();
        });
    cboReplace->installEventFilter(this);
}

// Enter replaces in the replace field, and finds in every other field.
bool frmFind::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) cmdReplace->setDefault(true);
    if (event->type() == QEvent::FocusOut) cmdFind->setDefault(true);
    return QDialog::eventFilter(watched, event);
}

// Tab stops at the checked option of a group; the arrow keys select another one.
void frmFind::StopAtChosen(const QButtonGroup& group) {
    for (QAbstractButton* button : group.buttons())
        button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

void frmFind::Enable() {
    StopAtChosen(*optStartAt);
    StopAtChosen(*optSearchIn);
    const bool selection = optSearchIn->checkedId() == static_cast<int>(SearchIn::Selection);
    startAt_->setEnabled(!selection);
    cmdFindPrev->setEnabled(!selection);
    for (QCheckBox* box : {chkWholeWord, chkWordStart, chkMatchCase})
        box->setEnabled(!chkRegExp->isChecked());
}

void frmFind::Expand(bool expanded) {
    if (expanded && !expanded_) {
        cboReplace->clear();
        for (const std::string& item : MRUReplace.Items()) cboReplace->addItem(QString::fromStdString(item));
    }
    if (!expanded) cboReplace->clear();
    expanded_ = expanded;
    setWindowTitle(expanded ? tr("Replace") : tr("Find"));
    cmdReplace->setText(expanded ? tr("&Replace") : tr("&Replace..."));
    for (QWidget* widget : std::array<QWidget*, 3>{lblReplace, cboReplace, cmdReplaceAll})
        widget->setVisible(expanded);
    if (!expanded) cmdFind->setDefault(true);
}

void frmFind::LoadOptions() {
    const auto choose = [](QButtonGroup* group, int index) {
        if (QAbstractButton* button = group->button(index)) button->setChecked(true);
    };
    choose(optStartAt, 1);
    choose(optSearchIn, 0);
    choose(optStartAt, Stored("SearchArea", 1));
    choose(optSearchIn, Stored("SearchIn", 0));
    chkMatchCase->setChecked(Stored("MatchCase", 0) != 0);
    chkWordStart->setChecked(Stored("WordStart", 0) != 0);
    chkWholeWord->setChecked(Stored("WholeWord", 0) != 0);
    chkRegExp->setChecked(Stored("RegEx", 0) != 0);
}

void frmFind::SaveOptions() const {
    Store("SearchArea", optStartAt->checkedId());
    Store("SearchIn", optSearchIn->checkedId());
    Store("MatchCase", chkMatchCase->isChecked());
    Store("WordStart", chkWordStart->isChecked());
    Store("WholeWord", chkWholeWord->isChecked());
    Store("RegEx", chkRegExp->isChecked());
}

void frmFind::hideEvent(QHideEvent* event) {
    Store("Left", pos().x() * TwipsPerPixel);
    Store("Top", pos().y() * TwipsPerPixel);
    SaveOptions();
    QDialog::hideEvent(event);
}

// Moves the dialog to its last place, or else to the upper right of the main window.
void frmFind::Place() {
    const QWidget* main = parentWidget();
    const QScreen* screen = main ? main->screen() : QApplication::primaryScreen();
    adjustSize();
    constexpr int Nowhere = -1000000;
    QPoint place(Stored("Left", Nowhere), Stored("Top", Nowhere));
    if (place.x() != Nowhere)
        place /= TwipsPerPixel;
    else if (main)
        place = main->geometry().topRight() + QPoint(-width() - 4 * Gap, 10 * Gap);
    else
        place = {};
    move(Inside(place, size(), screen->availableGeometry()));
}

// Moves the dialog if it covers the hit.
void frmFind::RepositionDialog(std::intptr_t start, std::intptr_t end) {
    if (!isVisible()) return;
    const auto* view = static_cast<QWidget*>(ActiveForm()->NativeWidget());
    const auto point = [&](std::intptr_t position) {
        return view->mapToGlobal(QPoint(static_cast<int>(Mod_Sci::PointXFromPosition(position)),
                                        static_cast<int>(Mod_Sci::PointYFromPosition(position))));
    };
    const int height = static_cast<int>(Mod_Sci::TextHeight(0));
    const QRect hit = QRect(point(start), point(end) + QPoint(1, height)).normalized();
    const QRect frame = frameGeometry();
    if (!frame.intersects(hit.adjusted(-Gap, -Gap, Gap, Gap))) return;
    const QRect screen = this->screen()->availableGeometry();
    const QPoint candidates[] = {{frame.left(), hit.bottom() + 2 * Gap},
                                 {frame.left(), hit.top() - frame.height() - 2 * Gap},
                                 {hit.right() + 2 * Gap, frame.top()},
                                 {hit.left() - frame.width() - 2 * Gap, frame.top()}};
    for (const QPoint& candidate : candidates) {
        const QRect moved(Inside(candidate, frame.size(), screen), frame.size());
        if (!moved.intersects(hit)) return move(moved.topLeft());
    }
}
