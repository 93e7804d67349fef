// The program up to its documents on a platform for tests: compilers, keywords, options and the default style
// are loaded, and document windows activate, ask and close as they do in the main window.
#pragma once

#include "editor/frmDoc.h"
#include "support/FakeHost.h"

#include <string>
#include <vector>

class Session : private DockStudioEvents {
public:
    Session();
    ~Session() override;

    // Writes a file and opens it; fails the test when no document came of it.
    frmDoc& Open(const std::string& name, const std::string& bytes);
    // Opens what is there.
    frmDoc& Reopen(const std::string& path);
    // Types at the start of the active document, as a user would.
    void Type(const std::string& text);
    void Close(const std::string& path);
    std::string Bytes(const std::string& path) { return host.files.Read(path); }
    std::vector<std::string> WindowKeys();
    // The text of the last message that was shown; empty when there was none.
    std::string LastMessage() const;

    FakeHost host;

private:
    void DS_CommandClick(DockCommand&, int) override {}
    void DS_ComboTextChanged(DockCommand&) override {}
    void DS_ComboTextCommitted(DockCommand&) override {}
    void DS_DocumentWindowActivate(DocumentWindow& window, bool creating) override;
    void DS_DocumentWindowDeactivate(DocumentWindow& window) override;
    void DS_DocumentWindowHiding(DocumentWindow& window, bool& cancel) override;
    void DS_DocumentWindowHidden(DocumentWindow& window) override;
    void DS_DocumentWindowContextClick(DocumentWindow&, int, int, int, bool&) override {}
    void DS_DocumentWindowDoubleClick(DocumentWindow&, int) override {}
    void DS_PaneShown(const std::string&, bool) override {}
    void DS_ShortcutFiring(DockCommand&, bool&) override {}
    void DS_FilesDropped(const std::vector<std::string>&) override {}
    void DS_QueryUnload(bool& cancel) override;
    void DS_Resize() override {}
};

// Questions to a view that only tests ask.
enum : unsigned {
    SCI_GETCARETLINEBACK = 2097,
    SCI_GETCARETFORE = 2138,
    SCI_STYLEGETFORE = 2481,
    SCI_STYLEGETBACK = 2482,
    SCI_STYLEGETBOLD = 2483,
};

// The bytes of one of the files in tests/data.
std::string TestData(const std::string& name);
// Switches the three kinds of lines of the parameter block.
void SaveNothingExtra();
void SaveEverythingExtra();
