// The Code Explorer on real edits, and navigation through several documents by the commands themselves.
#include "ForgetFrame.h"
#include "engine/SymbolLine.h"
#include "engine/fixture/SourceTest.h"

#include "documents/DocumentCalls.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Project.h"
#include "documents/Options.h"
#include "host/Host.h"
#include "workbench/explorer/CodeModel.h"
#include "workbench/explorer/frmMainList.h"
#include "workbench/find/frmGotoLine.h"
#include "workbench/frame/frmMain.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

namespace {

using Texts = std::vector<std::string>;

class ExplorerTest : public SourceTest {
protected:
    ExplorerTest() {
        host.dock.panes["CodeExplorer"] = std::make_unique<HeadlessPane>(host.dock, "CodeExplorer");
        for (const char* name : {"Functions", "Globals", "Goto Declaration", "Goto Previous Position",
                                 "Goto Next Position", "Next Bookmark", "Previous Bookmark", "Goto Line"})
            host.dock.Make(name, "View");
        host.dock.SetEvents(&frmMain::Instance());
        frmMain::Instance().AdditionalUISetup(); // which fetches the commands of this test's frame
        gEngineCalls.PuniLista = [] { frmMainList::Instance().PuniLista(); };
        gDocumentCalls.RefreshCodeExplorer = [] { frmMainList::Instance().Refresh(); };
        Pane().show();
        Button("Project").click();
        Filter().clear();
        Show("Functions");
    }
    ~ExplorerTest() override {
        host.dock.SetEvents(nullptr);
        ForgetFrame();
        gDocumentCalls = {};
        Pane().hide();
    }

    static QWidget& Pane() { return *static_cast<QWidget*>(frmMainList::Instance().NativeWidget()); }
    static QToolButton& Button(const std::string& name) {
        return *Pane().findChild<QToolButton*>(QString::fromStdString("cmd" + name));
    }
    static QLineEdit& Filter() { return *Pane().findChild<QLineEdit*>("txtFilter"); }
    static QTreeView& List(const char* name) { return *Pane().findChild<QTreeView*>(name); }
    static void Show(const std::string& construct) { Button(construct).click(); }
    static void Command(const char* name) {
        frmMain::Instance().DS_CommandClick(*gHost.dock->FindCommand(name), -1);
    }

    // The rows of a list, with what its further columns show.
    static Texts Rows(const char* name) {
        const QTreeView& list = List(name);
        Texts rows;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            std::string text;
            for (int column = 0; column < list.model()->columnCount(); ++column)
                if (!list.isColumnHidden(column))
                    text += (column ? "|" : "") +
                            list.model()->index(row, column).data().toString().toStdString();
            rows.push_back(text);
        }
        return rows;
    }
    static Texts Names(const char* name) {
        Texts names = Rows(name);
        for (std::string& text : names) text.resize(std::min(text.find('|'), text.size()));
        return names;
    }
    static void Select(const char* list, int row) {
        List(list).setCurrentIndex(List(list).model()->index(row, 0));
    }
    // A project of two files, both open; the first one is the active document.
    void OpenProject(const std::string& first, const std::string& second) {
        host.Put("p/a.bb", first);
        host.Put("p/b.bb", second);
        const std::string path =
            host.Put("p/p.zpf", "[Zolto Project file]\r\n<Settings>\r\n MainFile=\"a.bb\"\r\n"
                                "</Settings>\r\n<Folders>\r\n</Folders>\r\n<Files>\r\n"
                                " AbsPath=\"a.bb\" PrjFolder=\"\"\r\n"
                                " AbsPath=\"b.bb\" PrjFolder=\"\"\r\n</Files>\r\n");
        ASSERT_TRUE(Mod_Project::LoadProject(path));
        Front("a.bb");
    }
    void Front(const std::string& name) {
        host.dock.FindDocumentWindow(host.Path("p/" + name))->Activate();
        Settle();
    }
    static int Line() { return Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()); }
};

// Counts the signals of a model.
struct Told {
    QSignalSpy inserted, removed, changed, reset;
    explicit Told(const QAbstractItemModel* model)
        : inserted(model, &QAbstractItemModel::rowsInserted),
          removed(model, &QAbstractItemModel::rowsRemoved), changed(model, &QAbstractItemModel::dataChanged),
          reset(model, &QAbstractItemModel::modelReset) {}
    Texts All() const {
        Texts all;
        for (const auto& [name, spy] : {std::pair{"inserted", &inserted},
                                        {"removed", &removed},
                                        {"changed", &changed},
                                        {"reset", &reset}})
            if (spy->count() > 0) all.push_back(name + (" " + std::to_string(spy->count())));
        return all;
    }
};

TEST_F(ExplorerTest, EachListShowsItsTableWithLabels) {
    OpenLines({"Include \"x.bb\"", "Global b#[3], a$", "Global t.Thing", "Const c = 1", "Dim d(4)", ".lab",
               "Type Thing", "Field m#[2], n.Thing", "End Type", "Function f$(x, y#)", "Local z[7]",
               "End Function"});
    Settle();
    EXPECT_EQ(Names("lvFunctions"), (Texts{"*Main Program*", "f$"}));
    Select("lvFunctions", 1);
    EXPECT_EQ(Names("lvLocals"), (Texts{"x%", "y#", "z%[7]"}));
    Show("Globals");
    EXPECT_EQ(Rows("lvGlobals"), (Texts{"a$|source1.bb", "b#[3]|source1.bb", "t.Thing|source1.bb"}));
    Show("Types");
    Select("lvTypes", 0);
    EXPECT_EQ(Names("lvTypes"), Texts{"Thing"});
    EXPECT_EQ(Names("lvFields"), (Texts{"m#", "n.Thing"}));
    for (const auto& [construct, list, rows] : {std::tuple{"Arrays", "lvArrays", Texts{"d%"}},
                                                {"Constants", "lvConstants", Texts{"c%"}},
                                                {"Labels", "lvLabels", Texts{"lab"}},
                                                {"Includes", "lvIncludes", Texts{"x.bb"}}}) {
        Show(construct);
        EXPECT_EQ(Names(list), rows);
        EXPECT_TRUE(List(list).isVisible());
        EXPECT_TRUE(Button(construct).isChecked());
        EXPECT_FALSE(Button("Types").isChecked());
    }
}

TEST_F(ExplorerTest, AnEditTellsTheViewOfNothingButItsOwnRow) {
    OpenLines({"Global a = 1", "Global b", "Global c", "x"});
    Show("Globals");
    Select("lvGlobals", 2);
    {
        const Told told(List("lvGlobals").model());
        GoTo(0, 12);
        Type("2");
        Leave(3); // declared anew under the same name
        EXPECT_EQ(told.All(), Texts{});
    }
    const Told told(List("lvGlobals").model());
    GoTo(1, 8);
    Type("z");
    EXPECT_EQ(Names("lvGlobals"), (Texts{"a%", "b%", "c%"})); // still being typed
    Leave(3);
    EXPECT_EQ(Names("lvGlobals"), (Texts{"a%", "bz%", "c%"}));
    EXPECT_EQ(told.All(), (Texts{"inserted 1", "removed 1"}));
    EXPECT_EQ(List("lvGlobals").currentIndex().row(), 2);
    // When the selected row is removed, no other row is selected instead.
    DeleteLines(2, 2);
    EXPECT_EQ(Names("lvGlobals"), (Texts{"a%", "bz%"}));
    EXPECT_FALSE(List("lvGlobals").currentIndex().isValid());
    // A new type keeps the selection, which is of the name.
    Select("lvGlobals", 0);
    GoTo(0, 8);
    Type("#");
    Leave(2);
    EXPECT_EQ(Names("lvGlobals"), (Texts{"a#", "bz%"}));
    EXPECT_EQ(List("lvGlobals").currentIndex().row(), 0);
}

TEST_F(ExplorerTest, ALargeChangeKeepsWhatIsSelectedAndItsPlace) {
    Texts lines;
    for (int i = 0; i < 300; ++i) lines.push_back("Global g" + std::to_string(1000 + i));
    OpenLines(lines);
    Show("Globals");
    Select("lvGlobals", 250);
    List("lvGlobals").scrollTo(List("lvGlobals").model()->index(200, 0), QTreeView::PositionAtTop);
    const QString top = List("lvGlobals").indexAt({1, 1}).data().toString();
    ASSERT_EQ(top, "g1200%");
    DeleteLines(0, 99);
    Leave(0);
    EXPECT_EQ(List("lvGlobals").model()->rowCount(), 200);
    EXPECT_EQ(List("lvGlobals").currentIndex().data().toString(), "g1250%");
    EXPECT_EQ(List("lvGlobals").indexAt({1, 1}).data().toString(), top);
}

TEST_F(ExplorerTest, LocalsFollowTheFunctionThatIsSelected) {
    OpenLines({"Function f(p)", "Local a", "", "End Function", "Function g()", "Local b", "End Function"});
    Settle();
    Select("lvFunctions", 1);
    EXPECT_EQ(Names("lvLocals"), (Texts{"a%", "p%"}));
    GoTo(2);
    Type("Local q");
    Leave(5);
    EXPECT_EQ(Names("lvLocals"), (Texts{"a%", "p%", "q%"}));
    GoTo(0, 12);
    Type(", r"); // the line of the function itself
    Leave(5);
    EXPECT_EQ(Names("lvLocals"), (Texts{"a%", "p%", "q%", "r%"}));
    Select("lvFunctions", 2);
    EXPECT_EQ(Names("lvLocals"), Texts{"b%"});
    DeleteLines(4, 6);
    EXPECT_EQ(Names("lvLocals"), Texts{});
}

TEST_F(ExplorerTest, NamesakesOfTwoFilesAreTwoEntries) {
    OpenProject("Global n\r\nx\r\n", "Global n\r\ny\r\n");
    Show("Globals");
    EXPECT_EQ(Rows("lvGlobals"), (Texts{"n%|a.bb", "n%|b.bb"}));
    DeleteLines(0, 0);
    EXPECT_EQ(Rows("lvGlobals"), Texts{"n%|b.bb"});
}

TEST_F(ExplorerTest, AnotherProjectClearsAndFillsEachListWhenItIsShown) {
    frmDoc& first = OpenLines({"Global a", "Const k = 1"});
    Show("Constants");
    Show("Globals");
    EXPECT_EQ(Names("lvGlobals"), Texts{"a%"});
    frmDoc& second = OpenLines({"Global b"});
    Settle();
    EXPECT_EQ(Names("lvGlobals"), Texts{"b%"});
    EXPECT_EQ(Names("lvConstants"), Texts{"k%"}); // not on show, so not touched
    Show("Constants");
    EXPECT_EQ(Names("lvConstants"), Texts{});
    // A file that was closed is forgotten, also when one of its name is opened again.
    for (const frmDoc* document : {&second, &first})
        host.dock.FindDocumentWindow(document->m_strDocumentWindowID)->SetVisible(false);
    Show("Globals");
    EXPECT_EQ(Names("lvGlobals"), Texts{});
}

TEST_F(ExplorerTest, FileScopeShowsTheActiveFileAlone) {
    OpenProject("Global a\r\nFunction fa()\r\nEnd Function\r\n",
                "Global b\r\nFunction fb()\r\nEnd Function\r\n");
    Show("Functions");
    EXPECT_EQ(Names("lvFunctions"), (Texts{"*Main Program*", "fa%", "fb%"}));
    Button("File").click();
    EXPECT_TRUE(Button("File").isChecked());
    EXPECT_FALSE(Button("Project").isChecked());
    EXPECT_EQ(Rows("lvFunctions"), Texts{"fa%|000002"});
    Front("b.bb");
    EXPECT_EQ(Names("lvFunctions"), Texts{"fb%"});
    Show("Globals");
    EXPECT_EQ(Rows("lvGlobals"), Texts{"b%"});
    Button("Project").click();
    EXPECT_EQ(Rows("lvGlobals"), (Texts{"a%|a.bb", "b%|b.bb"}));
    // The scope belongs to documents; the help tab has none.
    host.dock.AddDocumentWindow(HelpWindowKey, "Help", nullptr).SetVisible(true);
    Button("File").click();
    EXPECT_FALSE(Button("File").isChecked());
    EXPECT_EQ(Rows("lvGlobals"), (Texts{"a%|a.bb", "b%|b.bb"}));
}

TEST_F(ExplorerTest, UnsortedFunctionsStandAsInTheFile) {
    const Setting unsorted(Options::gUnsortedFunctions, 1);
    OpenLines({"Function z()", "End Function", "Function a()", "End Function", "Function m(): End Function"});
    Button("File").click();
    EXPECT_TRUE(Button("File").isChecked());
    EXPECT_FALSE(Button("Project").isChecked());
    Settle();
    EXPECT_EQ(Rows("lvFunctions"), (Texts{"z%|000001", "a%|000003", "m%|000005"}));
    InsertLine(2, "Function b()\r\nEnd Function");
    Leave(0);
    EXPECT_EQ(Rows("lvFunctions"), (Texts{"z%|000001", "b%|000003", "a%|000005", "m%|000007"}));
    // Lines that declare nothing are seen when typing pauses.
    const Told told(List("lvFunctions").model());
    InsertLine(0, "x");
    Leave(0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return told.changed.count() > 0; }));
    EXPECT_EQ(Rows("lvFunctions"), (Texts{"z%|000002", "b%|000004", "a%|000006", "m%|000008"}));
    Button("Project").click();
    EXPECT_EQ(Names("lvFunctions"), (Texts{"*Main Program*", "a%", "b%", "m%", "z%"}));
}

TEST_F(ExplorerTest, AnEntryIsGoneToByDoubleClickAndByEnter) {
    OpenProject("Global a\r\nx\r\n", "y\r\nGlobal b\r\nFunction f()\r\nLocal l\r\nEnd Function\r\n");
    Show("Globals");
    QTreeView& globals = List("lvGlobals");
    const QPoint second = globals.visualRect(globals.model()->index(1, 0)).center();
    QTest::mouseClick(globals.viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(gActiveDoc->Filename, "a.bb"); // a click only selects
    globals.setFocus();
    QTest::mouseDClick(globals.viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(gActiveDoc->Filename, "b.bb");
    EXPECT_FALSE(globals.hasFocus()) << "the text has it";
    EXPECT_EQ(Line(), 1);
    Show("Functions");
    Select("lvFunctions", 1);
    Select("lvLocals", 0);
    Front("a.bb");
    QTest::keyClick(&List("lvLocals"), Qt::Key_Return);
    EXPECT_EQ(gActiveDoc->Filename, "b.bb");
    EXPECT_EQ(Line(), 3);
    GoTo(0);
    Select("lvFunctions", 0); // the main program
    QTest::keyClick(&List("lvFunctions"), Qt::Key_Enter);
    EXPECT_EQ(Line(), 0);
}

TEST_F(ExplorerTest, AClosedFileOfAProjectIsOpenedAgain) {
    OpenProject("Global a\r\n", "y\r\nGlobal b\r\n");
    Show("Globals");
    host.dock.FindDocumentWindow(host.Path("p/b.bb"))->SetVisible(false);
    const SymbolPointer closed = gCurrentProject->Globals.ItemHash("b");
    ASSERT_TRUE(closed) << "the other files still know it";
    EXPECT_EQ(LineOf(*closed), -1);
    Select("lvGlobals", 1);
    gCurrentProject->MainFile.clear();
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    QTest::keyClick(&List("lvGlobals"), Qt::Key_Return);
    EXPECT_EQ(host.dialogs.messages.back().text, "Please Set the 'Main File' for this project first...");
    EXPECT_EQ(host.dialogs.messages.back().title, "Operation aborted");
    gCurrentProject->MainFile = "a.bb";
    QTest::keyClick(&List("lvGlobals"), Qt::Key_Return);
    EXPECT_EQ(gActiveDoc->Filename, "b.bb");
    EXPECT_EQ(Line(), 1);
    Settle();
    EXPECT_EQ(Rows("lvGlobals"), (Texts{"a%|a.bb", "b%|b.bb"}));
}

// Names that other files have as well, and names inside a function or type.
TEST_F(ExplorerTest, AReopenedFileIsEnteredAtTheNameThatWasChosen) {
    OpenProject("Global n\r\nFunction f()\r\nLocal l\r\nEnd Function\r\n",
                "y\r\nGlobal n\r\nGlobal n\r\nFunction f()\r\nLocal l\r\nEnd Function\r\n"
                "Type T\r\nField x\r\nField l\r\nEnd Type\r\n");
    gCurrentProject->MainFile = "a.bb";
    const auto chosen = [&](const char* construct, int row, const char* side = nullptr, int sideRow = 0) {
        Front("a.bb");
        Show(construct);
        host.dock.FindDocumentWindow(host.Path("p/b.bb"))->SetVisible(false);
        Settle();
        const std::string list = std::string("lv") + construct;
        Select(list.c_str(), row);
        if (side) Select(side, sideRow);
        QTest::keyClick(&List(side ? side : list.c_str()), Qt::Key_Return);
        return gActiveDoc->Filename + ":" + std::to_string(Line());
    };
    EXPECT_EQ(chosen("Globals", 1), "b.bb:1");
    EXPECT_EQ(chosen("Globals", 2), "b.bb:2");
    EXPECT_EQ(chosen("Functions", 2), "b.bb:3");
    EXPECT_EQ(chosen("Functions", 2, "lvLocals", 0), "b.bb:4");
    EXPECT_EQ(chosen("Types", 0, "lvFields", 0), "b.bb:8"); // "l" comes before "x"
}

TEST_F(ExplorerTest, ADeclarationInAClosedFileIsOpened) {
    OpenProject("Print n\r\n", "y\r\nGlobal n\r\n");
    Front("a.bb");
    host.dock.FindDocumentWindow(host.Path("p/b.bb"))->SetVisible(false);
    GoTo(0, 6);
    Settle();
    gEditorCalls.OpenMember = Mod_File::OpenMemberOfActive;
    Command("Goto Declaration");
    EXPECT_EQ(gActiveDoc->Filename, "b.bb");
    EXPECT_EQ(Line(), 1);
}

TEST_F(ExplorerTest, AnIncludeIsOpenedFromItsPopup) {
    host.Put("lib/x.bb", "Global inside\r\n");
    OpenLines({"Include \"Lib\\X.bb\""});
    Show("Includes");
    Select("lvIncludes", 0);
    QTreeView& list = List("lvIncludes");
    QTimer::singleShot(50, [] {
        auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(popup, nullptr);
        EXPECT_EQ(popup->objectName(), "CodeExPopupMenu");
        popup->setActiveAction(popup->actions().front());
        QTest::keyClick(popup, Qt::Key_Return);
    });
    emit list.customContextMenuRequested(list.visualRect(list.currentIndex()).center());
    EXPECT_EQ(gActiveDoc->FullFilename, host.Path("lib/x.bb"));
}

TEST_F(ExplorerTest, WhatNobodySeesCatchesUpWhenItIsShown) {
    OpenLines({"Global a"});
    Show("Globals");
    Pane().hide();
    InsertLine(0, "Global b");
    Leave(1);
    EXPECT_EQ(Names("lvGlobals"), Texts{"a%"});
    EXPECT_TRUE(gCurrentProject->GlobalsDirty);
    Pane().show();
    EXPECT_EQ(Names("lvGlobals"), (Texts{"a%", "b%"}));
}

// The list that is shown follows each kind of declaration, in both directions.
TEST_F(ExplorerTest, AListIsSortedByEachColumnBothWays) {
    OpenProject("Global a\r\nGlobal c\r\n", "Global b\r\nGlobal d\r\n");
    Show("Globals");
    List("lvGlobals").sortByColumn(0, Qt::DescendingOrder);
    EXPECT_EQ(Names("lvGlobals"), (Texts{"d%", "c%", "b%", "a%"}));
    List("lvGlobals").sortByColumn(1, Qt::AscendingOrder);
    EXPECT_EQ(Names("lvGlobals"), (Texts{"a%", "c%", "b%", "d%"}));
    List("lvGlobals").sortByColumn(1, Qt::DescendingOrder);
    EXPECT_EQ(Names("lvGlobals"), (Texts{"b%", "d%", "a%", "c%"}));
}

TEST_F(ExplorerTest, EachListFollowsItsDeclarations) {
    for (const auto& [construct, list, line, name] :
         {std::tuple{"Globals", "lvGlobals", "Global new_one", "new_one%"},
          {"Types", "lvTypes", "Type new_one: End Type", "new_one"},
          {"Arrays", "lvArrays", "Dim new_one(3)", "new_one%"},
          {"Constants", "lvConstants", "Const new_one = 3", "new_one%"},
          {"Labels", "lvLabels", ".new_one", "new_one"},
          {"Includes", "lvIncludes", "Include \"new_one\"", "new_one"}}) {
        OpenLines({"x", "x"});
        Show(construct);
        Settle();
        const Texts before = Names(list);
        InsertLine(1, line);
        Leave(0);
        Texts with = before;
        with.push_back(name);
        EXPECT_EQ(Names(list), with);
        DeleteLines(1, 1);
        Leave(0);
        EXPECT_EQ(Names(list), before) << construct;
    }
}

TEST_F(ExplorerTest, TheFilterLeavesWhatContainsIt) {
    OpenLines({"Global shipCount", "Global Friendship", "Global other"});
    Show("Globals");
    QTest::keyClicks(&Filter(), "SHIP");
    EXPECT_EQ(Names("lvGlobals"), (Texts{"Friendship%", "shipCount%"}));
    InsertLine(0, "Global ship3\r\nGlobal q");
    Leave(0);
    EXPECT_EQ(Names("lvGlobals"), (Texts{"Friendship%", "ship3%", "shipCount%"}));
    QTest::keyClick(&Filter(), Qt::Key_Down);
    EXPECT_EQ(List("lvGlobals").currentIndex().row(), 0);
    QTest::keyClick(&Filter(), Qt::Key_Escape);
    EXPECT_EQ(Names("lvGlobals").size(), 5u);
}

TEST_F(ExplorerTest, ACommandShowsItsListInAPaneThatWasHidden) {
    OpenLines({"Global a"});
    DockPane& pane = *host.dock.FindPane("CodeExplorer");
    pane.Hide();
    Command("Globals");
    EXPECT_TRUE(pane.Visible());
    EXPECT_TRUE(List("lvGlobals").isVisible());
    EXPECT_TRUE(Button("Globals").isChecked());
    Pane().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Pane()));
    EXPECT_TRUE(List("lvGlobals").hasFocus());
    Command("Functions");
    EXPECT_TRUE(List("lvFunctions").hasFocus());
    EXPECT_TRUE(pane.Visible()); // shown, it stays
    EXPECT_TRUE(List("lvFunctions").isVisible());
}

TEST_F(ExplorerTest, DeclarationsAndPlacesLeadThroughAllFiles) {
    OpenProject("x\r\nfar = 1\r\n", "y\r\ny\r\nGlobal far\r\n");
    ColourAll();
    GoTo(1, 2);
    Command("Goto Declaration");
    EXPECT_EQ(gActiveDoc->Filename, "b.bb");
    EXPECT_EQ(Line(), 2);
    Command("Goto Previous Position");
    EXPECT_EQ(gActiveDoc->Filename, "a.bb");
    EXPECT_EQ(Line(), 1);
    Command("Goto Next Position");
    EXPECT_EQ(gActiveDoc->Filename, "b.bb");
    // With that file closed the way forward ends.
    Command("Goto Previous Position");
    host.dock.FindDocumentWindow(host.Path("p/b.bb"))->SetVisible(false);
    Command("Goto Next Position");
    EXPECT_EQ(gActiveDoc->Filename, "a.bb");
    EXPECT_EQ(Line(), 1);
}

TEST_F(ExplorerTest, BookmarksLeadThroughAllFilesPastTheHelpTab) {
    OpenProject("a\r\na\r\na\r\n", "b\r\nb\r\nb\r\n");
    host.dock.AddDocumentWindow(HelpWindowKey, "Help", nullptr);
    Mod_Sci::MarkerAdd(1, Mod_Parse::MarkerBookmark);
    Front("b.bb");
    for (const int line : {0, 2}) Mod_Sci::MarkerAdd(line, Mod_Parse::MarkerBookmark);
    Front("a.bb");
    GoTo(0);
    Texts places;
    const auto step = [&](const char* command) {
        Command(command);
        places.push_back(gActiveDoc->Filename + " " + std::to_string(Line()));
    };
    for (int i = 0; i < 4; ++i) step("Next Bookmark");
    EXPECT_EQ(places, (Texts{"a.bb 1", "b.bb 0", "b.bb 2", "a.bb 1"}));
    places.clear();
    for (int i = 0; i < 3; ++i) step("Previous Bookmark");
    EXPECT_EQ(places, (Texts{"b.bb 2", "b.bb 0", "a.bb 1"}));
}

TEST_F(ExplorerTest, TheLineDialogTakesNoLineThatIsNotThere) {
    OpenLines({"a", "b", "c"});
    GoTo(1);
    frmGotoLine dialog(nullptr);
    dialog.show();
    auto& line = *dialog.findChild<QLineEdit*>("txtLine");
    QPushButton* ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    EXPECT_EQ(line.text(), "2");
    for (const char* refused : {"0", "4", "-1", "", "x"}) {
        line.setText(refused);
        ok->click();
        EXPECT_TRUE(dialog.isVisible()) << refused;
    }
    EXPECT_EQ(Line(), 1);
    line.setText("3");
    QTest::keyClick(&line, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(Line(), 2);
}

} // namespace
