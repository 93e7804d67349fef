// The main window: what happens when a command is chosen, a tab comes to the front or closes, and which
// commands are enabled.
#pragma once

#include "editor/EditorCalls.h"
#include "host/DockStudio.h"

#include <string>

class frmDoc;

// The key of the help tab, which no handler takes for a document.
inline constexpr const char* HelpWindowKey = "HELP WINDOW";

// The keys of the document windows that were active last; NextFileTab swaps between them.
struct RecentTabs {
    std::string current;
    std::string previous;
    std::string older;
};

class frmMain : public DockStudioEvents {
public:
    // The one main window, made on first use.
    static frmMain& Instance();

    // Builds the window: publishes the instance, loads the arrangement, adds panes, fills the boxes.
    void Form_Load();
    // The document of the active window; null when there is none or the help tab is active.
    frmDoc* ActiveDocument();
    // Enables commands by the active document.
    void UpdateCommandUI();
    // Enables "Undo" and "Redo" alone, because it runs on every keystroke.
    void UpdateSciCommandUI();
    // Brings an older arrangement up to the present set of commands, and fetches what is used often.
    void AdditionalUISetup();
    // Makes the commands repeat that are held down.
    void ApplyCommandsAutoRepeat();
    // Puts the forms into their panes; `addNew` makes panes that the arrangement lacks.
    void AddDockForms(bool addNew);
    // Puts the names of all compilers into their box.
    void FillCompilers();
    // Puts the command lines that were used last into theirs.
    void PopulateCboCommandLine();

    void SetPositionText(const std::string& text);
    void SetFunctionText(const std::string& text);
    // The tip box: the call or the scope at the caret.
    void SetTipText(const TipText& tip);
    // A word (UTF-8) in its place for a few seconds.
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
    int noticeTimer_ = 0; // runs while a notice stands in the tip box
};
