// The lists of the Code Explorer: one for each kind of symbol, with the locals of a function and the fields
// of a type beside theirs. Only the shown list is kept up to date; another one catches up when it is shown.
#pragma once

#include "engine/ClsProject.h"
#include "workbench/explorer/CodeList.h"

#include <QStackedWidget>
#include <QTimer>
#include <array>
#include <functional>
#include <memory>
#include <string>

class frmDoc;

// One kind of symbol that is listed. Its name is the key of its button.
struct Construct {
    const char* name;
    const char* list;
    const char* icon;
    clsHash ClsProject::*table;
    bool ClsProject::*dirty;
    LabelParts parts;
};
inline constexpr std::size_t ConstructCount = 7;
extern const std::array<Construct, ConstructCount> Constructs;

class frmList : public QStackedWidget {
public:
    frmList();

    // Brings the shown list into agreement with its table. Lowers the table's dirty flag. While nobody can
    // see the lists nothing is done; they catch up when they are shown.
    void PuniLista();
    // The file column of the seven lists: of no width, or 4000 twips wide.
    void HideFileColumn() { SetFileColumn(true); }
    void UnHideFileColumn() { SetFileColumn(false); }
    // Chooses the construct that PuniLista shows. An unknown name does nothing.
    void SetConstruct(const std::string& name);
    const char* ShownConstruct() const { return Constructs[construct_].name; }
    // Leaves only names that contain this text (bytes as in the source, without regard to case).
    void SetFilter(const std::string& text);
    CodeList& ShownList() { return *lists_[construct_].list; }
    // Asks for the line of every function that is listed. Runs by itself when typing pauses.
    void RefreshLines();

    // Tells that the user wants out of the lists.
    std::function<void()> LeaveList;
    bool ShowOnlyFile = false; // only the symbols of the active document
    QString LastVisibleControl;

protected:
    void showEvent(QShowEvent* event) override;

private:
    // A list and what it last showed.
    struct Listed {
        CodeList* list = nullptr;
        std::weak_ptr<ClsProject> project;
        std::string filter;
    };
    // The list beside another one.
    struct Side {
        CodeList* list = nullptr;
        bool ClsProject::*dirty = nullptr;
        const Symbol* of = nullptr; // whose names it shows
    };

    void Connect(CodeList& list);
    QWidget* AddSide(std::size_t construct, Side& side, const char* splitter);
    void Fill(Listed& listed, const std::shared_ptr<ClsProject>& project);
    void FillSide();
    Side* ShownSide();
    void SetFileColumn(bool hidden);
    void SetFunctionOrder();
    void ShowControl();
    void GotoItem(const CodeList& list);
    SymbolPointer Reopened(const ClsProject& project, const SymbolPointer& symbol,
                           const SymbolPointer& owner);
    bool OpenFileOf(const SymbolPointer& symbol);
    void ShowIncludePopup(const QPoint& at);
    void OpenInclude();

    std::array<Listed, ConstructCount> lists_;
    Side locals_;
    Side fields_;
    std::size_t construct_ = 0;
    std::string filter_;
    std::weak_ptr<ClsProject> shown_; // the project last shown
    bool inFileOrder_ = false;
    QTimer typingPause_;
};
