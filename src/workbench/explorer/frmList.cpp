// Chooses the project and the file that the lists show, and updates the lists.
#include "workbench/explorer/frmList.h"

#include "documents/Options.h"
#include "editor/frmDoc.h"
#include "engine/SymbolLine.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "host/Text.h"
#include "host/Twips.h"

#include <QHeaderView>
#include <QSplitter>
#include <algorithm>

const std::array<Construct, ConstructCount> Constructs = {{
    {"Functions", "lvFunctions", "imgFunctions", &ClsProject::Funkcii, &ClsProject::FunctionsDirty, {true}},
    {"Globals", "lvGlobals", "imgGlobals", &ClsProject::Globals, &ClsProject::GlobalsDirty, {true, true}},
    {"Types", "lvTypes", "imgTypes", &ClsProject::Types, &ClsProject::TypesDirty, {}},
    {"Arrays", "lvArrays", "imgArrays", &ClsProject::Arrays, &ClsProject::ArraysDirty, {true}},
    {"Constants", "lvConstants", "imgConstants", &ClsProject::Constants, &ClsProject::ConstantsDirty, {true}},
    {"Labels", "lvLabels", "imgLabels", &ClsProject::Labels, &ClsProject::LabelsDirty, {}},
    {"Includes", "lvIncludes", "imgIncludes", &ClsProject::Includes, &ClsProject::IncludesDirty, {}},
}};

namespace {

enum : std::size_t { Functions = 0, Types = 2, Includes = 6 };

constexpr int FileColumnTwips = 4000;
constexpr int NameColumnPixels = 170;
constexpr int LinePadding = 16; // pixels
constexpr int TypingPauseMilliseconds = 250;

// The document of the active window, which is not always the view that is being served.
const frmDoc* ActiveDocument() { return DocumentIn(gHost.dock->ActiveDocumentWindow()); }

}

frmList::frmList() {
    MakeLists();
    ConnectAll();
    UnHideFileColumn();
    ShowControl();
}

void frmList::MakeLists() {
    for (std::size_t i = 0; i < ConstructCount; ++i) {
        const Construct& construct = Constructs[i];
        QStringList headers{tr("Name"), tr("File")};
        if (i == Functions) headers << tr("Line");
        lists_[i].list = new CodeList(construct.list, headers, construct.icon, construct.parts);
    }
    locals_ = {new CodeList("lvLocals", {tr("Locals")}, "imgLocals", {true, true}), &ClsProject::LocalsDirty};
    fields_ = {new CodeList("lvFields", {tr("Fields")}, "imgFields", {true}), &ClsProject::FieldsDirty};
    QWidget* functions = AddSide(Functions, locals_, "SplitterFunctions");
    QWidget* types = AddSide(Types, fields_, "SplitterTypes");
    for (std::size_t i = 0; i < ConstructCount; ++i)
        addWidget(i == Functions ? functions : i == Types ? types : lists_[i].list);
    CodeList* withLines = lists_[Functions].list;
    withLines->setColumnWidth(CodeModel::Line,
                              withLines->fontMetrics().horizontalAdvance("0000000") + LinePadding);
}

void frmList::ConnectAll() {
    for (const Listed& listed : lists_) Connect(*listed.list);
    for (const std::size_t construct : {Functions, Types})
        lists_[construct].list->clicked = [this] { FillSide(); };
    Connect(*locals_.list);
    Connect(*fields_.list);
    CodeList* includes = lists_[Includes].list;
    includes->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(includes, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        Guarded("lvIncludes_MouseUp", "frmList", [&] { ShowIncludePopup(at); });
    });
    typingPause_.setSingleShot(true);
    typingPause_.setInterval(TypingPauseMilliseconds);
    connect(&typingPause_, &QTimer::timeout, this, &frmList::RefreshLines);
}

void frmList::Connect(CodeList& list) {
    list.chosen = [this, &list] { GotoItem(list); };
    list.left = [this] {
        if (LeaveList) LeaveList();
    };
}

QWidget* frmList::AddSide(std::size_t construct, Side& side, const char* name) {
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setObjectName(name);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(lists_[construct].list);
    splitter->addWidget(side.list);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 1);
    return splitter;
}

void frmList::SetConstruct(const std::string& name) {
    for (std::size_t i = 0; i < ConstructCount; ++i)
        if (name == Constructs[i].name) construct_ = i;
}

void frmList::SetFilter(const std::string& text) { filter_ = UCase(text); }

void frmList::showEvent(QShowEvent* event) {
    QStackedWidget::showEvent(event);
    PuniLista();
}

void frmList::PuniLista() {
    if (!isVisible() || gHost.dock == nullptr) return;
    Guarded("PuniLista", "frmList", [this] {
        const frmDoc* document = ActiveDocument();
        auto project = document == nullptr ? shown_.lock() : gProjects.Find(document->PrjFullPath);
        if (project && !gProjects.Exist_Item(project.get())) project.reset();
        shown_ = project;
        Fill(lists_[construct_], project);
        ShowControl();
    });
}

void frmList::Fill(Listed& listed, const std::shared_ptr<ClsProject>& project) {
    const Construct& construct = Constructs[construct_];
    const bool other = listed.project.lock() != project;
    if (other || !project) {
        listed.project = project;
        listed.list->Show({});
    }
    if (project && (other || project.get()->*construct.dirty || listed.filter != filter_)) {
        if (construct_ == Functions) SetFunctionOrder();
        const frmDoc* document = ActiveDocument();
        const std::string file = document == nullptr ? std::string() : document->Filename;
        std::vector<SymbolPointer> symbols = (project.get()->*construct.table).Items();
        if (ShowOnlyFile || !filter_.empty())
            std::erase_if(symbols, [&](const SymbolPointer& symbol) {
                return (ShowOnlyFile && symbol->File != file) ||
                       UCase(symbol->Ime).find(filter_) == std::string::npos;
            });
        listed.list->Show(symbols);
        // New rows of a list in file order need their lines at once; otherwise the lines wait for a pause.
        if (other || listed.list->Rows().SortColumn() == CodeModel::Line) RefreshLines();
        listed.filter = filter_;
        project.get()->*construct.dirty = false;
    }
    if (construct_ == Functions) typingPause_.start();
    const Side* side = ShownSide();
    if (side && (side->of != listed.list->Current().get() || (project && project.get()->*side->dirty)))
        FillSide();
}

// Functions of a single file are listed in file order if the user has chosen that, else by name.
void frmList::SetFunctionOrder() {
    const bool inFileOrder = Options::gUnsortedFunctions != 0 && ShowOnlyFile;
    if (inFileOrder == inFileOrder_) return;
    inFileOrder_ = inFileOrder;
    lists_[Functions].list->sortByColumn(inFileOrder ? CodeModel::Line : CodeModel::Name, Qt::AscendingOrder);
}

frmList::Side* frmList::ShownSide() {
    return construct_ == Functions ? &locals_ : construct_ == Types ? &fields_ : nullptr;
}

// Updates the locals of the current function, or the fields of the current type.
void frmList::FillSide() {
    Guarded(construct_ == Functions ? "lvFunctions_ItemClick" : "lvTypes_ItemClick", "frmList", [this] {
        Side* side = ShownSide();
        if (side == nullptr) return;
        const SymbolPointer symbol = ShownList().Current();
        side->of = symbol.get();
        const auto project = lists_[construct_].project.lock();
        if (project) project.get()->*side->dirty = false;
        if (!symbol) return side->list->Show({});
        const auto names = construct_ == Functions ? static_cast<const ClsFunkcija&>(*symbol).Locals
                                                   : static_cast<const ClsType&>(*symbol).Fields;
        side->list->Show(names->Items());
    });
}

void frmList::RefreshLines() {
    const auto project = lists_[Functions].project.lock();
    if (construct_ != Functions || !isVisible() || !project) return;
    Guarded("RefreshLines", "frmList", [&] { lists_[Functions].list->Rows().SetLines(LineOf); });
}

void frmList::SetFileColumn(bool hidden) {
    for (const Listed& listed : lists_) {
        listed.list->setColumnHidden(CodeModel::File, hidden);
        // Without a file column the names get the full width.
        listed.list->header()->setSectionResizeMode(CodeModel::Name,
                                                    hidden ? QHeaderView::Stretch : QHeaderView::Interactive);
        if (hidden) continue;
        listed.list->setColumnWidth(CodeModel::Name, NameColumnPixels);
        listed.list->setColumnWidth(CodeModel::File, FileColumnTwips / TwipsPerPixel);
    }
}

void frmList::ShowControl() {
    QWidget* control = widget(static_cast<int>(construct_));
    if (control->objectName() == LastVisibleControl) return;
    LastVisibleControl = control->objectName();
    setCurrentWidget(control);
}
