// The main window: handles commands and tabs, and enables commands.
#pragma once

#include "editor/EditorCalls.h"
#include "host/DockStudio.h"

#include <string>

class frmDoc;

// The keys of the last active document windows; NextFileTab swaps between them.
struct RecentTabs {
    std::string current;
    std::string previous;
    std::string older;
};

class frmMain : public DockStudioEvents {
public:
    // The only main window, created on first use.
    static frmMain& Instance();

    // Builds the window: publishes the instance, loads the arrangement, adds the panes, fills the boxes.
    void Form_Load();
    // Returns the document of the active window; null if no window or the help tab is active.
    frmDoc* ActiveDocument();
    // Enables commands according to the active document.
    void UpdateCommandUI();
    // Enables only "Undo" and "Redo", because this runs on every keystroke.
    void UpdateSciCommandUI();
    // Adds the commands that an older arrangement lacks, and looks up those that are used often.
    void AdditionalUISetup();
    // Makes commands repeat while their key is held down.
    void ApplyCommandsAutoRepeat();
    // Puts the forms into their panes. `addNew` creates panes that the arrangement lacks.
    void AddDockForms(bool addNew);
    // Fills the compiler box with the names of all compilers.
    void FillCompilers();
    // Fills the command line box with the recent command lines.
    void PopulateCboCommandLine();

    void SetPositionText(const std::string& text);
    void SetFunctionText(const std::string& text);
    // Shows the call or the scope at the caret in the tip box.
    void SetTipText(const TipText& tip);
    // Shows a word (UTF-8) in the tip box for a few seconds.
    void SetNotice(const std::string& text);
    RecentTabs& Tabs() { return tabs_; }

    void DS_CommandClick(DockCommand& command, int item) override;
    void DS_ComboTextChanged(DockCommand& command) override;
    void DS_ComboTextCommitted(DockCommand& command) override;
    void DS_DocumentWindowActivate(DocumentWindow& window, bool creating) override;
    void DS_DocumentWindowDeactivate(DocumentWindow& window) override;
    void DS_DocumentWindowHiding(DocumentWindow& window, bool& cancel) override;
    void DS_DocumentWindowHidden(DocumentWindow& window) override;
    void DS_DocumentWindowContextClick(DocumentWindow& window, int place, int x, int y,
                                       bool& cancel) override;
    void DS_DocumentWindowDoubleClick(DocumentWindow& window, int place) override;
    void DS_PaneShown(const std::string& pane, bool shown) override;
    void DS_Customization(bool begins) override;
    void DS_ShortcutFiring(DockCommand& command, bool& cancel) override;
    void DS_FilesDropped(const std::vector<std::string>& paths) override;
    void DS_QueryUnload(bool& cancel) override;
    void DS_Resize() override;

private:
    void AttachDockForm(const std::string& pane, const std::string& caption, const std::string& icon,
                        Form& form, bool addNew);
    void ActivateDocument(frmDoc& document);
    void ForgetDocument();
    void ShowProgressPane(bool progress);

    DockCommand* statusMain_ = nullptr;
    DockCommand* functions_ = nullptr;
    DockCommand* position_ = nullptr;
    DockCommand* progress_ = nullptr;
    DockCommand* undo_ = nullptr;
    DockCommand* redo_ = nullptr;
    RecentTabs tabs_;
    TipText tip_;
    int noticeTimer_ = 0; // runs while the tip box shows a notice
};
