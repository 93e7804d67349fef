// The frame of the main window: named commands in menus and bars, dock panes, tabbed document windows,
// a status bar, and the arrangement of all of them in one layout file. It knows nothing of Blitz Basic.
#pragma once

#include <string>
#include <vector>

// What a document window or a pane shows. The owner keeps it alive while it is attached.
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
    // Whether it fires just now by its shortcut, and not by a menu or a button.
    virtual bool FiredByKey() const { return false; }

    // A combo's or a list's entries, and the text that stands in a combo or a status pane.
    virtual void SetItems(const std::vector<std::string>& items) = 0;
    virtual std::vector<std::string> Items() const = 0;
    virtual std::string Text() const = 0;
    virtual void SetText(const std::string& text) = 0;
    // The text of a status pane with one stretch of it, `hot`, in a colour (0x00BBGGRR).
    // Where there is no colour it is plain text.
    virtual void SetMarkedText(const std::string& left, const std::string& hot, const std::string& right,
                               int /*colour*/) {
        SetText(left + hot + right);
    }
};

// One tab of the document area, with a key that is its own.
class DocumentWindow {
public:
    virtual ~DocumentWindow() = default;

    virtual std::string Key() const = 0;
    virtual void SetKey(const std::string& key) = 0;
    virtual void SetCaption(const std::string& caption) = 0;
    virtual Form* HostedForm() const = 0;
    // Puts a form into the window; null takes out what was there.
    virtual void Attach(Form* form) = 0;
    virtual bool Visible() const = 0;
    // Showing makes it the active window. Hiding asks DS_DocumentWindowHiding first; it stays visible where
    // that was cancelled.
    virtual void SetVisible(bool visible) = 0;
    virtual void Activate() = 0;
    // Whether it is the front window of its tab group.
    virtual bool InFront() const = 0;
};

class DockPane {
public:
    virtual ~DockPane() = default;
    virtual bool Visible() const = 0;
    // Rolled away to an edge of the window, from where it slides out on demand. It counts as visible.
    virtual bool AutoHidden() const = 0;
    virtual void SetAutoHidden(bool autoHidden) = 0;
    virtual void Show() = 0; // and gives it the focus
    virtual void Hide() = 0; // a focus that was in it goes to the documents
    virtual bool HasFocus() const = 0;
    virtual bool Floating() const = 0;
    virtual void SetFloating(bool floating) = 0; // and gives it the focus
    // Makes it larger by some steps, or smaller by a negative number of them.
    virtual void Enlarge(int steps) = 0;
};

class DockBar {
public:
    virtual ~DockBar() = default;
    virtual bool Visible() const = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual void FocusFirstControl() = 0;
};

// What the frame tells its owner.
class DockStudioEvents {
public:
    virtual ~DockStudioEvents() = default;

    // A command was chosen. `item` is the index of a list command's entry, else -1.
    virtual void DS_CommandClick(DockCommand& command, int item) = 0;
    virtual void DS_ComboTextChanged(DockCommand& command) = 0;
    virtual void DS_ComboTextCommitted(DockCommand& command) = 0;
    // `creating`: the window is only being made.
    virtual void DS_DocumentWindowActivate(DocumentWindow& window, bool creating) = 0;
    virtual void DS_DocumentWindowDeactivate(DocumentWindow& window) = 0;
    virtual void DS_DocumentWindowHiding(DocumentWindow& window, bool& cancel) = 0;
    virtual void DS_DocumentWindowHidden(DocumentWindow& window) = 0;
    // `place`: 1 inside the document, 3 on the tab. Pixels, of the view; -1 when it was asked for with a key.
    virtual void DS_DocumentWindowContextClick(DocumentWindow& window, int place, int x, int y,
                                               bool& cancel) = 0;
    virtual void DS_DocumentWindowDoubleClick(DocumentWindow& window, int place) = 0;
    virtual void DS_PaneShown(const std::string& pane, bool shown) = 0;
    // A pane begins to be dragged, or was let go.
    virtual void DS_PaneDragged(const std::string& /*pane*/, bool /*begins*/) {}
    // The user begins to change commands, keys and bars, or has ended it.
    virtual void DS_Customization(bool /*begins*/) {}
    // A shortcut is about to fire; when cancelled the key goes on to the focused widget.
    virtual void DS_ShortcutFiring(DockCommand& command, bool& cancel) = 0;
    virtual void DS_FilesDropped(const std::vector<std::string>& paths) = 0;
    // The main window is asked to close.
    virtual void DS_QueryUnload(bool& cancel) = 0;
    virtual void DS_Resize() = 0;
};

// A place and state of the main window: twips; 0 normal, 1 minimised, 2 maximised.
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
    // Fails with FailureDuplicateKey when the name exists already.
    virtual DockCommand& AddCommand(const std::string& name, const std::string& caption,
                                    const std::string& category, bool isPopup) = 0;
    virtual std::vector<DockCommand*> Commands() = 0;
    // The index of a command in a bar or pop-up, -1 where it is not there.
    virtual int IndexInBar(const std::string& bar, const std::string& command) = 0;
    // Puts a command into a bar or pop-up; an index of -1 appends.
    virtual void InsertIntoBar(const std::string& bar, const std::string& command, int index,
                               bool beginGroup) = 0;
    virtual DockBar* FindBar(const std::string& name) = 0;
    virtual DockPane* FindPane(const std::string& name) = 0;
    virtual void AttachPane(const std::string& name, const std::string& caption, const std::string& icon,
                            Form& form, bool addNew) = 0;
    // At the place of the context menu that is being asked for, else at the mouse.
    virtual void ShowPopup(const std::string& name) = 0;
    virtual void FillPopup(const std::string& name,
                           const std::vector<std::string>& commands) = 0; // "-" separates

    // An empty key gets a unique id of 38 characters. Fails with FailureDuplicateKey for a key in use.
    virtual DocumentWindow& AddDocumentWindow(const std::string& key, const std::string& caption,
                                              Form* form) = 0;
    // Null when no window has that key, which is compared byte by byte.
    virtual DocumentWindow* FindDocumentWindow(const std::string& key) = 0;
    virtual DocumentWindow* ActiveDocumentWindow() = 0;
    virtual std::vector<DocumentWindow*> DocumentWindows() = 0;
    // Takes a window away without asking and without events.
    virtual void DropDocumentWindow(DocumentWindow& window) = 0;
    virtual void NextTab(int step) = 0; // of the active tab group
    virtual void NewTabGroup(bool vertical) = 0;
    // Moves the active document window into the tab group behind its own (1) or before it (-1).
    virtual void MoveToTabGroup(int step) = 0;

    // The document windows with their keys, captions and groups, as one line without a double quote.
    virtual std::string WindowsText() = 0;
    // Makes the document windows of such a text, without forms where they aren't there yet, and puts all of
    // them in their places. Throws a Failure and changes nothing when the text is damaged.
    virtual void SetWindowsText(const std::string& text) = 0;

    // Gives the focus to the next (1) or previous (-1) part of the window: the text, a pane, an edge with
    // panes that are rolled away, a box of a tool bar.
    virtual void NextPane(int step) = 0;
    // The pane that has the focus or had it last, else the first that is shown; null where none is.
    virtual DockPane* CurrentPane() = 0;
    virtual void OpenMenuBar() = 0;

    virtual void SuspendRepaint(bool suspend) = 0;

    // Opens the window in which the user changes keys, bars and menus. It stays open beside the main window.
    virtual void Customize() = 0;
    // Takes a command out of a bar or pop-up; nothing where it is not there.
    virtual void RemoveFromBar(const std::string& bar, const std::string& command) = 0;

    // The whole arrangement. Loading throws a Failure and changes nothing when the file is missing or
    // damaged; saving throws when it could not be written. What is loaded first is the factory's
    // arrangement: later ones gain what they don't know of it, and loading that file again brings back all
    // of it.
    virtual void LoadLayout(const std::string& path) = 0;
    // The factory's arrangement from a text, for when its file cannot be read.
    virtual void LoadFactoryText(const std::string& text) = 0;
    virtual void SaveLayout(const std::string& path) = 0;

    virtual WindowPlace Place() = 0;
    virtual void SetPlace(const WindowPlace& place) = 0;
    virtual void ShowWindow() = 0;
    virtual void BringToFront() = 0;
    virtual void CloseWindow() = 0; // asks DS_QueryUnload
};
