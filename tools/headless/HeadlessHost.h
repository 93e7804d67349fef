// The program's floors without a window: real files, real edit controls on the offscreen platform, an empty
// temporary settings store, and dialogs that answer themselves. Fills gHost while it lives.
#pragma once

#include "HeadlessDock.h"
#include "host/Dialogs.h"
#include "host/qt/system/QtClock.h"
#include "host/qt/system/QtDesktop.h"
#include "host/qt/system/QtFiles.h"
#include "host/qt/system/QtProcesses.h"
#include "host/qt/system/QtSettingsStore.h"
#include "host/qt/view/QtEditorView.h"

#include <QApplication>
#include <QTemporaryDir>
#include <memory>
#include <string>

// Answers with the default button and prints the message on standard error.
class QuietDialogs : public Dialogs {
public:
    MessageAnswer Show(const Message& message) override;
    std::vector<std::string> OpenFiles(const FileQuestion&) override { return {}; }
    std::string SaveFile(const FileQuestion&) override { return {}; }
    std::string Folder(const std::string&, const std::string&) override { return {}; }
    std::optional<std::string> Input(const std::string&, const std::string&, const std::string&) override {
        return std::nullopt;
    }
};

// What the main window does about documents, and no more of it.
class DocumentEvents : public DockStudioEvents {
public:
    void DS_CommandClick(DockCommand&, int) override {}
    void DS_ComboTextChanged(DockCommand&) override {}
    void DS_ComboTextCommitted(DockCommand&) override {}
    void DS_DocumentWindowActivate(DocumentWindow& window, bool creating) override;
    void DS_DocumentWindowDeactivate(DocumentWindow&) override {}
    void DS_DocumentWindowHiding(DocumentWindow&, bool&) override {}
    void DS_DocumentWindowHidden(DocumentWindow& window) override;
    void DS_DocumentWindowContextClick(DocumentWindow&, int, int, int, bool&) override {}
    void DS_DocumentWindowDoubleClick(DocumentWindow&, int) override {}
    void DS_PaneShown(const std::string&, bool) override {}
    void DS_ShortcutFiring(DockCommand&, bool&) override {}
    void DS_FilesDropped(const std::vector<std::string>&) override {}
    void DS_QueryUnload(bool&) override {}
    void DS_Resize() override {}
};

class HeadlessHost {
public:
    // Starts the toolkit on the offscreen platform. `appDir`: the program directory to use.
    explicit HeadlessHost(const std::string& appDir);
    ~HeadlessHost();
    HeadlessHost(const HeadlessHost&) = delete;
    HeadlessHost& operator=(const HeadlessHost&) = delete;

    // Reads compilers, settings and the colour style, as the program does at its start. Settings that were
    // saved before take effect here.
    void Load();

    HeadlessDock dock;

private:
    DocumentEvents events_;
    QTemporaryDir folder_;
    QApplication application_;
    QuietDialogs dialogs_;
    QtFiles files_;
    QtDesktop desktop_;
    QtClock clock_;
    QtProcesses processes_;
    QtEditorViews views_;
    std::unique_ptr<QtSettingsStore> settings_;
};
