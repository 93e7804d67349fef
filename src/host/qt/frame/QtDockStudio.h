// The frame of the main window.
#pragma once

#include "host/DockStudio.h"
#include "host/qt/commands/Menus.h"
#include "host/qt/commands/QtBar.h"
#include "host/qt/commands/ShortcutFilter.h"
#include "host/qt/customize/CustomizeTarget.h"
#include "host/qt/frame/StudioWindow.h"
#include "host/qt/panes/QtPane.h"
#include "host/qt/tabs/QtDocumentArea.h"

#include <QElapsedTimer>
#include <QTimer>

class CustomizeDialog;

class QtDockStudio : public DockStudio, private CustomizeTarget {
public:
    QtDockStudio();
    ~QtDockStudio() override;

    void SetEvents(DockStudioEvents* events) override;
    DockCommand* FindCommand(const std::string& name) override;
    DockCommand& AddCommand(const std::string& name, const std::string& caption, const std::string& category,
                            bool isPopup) override;
    std::vector<DockCommand*> Commands() override;
    int IndexInBar(const std::string& bar, const std::string& command) override;
    void InsertIntoBar(const std::string& bar, const std::string& command, int index,
                       bool beginGroup) override;
    DockBar* FindBar(const std::string& name) override;
    DockPane* FindPane(const std::string& name) override;
    void AttachPane(const std::string& name, const std::string& caption, const std::string& icon, Form& form,
                    bool addNew) override;
    void ShowPopup(const std::string& name) override;
    void FillPopup(const std::string& name, const std::vector<std::string>& commands) override;

    DocumentWindow& AddDocumentWindow(const std::string& key, const std::string& caption,
                                      Form* form) override;
    DocumentWindow* FindDocumentWindow(const std::string& key) override;
    DocumentWindow* ActiveDocumentWindow() override;
    std::vector<DocumentWindow*> DocumentWindows() override;
    void DropDocumentWindow(DocumentWindow& window) override;
    void NextTab(int step) override;
    void NewTabGroup(bool vertical) override;
    void MoveToTabGroup(int step) override;
    void NextPane(int step) override;
    DockPane* CurrentPane() override;
    void OpenMenuBar() override;
    std::string WindowsText() override;
    void SetWindowsText(const std::string& text) override;
    void SuspendRepaint(bool suspend) override;

    void Customize() override;
    void RemoveFromBar(const std::string& bar, const std::string& command) override;
    void LoadLayout(const std::string& path) override;
    void LoadFactoryText(const std::string& text) override;
    void SaveLayout(const std::string& path) override;
    WindowPlace Place() override;
    void SetPlace(const WindowPlace& place) override;
    void ShowWindow() override;
    void BringToFront() override;
    void CloseWindow() override;

    QMainWindow& Window() { return window_; }

private:
    CommandTable& Table() override { return table_; }
    std::vector<CommandPlace> Places() override;
    LayoutEntries* EntriesOf(const std::string& bar) override;
    void EntriesChanged(const std::string& bar) override;
    std::string AddBar(const QString& caption) override;
    void RemoveBar(const std::string& name) override;
    const LayoutCommand* Factory(const std::string& command) const override;
    void Revert() override;
    QWidget* WidgetOf(const std::string& place) override;
    // True while an arrangement is loaded or saved as a whole, which does not count as a change of it.
    void EndCustomizing();

    QtBar* Bar(const std::string& name);
    QtPane* Pane(const std::string& name);
    void Apply(const Layout& layout);
    Layout Present();
    void ApplyBars(const std::vector<LayoutBar>& records);
    void ApplyPanes(const std::vector<LayoutPane>& records);
    void RestoreSizes();
    void Settle();
    void AddPane(const LayoutPane& record);
    void ShowTitle();
    void FillBarMenu(QMenu& menu);

    // A part of the window that the keyboard stops at.
    struct Stop {
        bool here; // it has the focus
        std::function<void()> go;
    };
    std::vector<Stop> Stops();
    void FocusDocuments();
    void NoteFocus();

    StudioWindow window_;
    CommandTable table_;
    Menus menus_;
    QtDocumentArea* area_;
    ShortcutFilter filter_;
    PaneOwner paneOwner_;
    std::vector<std::unique_ptr<QtBar>> bars_;
    std::vector<std::unique_ptr<QtPane>> panes_;
    std::vector<std::string> start_;
    Layout factory_;
    Layout before_; // as it was when customising began
    QPointer<CustomizeDialog> customizing_;
    std::string factoryPath_;
    std::string lastPane_; // the focus was in it last
    // What a loaded arrangement says of sizes, until the window has its size.
    QByteArray windowState_;
    LayoutDocuments documents_;
    QElapsedTimer settling_;
    QTimer settle_;
    DockStudioEvents* events_ = nullptr;
    int wantedState_ = 0;
    int suspended_ = 0;
    bool painted_ = true; // before the first of the stops
};
