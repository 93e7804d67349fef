// The lists of the Code Explorer: one for each kind of symbol; the locals of a function and the fields of a
// type have a list beside it. Only the visible list is kept up to date; a hidden one catches up when shown.
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

// A kind of symbol that has a list. Its name is also the name of its button.
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

    // Updates the visible list from its table and lowers the table's dirty flag. Does nothing while the pane
    // is hidden; the list catches up when the pane is shown.
    void PuniLista();
    // Sets the file column of the seven lists to no width, or to 4000 twips.
    void HideFileColumn() { SetFileColumn(true); }
    void UnHideFileColumn() { SetFileColumn(false); }
    // Selects the construct that PuniLista updates. An unknown name does nothing.
    void SetConstruct(const std::string& name);
    const char* ShownConstruct() const { return Constructs[construct_].name; }
    // Lists only names that contain this text (bytes as in the source, compared without case).
    void SetFilter(const std::string& text);
    CodeList& ShownList() { return *lists_[construct_].list; }
    // Updates the line number of every listed function. Also runs by itself when typing pauses.
    void RefreshLines();

    // Called when the user wants to leave the lists (Escape).
    std::function<void()> LeaveList;
    bool ShowOnlyFile = false; // only the symbols of the active document
    QString LastVisibleControl;

protected:
    void showEvent(QShowEvent* event) override;

private:
    // A list with the project and the filter that it showed last.
    struct Listed {
        CodeList* list = nullptr;
        std::weak_ptr<ClsProject> project;
        std::string filter;
    };
    // The list of locals or fields beside a main list.
    struct Side {
        CodeList* list = nullptr;
        bool ClsProject::*dirty = nullptr;
        const Symbol* of = nullptr; // the function or type whose names are listed
    };

    void MakeLists();
    void ConnectAll();
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
