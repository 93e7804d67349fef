// The Code Explorer pane: its buttons and its filter.
#include "workbench/explorer/frmMainList.h"

#include "documents/DocumentCalls.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "workbench/explorer/frmList.h"
#include "workbench/parts/SymbolIcons.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr QSize PaneSize(320, 420); // used if the arrangement has no size for the pane
constexpr int Spacing = 2;

// Asks for a useful width and passes the focus on to the visible list. A focus proxy would do that too, but
// then Tab would skip the controls above the list.
class Pane : public QWidget {
public:
    QSize sizeHint() const override { return PaneSize; }

protected:
    void focusInEvent(QFocusEvent*) override { frmMainList::Instance().FocusList(); }
};

bool HelpIsActive() {
    const DocumentWindow* window = gHost.dock->ActiveDocumentWindow();
    return window != nullptr && window->Key() == HelpWindowKey;
}

void FocusDocument() {
    const frmDoc* document = ActiveForm();
    if (!document) return;
    // A floating pane is in a window of its own, which is the active one.
    static_cast<QWidget*>(document->View->NativeWidget())->window()->activateWindow();
    document->View->GrabFocus();
}

}

frmMainList& frmMainList::Instance() {
    static frmMainList pane;
    return pane;
}

frmMainList::frmMainList() : pane_(new Pane), lists_(new frmList), filter_(new QLineEdit) {
    auto* layout = new QVBoxLayout(pane_);
    layout->setContentsMargins(Spacing, Spacing, Spacing, 0);
    layout->setSpacing(Spacing);
    layout->addLayout(MakeButtons());
    MakeFilter();
    layout->addWidget(filter_);
    layout->addWidget(lists_, 1);
    lists_->LeaveList = FocusDocument;
    CheckButtons();
}

QLayout* frmMainList::MakeButtons() {
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Spacing);
    for (std::size_t i = 0; i < ConstructCount; ++i) {
        const Construct& construct = Constructs[i];
        constructs_[i] = AddButton(construct.name, [this, &construct] { ShowConstruct(construct.name); });
        constructs_[i]->setIcon(SymbolIcon(construct.icon));
        constructs_[i]->setToolTip(constructs_[i]->accessibleName());
        buttons->addWidget(constructs_[i]);
    }
    buttons->addStretch();
    file_ = AddButton("File", [this] { SetScope(true); });
    file_->setText(tr("File"));
    file_->setToolTip(tr("Only the symbols of the current file"));
    project_ = AddButton("Project", [this] { SetScope(false); });
    project_->setText(tr("Project"));
    project_->setToolTip(tr("The symbols of the whole project"));
    buttons->addWidget(file_);
    buttons->addWidget(project_);
    return buttons;
}

void frmMainList::MakeFilter() {
    filter_->setPlaceholderText(tr("Filter"));
    filter_->setAccessibleName(tr("Filter"));
    filter_->setObjectName("txtFilter");
    filter_->setClearButtonEnabled(true);
    for (auto* clear : filter_->findChildren<QToolButton*>())
        clear->setAccessibleName(tr("Clear the filter"));
    filter_->installEventFilter(this);
    connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
        lists_->SetFilter(text.trimmed().toStdString());
        PuniLista();
    });
}

// The pane's widget belongs to its parent. Without a parent the form deletes it, unless the toolkit has
// already shut down.
frmMainList::~frmMainList() {
    if (pane_ && !pane_->parent() && qApp) delete pane_;
}

void* frmMainList::NativeWidget() { return static_cast<QWidget*>(pane_.data()); }

QToolButton* frmMainList::AddButton(const char* name, const std::function<void()>& clicked) {
    auto* button = new QToolButton;
    button->setObjectName(QString("cmd%1").arg(name));
    button->setAccessibleName(tr(name));
    button->setCheckable(true);
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, [this, clicked] {
        Guarded("DSCommands_Click", "frmMainList", clicked);
        CheckButtons(); // the toolkit has checked a button whose click was refused
    });
    return button;
}

void frmMainList::CheckButtons() {
    for (std::size_t i = 0; i < ConstructCount; ++i)
        constructs_[i]->setChecked(lists_->ShownConstruct() == std::string(Constructs[i].name));
    file_->setChecked(lists_->ShowOnlyFile);
    project_->setChecked(!lists_->ShowOnlyFile);
}

void frmMainList::AllConstructsDirty() {
    if (gCurrentProject) gCurrentProject->MarkAllDirty();
}

void frmMainList::PuniLista() {
    if (lists_) lists_->PuniLista();
}

void frmMainList::Refresh() {
    AllConstructsDirty();
    PuniLista();
}

void frmMainList::ShowConstruct(const std::string& name) {
    if (!lists_) return;
    lists_->SetConstruct(name);
    CheckButtons();
    PuniLista();
}

void frmMainList::FocusList() {
    if (lists_) lists_->ShownList().setFocus(Qt::OtherFocusReason);
}

bool frmMainList::ShowOnlyFile() const { return lists_ && lists_->ShowOnlyFile; }

void frmMainList::SetScope(bool onlyFile) {
    if (HelpIsActive()) return;
    lists_->ShowOnlyFile = onlyFile;
    AllConstructsDirty();
    // A list of one file needs no file column.
    onlyFile ? lists_->HideFileColumn() : lists_->UnHideFileColumn();
    PuniLista();
}

bool frmMainList::eventFilter(QObject* watched, QEvent* event) {
    if (watched != filter_ || event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    return FilterKey(static_cast<QKeyEvent*>(event)->key());
}

// Returns true if the key was handled.
bool frmMainList::FilterKey(int key) {
    switch (key) {
    case Qt::Key_Escape: filter_->text().isEmpty() ? FocusDocument() : filter_->clear(); return true;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        CodeList& list = lists_->ShownList();
        if (!list.currentIndex().isValid()) list.setCurrentIndex(list.Rows().index(0, 0));
        FocusList();
        return true;
    }
    default: return false;
    }
}
