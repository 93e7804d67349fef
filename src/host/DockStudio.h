// The frame of the main window: named commands in menus and bars, dock panes, tabbed document windows, a
// status bar, and one layout file for the arrangement of all of them. The frame knows nothing about Blitz
// Basic.
#pragma once

#include <string>
#include <vector>

// The content of a document window or a pane. Its owner keeps it alive while it is attached.
class Form {
public:
    virtual ~Form() = default;
    virtual void* NativeWidget() = 0;
};

// A named command: a menu item, a button, a combo, a list of items or a status pane.
class DockCommand {
public:
    virtual ~DockCommand() = default;

    virtual const std::string& Name() const = 0;
    virtual std::string Category() const = 0;
    virtual void SetCategory(const std::string& category) = 0;
    virtual std::string Caption() const = 0;
    virtual void SetCaption(const std::string& caption) = 0;
    virtual bool Enabled() const = 0;
    virtual void SetEnabled(bool enabled) = 0;
    virtual bool Checked() const = 0;
    virtual void SetChecked(bool checked) = 0;
    virtual bool Visible() const = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual void SetAutoRepeat(bool repeat) = 0; // of its first shortcut
    // Whether the command is being fired by its shortcut, and not by a menu or a button.
    virtual bool FiredByKey() const { return false; }

    // The entries of a combo or a list, and the current text of a combo or a status pane.
    virtual void SetItems(const std::vector<std::string>& items) = 0;
    virtual std::vector<std::string> Items() const = 0;
    virtual std::string Text() const = 0;
    virtual void SetText(const std::string& text) = 0;
    // Sets the text of a status pane with the part `hot` in a colour (0x00BBGGRR). Commands that cannot show
    // colours show plain text.
    virtual void SetMarkedText(const std::string& left, const std::string& hot, const std::string& right,
                               int /*colour*/) {
        SetText(left + hot + right);
    }
};

// One tab of the document area, with a unique key.
class DocumentWindow {
public:
    virtual ~DocumentWindow() = default;

    virtual std::string Key() const = 0;
    virtual void SetKey(const std::string& key) = 0;
    virtual void SetCaption(const std::string& caption) = 0;
    virtual Form* HostedForm() const = 0;
    // Puts a form into the window; null removes the present one.
    virtual void Attach(Form* form) = 0;
    virtual bool Visible() const = 0;
    // Showing a window makes it the active one. Hiding asks DS_DocumentWindowHiding first, and leaves the
    // window visible if that was cancelled.
    virtual void SetVisible(bool visible) = 0;
    virtual void Activate() = 0;
    // Whether the window is in front in its tab group.
    virtual bool InFront() const = 0;
};

class DockPane {
public:
    virtual ~DockPane() = default;
    virtual bool Visible() const = 0;
    // Whether the pane is rolled up at an edge of the window, from where it slides out on demand. Such a pane
    // counts as visible.
    virtual bool AutoHidden() const = 0;
    virtual void SetAutoHidden(bool autoHidden) = 0;
    virtual void Show() = 0; // and gives it the focus
    virtual void Hide() = 0; // and moves its focus to the documents
    virtual bool HasFocus() const = 0;
    virtual bool Floating() const = 0;
    virtual void SetFloating(bool floating) = 0; // and gives it the focus
    // Enlarges the pane by that many steps; a negative number makes it smaller.
    virtual void Enlarge(int steps) = 0;
};

class DockBar {
public:
    virtual ~DockBar() = default;
    virtual bool Visible() const = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual void FocusFirstControl() = 0;
};

// Events that the frame reports to its owner.
class DockStudioEvents {
public:
    virtual ~DockStudioEvents() = default;

    // A command was chosen. `item` is the index of the chosen entry of a list command, else -1.
    virtual void DS_CommandClick(DockCommand& command, int item) = 0;
    virtual void DS_ComboTextChanged(DockCommand& command) = 0;
    virtual void DS_ComboTextCommitted(DockCommand& command) = 0;
    // `creating`: the window is still being made.
    virtual void DS_DocumentWindowActivate(DocumentWindow& window, bool creating) = 0;
    virtual void DS_DocumentWindowDeactivate(DocumentWindow& window) = 0;
    virtual void DS_DocumentWindowHiding(DocumentWindow& window, bool& cancel) = 0;
    virtual void DS_DocumentWindowHidden(DocumentWindow& window) = 0;
    // `place`: 1 inside the document, 3 on the tab. `x` and `y` are pixels of the view, -1 for a menu key.
    virtual void DS_DocumentWindowContextClick(DocumentWindow& window, int place, int x, int y,
                                               bool& cancel) = 0;
    virtual void DS_DocumentWindowDoubleClick(DocumentWindow& window, int place) = 0;
    virtual void DS_PaneShown(const std::string& pane, bool shown) = 0;
    // The user begins to drag a pane, or has released it.
    virtual void DS_PaneDragged(const std::string& /*pane*/, bool /*begins*/) {}
    // The user begins to customise commands, keys and bars, or has finished.
    virtual void DS_Customization(bool /*begins*/) {}
    // A shortcut is about to fire. If that is cancelled, the focused widget gets the key.
    virtual void DS_ShortcutFiring(DockCommand& command, bool& cancel) = 0;
    virtual void DS_FilesDropped(const std::vector<std::string>& paths) = 0;
    // The main window is about to close.
    virtual void DS_QueryUnload(bool& cancel) = 0;
    virtual void DS_Resize() = 0;
};

// Place of the main window in twips, and its state: 0 normal, 1 minimised, 2 maximised.
struct WindowPlace {
    int top = 0;
    int left = 0;
    int width = 0;
    int height = 0;
    int state = 0;
};

class DockStudio {
public:
    virtual ~DockStudio() = default;

    virtual void SetEvents(DockStudioEvents* events) = 0;

    // Null for an unknown name.
    virtual DockCommand* FindCommand(const std::string& name) = 0;
    // Throws FailureDuplicateKey if the name exists already.
    virtual DockCommand& AddCommand(const std::string& name, const std::string& caption,
                                    const std::string& category, bool isPopup) = 0;
    virtual std::vector<DockCommand*> Commands() = 0;
    // The index of a command in a bar or pop-up; -1 if it is not there.
    virtual int IndexInBar(const std::string& bar, const std::string& command) = 0;
    // Puts a command into a bar or pop-up; an index of -1 appends.
    virtual void InsertIntoBar(const std::string& bar, const std::string& command, int index,
                               bool beginGroup) = 0;
    virtual DockBar* FindBar(const std::string& name) = 0;
    virtual DockPane* FindPane(const std::string& name) = 0;
    virtual void AttachPane(const std::string& name, const std::string& caption, const std::string& icon,
                            Form& form, bool addNew) = 0;
    // Opens a pop-up at the place of the requested context menu, else at the mouse.
    virtual void ShowPopup(const std::string& name) = 0;
    virtual void FillPopup(const std::string& name,
                           const std::vector<std::string>& commands) = 0; // "-" separates

    // An empty key is replaced by a unique id of 38 characters. Throws FailureDuplicateKey for a key in use.
    virtual DocumentWindow& AddDocumentWindow(const std::string& key, const std::string& caption,
                                              Form* form) = 0;
    // Null if no window has that key. Keys are compared byte by byte.
    virtual DocumentWindow* FindDocumentWindow(const std::string& key) = 0;
    virtual DocumentWindow* ActiveDocumentWindow() = 0;
    virtual std::vector<DocumentWindow*> DocumentWindows() = 0;
    // Removes a window without asking and without events.
    virtual void DropDocumentWindow(DocumentWindow& window) = 0;
    virtual void NextTab(int step) = 0; // of the active tab group
    virtual void NewTabGroup(bool vertical) = 0;
    // Moves the active document window into the next (1) or the previous (-1) tab group.
    virtual void MoveToTabGroup(int step) = 0;

    // The document windows with their keys, captions and groups, as one line without double quotes.
    virtual std::string WindowsText() = 0;
    // Restores the groups of such a text, and adds missing windows without forms. Throws a Failure and
    // changes nothing if the text is damaged.
    virtual void SetWindowsText(const std::string& text) = 0;

    // Moves the focus to the next (1) or previous (-1) part of the window: the text, a pane, an edge with
    // rolled-up panes, a box of a tool bar.
    virtual void NextPane(int step) = 0;
    // The pane that has or last had the focus, else the first visible one; null if none is visible.
    virtual DockPane* CurrentPane() = 0;
    virtual void OpenMenuBar() = 0;

    virtual void SuspendRepaint(bool suspend) = 0;

    // Opens the modeless window in which the user changes keys, bars and menus.
    virtual void Customize() = 0;
    // Removes a command from a bar or pop-up, if it is there.
    virtual void RemoveFromBar(const std::string& bar, const std::string& command) = 0;

    // Loads the whole arrangement. Throws a Failure and changes nothing if the file is missing or damaged.
    // The first loaded file is the factory's arrangement: later ones are completed from it.
    virtual void LoadLayout(const std::string& path) = 0;
    // Sets the factory's arrangement from a text, for use if its file cannot be read.
    virtual void LoadFactoryText(const std::string& text) = 0;
    // Throws a Failure if the file cannot be written.
    virtual void SaveLayout(const std::string& path) = 0;

    virtual WindowPlace Place() = 0;
    virtual void SetPlace(const WindowPlace& place) = 0;
    virtual void ShowWindow() = 0;
    virtual void BringToFront() = 0;
    virtual void CloseWindow() = 0; // asks DS_QueryUnload
};
