// The find dialog, driven by its own controls: what is found and in which order, the questions on the way
// round, what replacing leaves, and what the dialog remembers.
#include "engine/fixture/SourceTest.h"

#include "documents/ClsMRU.h"
#include "workbench/find/frmFind.h"
#include "workbench/frame/frmMain.h"

#include <QApplication>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

namespace {

class FindTest : public SourceTest {
protected:
    FindTest() {
        MRUFind.Clear();
        MRUReplace.Clear();
        host.dock.SetEvents(&frmMain::Instance());
        ForgetRun();
    }
    ~FindTest() override {
        frmFind::Unload();
        host.dock.SetEvents(nullptr);
        for (DocumentWindow* window : host.dock.DocumentWindows()) window->Attach(nullptr);
    }
    static void ForgetRun() { frmFind::Unload(); }

    static frmFind& Dialog() { return frmFind::Instance(); }
    template <class Widget>
    static Widget& Control(const char* name) {
        auto* found = Dialog().findChild<Widget*>(name);
        if (!found) throw std::runtime_error(name);
        return *found;
    }
    static void Press(const char* button) { Control<QPushButton>(button).click(); }
    static void Choose(const char* option) { Control<QRadioButton>(option).click(); }
    static void Tick(const char* box) { Control<QCheckBox>(box).click(); }
    static void Write(const char* box, const char* text) {
        auto& field = *Control<QComboBox>(box).lineEdit();
        QApplication::setActiveWindow(&Dialog());
        field.setFocus();
        field.selectAll();
        field.del();
        for (const QChar ch : QString::fromUtf8(text)) // the keys of a test are those of ASCII
            ch.unicode() < 128 ? QTest::keyClick(&field, ch.toLatin1()) : field.insert(ch);
    }
    static std::string Caption(const char* button) {
        return Control<QPushButton>(button).text().toStdString();
    }
    static void Look(const char* text) {
        Dialog().StartFind(false);
        Write("cboFind", text);
    }
    static void LookToReplace(const char* text, const char* by) {
        Dialog().StartFind(true);
        Write("cboFind", text);
        Write("cboReplace", by);
    }
    // The selection as "start-end" of the active document.
    static std::string Selected() {
        return std::to_string(Mod_Sci::GetSelectionStart()) + "-" +
               std::to_string(Mod_Sci::GetSelectionEnd());
    }
    void WillBeTold(const char* text, const char* title) {
        host.dialogs.WillAnswer(MessageAnswer::Ok);
        told_.push_back({text, title});
    }
    void WillBeAsked(const char* text, MessageAnswer answer) {
        host.dialogs.WillAnswer(answer);
        told_.push_back({text, "Zolto - Find"});
    }
    void TearDown() override {
        ASSERT_EQ(host.dialogs.messages.size(), told_.size());
        for (std::size_t i = 0; i < told_.size(); ++i) {
            EXPECT_EQ(host.dialogs.messages[i].text, told_[i].first);
            EXPECT_EQ(host.dialogs.messages[i].title, told_[i].second);
        }
    }
    frmDoc& OpenMember(const std::string& text) {
        frmDoc& document = Open(text);
        document.SetDirty(false);
        return document;
    }
    // Makes the open documents one project.
    static void Join() {
        auto project = std::make_shared<ClsProject>();
        project->FullPath = project->Name = "joined";
        std::vector<frmDoc*> documents;
        for (const auto& entry : gProjects)
            for (const auto& source : entry.record->Sources) {
                project->Sources.Add(source.record, source.key);
                documents.push_back(&FormOf(*source.record));
            }
        gProjects.Add(project, "joined");
        for (frmDoc* document : documents) {
            document->PrjFullPath = document->PrjName = "joined";
            document->SingleFile = false;
        }
        MakeActive(ActiveForm());
    }
    void Activate(frmDoc& document) {
        host.dock.FindDocumentWindow(document.m_strDocumentWindowID)->Activate();
    }

    static constexpr const char* FromTop =
        "The specified region has been searched.\r\nWould you like to continue searching from the top?";
    static constexpr const char* FromBottom =
        "Reached top of file\r\nWould you like to continue searching from the bottom?";
    static constexpr const char* FileSearched = "Current file has been searched.";
    static constexpr const char* InFile = "Zolto - Search in Current File";

private:
    std::vector<std::pair<std::string, std::string>> told_;
};

TEST_F(FindTest, FromTheCursorItPassesOverTheCaretAndGoesRoundToWhereItBegan) {
    Open("ab ab ab");
    Mod_Sci::GotoPos(3);
    Look("ab");
    EXPECT_EQ(Caption("cmdFind"), "&Find");
    Press("cmdFind");
    EXPECT_EQ(Selected(), "6-8");
    EXPECT_EQ(Caption("cmdFind"), "&Find Next");
    WillBeAsked(FromTop, MessageAnswer::Yes);
    Press("cmdFind");
    EXPECT_EQ(Selected(), "0-2");
    EXPECT_EQ(host.dialogs.messages.back().byDefault, MessageAnswer::No);
    Press("cmdFind");
    EXPECT_EQ(Selected(), "3-5"); // where it began, and no further
    WillBeTold(FileSearched, InFile);
    Press("cmdFind");
    EXPECT_EQ(Selected(), "3-5");
    EXPECT_EQ(Caption("cmdFind"), "&Find");
}

TEST_F(FindTest, NoEndsTheSearchWhereItIs) {
    Open("x ab");
    Look("ab");
    Press("cmdFind");
    EXPECT_EQ(Selected(), "2-4");
    WillBeAsked(FromTop, MessageAnswer::No);
    WillBeTold(FileSearched, InFile);
    Press("cmdFind");
    EXPECT_EQ(Selected(), "2-4");
}

TEST_F(FindTest, FromTheTopItNeverGoesRound) {
    Open("ab x ab");
    Mod_Sci::GotoPos(3);
    Look("ab");
    Choose("optStartAt0");
    Press("cmdFind");
    EXPECT_EQ(Selected(), "0-2");
    Press("cmdFind");
    EXPECT_EQ(Selected(), "5-7");
    WillBeTold(FileSearched, InFile);
    Press("cmdFind");
    Press("cmdFind");
    EXPECT_EQ(Selected(), "0-2");
}

TEST_F(FindTest, BackwardsAndForwardsBothLeaveTheHit) {
    Open("ab ab ab");
    Mod_Sci::GotoPos(8);
    Look("ab");
    Press("cmdFindPrev");
    EXPECT_EQ(Selected(), "6-8");
    Press("cmdFindPrev");
    EXPECT_EQ(Selected(), "3-5");
    Press("cmdFind");
    EXPECT_EQ(Selected(), "6-8");
    Press("cmdFindPrev");
    Press("cmdFindPrev");
    EXPECT_EQ(Selected(), "0-2");
    WillBeAsked(FromBottom, MessageAnswer::Yes);
    Press("cmdFindPrev");
    EXPECT_EQ(Selected(), "6-8");
    WillBeTold(FileSearched, InFile);
    Press("cmdFindPrev");
}

TEST_F(FindTest, TheBoxesNarrowWhatIsFound) {
    Open("barfoo foobar Foo foo f.o");
    Look("foo");
    Choose("optStartAt0");
    Tick("chkMatchCase");
    Tick("chkWholeWord");
    Press("cmdFind");
    EXPECT_EQ(Selected(), "18-21");
    Tick("chkWholeWord");
    Tick("chkWordStart");
    Press("cmdFind");
    EXPECT_EQ(Selected(), "7-10");
    Tick("chkRegExp");
    EXPECT_FALSE(Control<QCheckBox>("chkWordStart").isEnabled());
    EXPECT_FALSE(Control<QCheckBox>("chkMatchCase").isEnabled());
    Write("cboFind", "f\\.o");
    Press("cmdFind");
    EXPECT_EQ(Selected(), "22-25");
    Write("cboFind", "[");
    WillBeTold(FileSearched, InFile);
    Press("cmdFind"); // no pattern: nothing is found, and nothing else happens
    Tick("chkRegExp");
    EXPECT_TRUE(Control<QCheckBox>("chkWordStart").isEnabled());
}

TEST_F(FindTest, InASelectionTheAreaIsSearchedAndComesBack) {
    Open("ab ab ab ab");
    Look("ab");
    Mod_Sci::SetSel(2, 9);
    Choose("optSearchIn3");
    EXPECT_FALSE(Control<QPushButton>("cmdFindPrev").isEnabled());
    EXPECT_FALSE(Control<QGroupBox>("optStartAt").isEnabled());
    Press("cmdFind");
    EXPECT_EQ(Selected(), "3-5");
    Press("cmdFind");
    EXPECT_EQ(Selected(), "6-8");
    WillBeTold("Selected text has been searched.", "Zolto - Search in selection");
    Press("cmdFind");
    EXPECT_EQ(Selected(), "2-9");
    LookToReplace("ab", "xyz");
    WillBeTold("The specified region has been searched.\r\n2 replacements were made", "Zolto - Replace All");
    Press("cmdReplaceAll");
    EXPECT_EQ(Text(0), "ab xyz xyz ab");
}

TEST_F(FindTest, AProjectIsSearchedRoundAndNothingElse) {
    frmDoc& first = OpenMember("one ab\r\ntwo ab");
    frmDoc& without = OpenMember("nothing here");
    frmDoc& second = OpenMember("ab");
    Join();
    OpenMember("ab of another");
    Activate(without);
    Mod_Sci::GotoPos(4);
    Activate(first);
    Mod_Sci::GotoPos(8);
    Look("ab");
    Choose("optSearchIn1");
    Press("cmdFind");
    EXPECT_EQ(ActiveForm(), &first);
    EXPECT_EQ(Selected(), "12-14");
    Press("cmdFind");
    EXPECT_EQ(ActiveForm(), &second);
    EXPECT_EQ(gActiveDoc, &second);
    Press("cmdFind");
    EXPECT_EQ(ActiveForm(), &first);
    EXPECT_EQ(Selected(), "4-6");
    WillBeTold("Current Project has been searched.", "Zolto - Search in Project");
    Press("cmdFind");
    EXPECT_EQ(ActiveForm(), &first);
    EXPECT_EQ(Selected(), "4-6");
    Activate(without);
    EXPECT_EQ(Mod_Sci::GetCurrentPos(), 4);
    EXPECT_EQ(host.desktop.locks, 0);
}

TEST_F(FindTest, ADocumentThatClosesUnderARunEndsIt) {
    frmDoc& first = OpenMember("ab");
    frmDoc& second = OpenMember("ab");
    Activate(first);
    Look("ab");
    Choose("optSearchIn2");
    Press("cmdFind");
    EXPECT_EQ(ActiveForm(), &second);
    host.dock.FindDocumentWindow(first.m_strDocumentWindowID)->SetVisible(false);
    Activate(second);
    WillBeTold("All files have been searched.", "Zolto - Search in All Files");
    Press("cmdFind");
}

TEST_F(FindTest, ReplaceExpandsFirstThenReplacesAndGoesOn) {
    Open("Foo foo foo");
    Mod_Sci::SetSel(0, 3);
    Dialog().StartFind(false);
    EXPECT_EQ(Control<QComboBox>("cboFind").currentText(), "Foo");
    EXPECT_FALSE(Control<QComboBox>("cboReplace").isVisible());
    EXPECT_EQ(Caption("cmdReplace"), "&Replace...");
    Press("cmdReplace");
    EXPECT_EQ(Text(0), "Foo foo foo");
    EXPECT_EQ(Caption("cmdReplace"), "&Replace");
    EXPECT_TRUE(Control<QComboBox>("cboReplace").isVisible());
    Write("cboFind", "foo");
    Write("cboReplace", "x");
    Tick("chkMatchCase"); // what is selected is replaced whatever its case
    Press("cmdReplace");
    EXPECT_EQ(Text(0), "x foo foo");
    EXPECT_EQ(Selected(), "2-5");
    QTest::keyClick(Control<QComboBox>("cboReplace").lineEdit(), Qt::Key_Return);
    EXPECT_EQ(Text(0), "x x foo");
    Mod_Sci::Undo();
    EXPECT_EQ(Text(0), "x foo foo");
    EXPECT_EQ(MRUReplace.IndexItem(1), "x");
}

// The start of the run moves with the text before it.
TEST_F(FindTest, ReplacingRoundTheEndNeitherMissesNorRepeatsAPlace) {
    for (const auto& [text, last, by, replaced] :
         {std::tuple{"aaa aaa aaa", 8, "a", "a a a"}, {"a a a", 4, "bbbb", "bbbb bbbb bbbb"}}) {
        Open(text);
        Mod_Sci::SetSel(last, Mod_Sci::GetLength());
        LookToReplace("a+", by);
        if (!Control<QCheckBox>("chkRegExp").isChecked()) Tick("chkRegExp");
        WillBeAsked(FromTop, MessageAnswer::Yes);
        Press("cmdReplace");
        Press("cmdReplace");
        WillBeTold(FileSearched, InFile);
        Press("cmdReplace");
        EXPECT_EQ(Text(0), replaced);
    }
}

TEST_F(FindTest, ASelectionIsASearchTextOnlyInOneShortLine) {
    const std::string word(299, 'w');
    Open(word + "w\r\nb");
    const auto offered = [](int length) {
        Mod_Sci::SetSel(0, length);
        Dialog().StartFind(false);
        return Control<QComboBox>("cboFind").currentText().size();
    };
    EXPECT_EQ(offered(299), 299);
    MRUFind.Clear();
    EXPECT_EQ(offered(300), 0);
    Open("a\r\nb");
    EXPECT_EQ(offered(4), 0);
}

TEST_F(FindTest, ReplaceAllTakesEachPlaceOnceAsOneStepAFile) {
    frmDoc& first = OpenMember("a Local b\r\na a\r\nLocal a");
    frmDoc& second = OpenMember("Function a()\r\nEnd Function\r\na");
    Activate(first);
    GoTo(1, 1);
    LookToReplace("a", "aa");
    Tick("chkWholeWord");
    Choose("optSearchIn2");
    WillBeTold("The specified region has been searched.\r\n6 replacements were made", "Zolto - Replace All");
    Press("cmdReplaceAll");
    EXPECT_EQ(ActiveForm(), &first);
    EXPECT_EQ(Mod_Sci::LineFromPosition(Mod_Sci::GetCurrentPos()), 1);
    EXPECT_EQ(Mod_Sci::GetText(), "aa Local b\r\naa aa\r\nLocal aa");
    ExpectAsLoaded();
    Mod_Sci::Undo();
    Settle();
    EXPECT_EQ(Mod_Sci::GetText(), "a Local b\r\na a\r\nLocal a");
    EXPECT_FALSE(Mod_Sci::CanUndo());
    Activate(second);
    EXPECT_EQ(Mod_Sci::GetText(), "Function aa()\r\nEnd Function\r\naa");
    EXPECT_TRUE(second.Dirty);
    ExpectAsLoaded();
    Mod_Sci::Undo();
    EXPECT_FALSE(Mod_Sci::CanUndo());
    LookToReplace("not there", "x");
    WillBeTold("The specified region has been searched.\r\n0 replacements were made", "Zolto - Replace All");
    Press("cmdReplaceAll");
}

TEST_F(FindTest, ThousandsOfHitsLeaveWhatAFreshLoadGivesAndTheFoldsClosed) {
    std::string text = "Function f()\r\nLocal old\r\nEnd Function\r\nType T\r\nField old\r\nEnd Type\r\n";
    for (int line = 0; line < 600; ++line) text += "old = old + 1\r\n";
    OpenMember(text);
    Mod_Sci::ToggleFold(0);
    Mod_Sci::MarkerAdd(7, Mod_Parse::MarkerBookmark);
    LookToReplace("old", "newer");
    WillBeTold("The specified region has been searched.\r\n1202 replacements were made",
               "Zolto - Replace All");
    Press("cmdReplaceAll");
    Settle();
    EXPECT_EQ(Text(605), "newer = newer + 1");
    EXPECT_FALSE(Mod_Sci::GetLineVisible(1));
    EXPECT_TRUE(Mod_Parse::HasMarker(7, Mod_Parse::MarkerBookmark));
    ExpectAsLoaded();
    Mod_Sci::Undo();
    Settle();
    EXPECT_EQ(Mod_Sci::GetText(), text);
    EXPECT_FALSE(Mod_Sci::CanUndo());
    ActiveForm()->m_oSubclass->DeactivateCheck();
    ExpectAsLoaded();
}

TEST_F(FindTest, PatternsReplaceWithTheirGroupsAndEmptyMatchesEnd) {
    Open("a=1\r\nb=2\r\n");
    LookToReplace("\\([a-z]\\)=", "\\1 := ");
    Tick("chkRegExp");
    WillBeTold("The specified region has been searched.\r\n2 replacements were made", "Zolto - Replace All");
    Press("cmdReplaceAll");
    EXPECT_EQ(Mod_Sci::GetText(), "a := 1\r\nb := 2\r\n");
    LookToReplace("$", ";");
    WillBeTold("The specified region has been searched.\r\n3 replacements were made", "Zolto - Replace All");
    Press("cmdReplaceAll");
    EXPECT_EQ(Mod_Sci::GetText(), "a := 1;\r\nb := 2;\r\n;");
}

TEST_F(FindTest, CountingMovesNothing) {
    frmDoc& first = OpenMember("ab ab");
    OpenMember("ab");
    Activate(first);
    Mod_Sci::SetSel(1, 4);
    Look("ab");
    Choose("optSearchIn2");
    WillBeTold("The specified region has been searched.\r\n3 marks were added ", "Zolto - Find & Mark All");
    Press("cmdMarkAll");
    EXPECT_EQ(ActiveForm(), &first);
    EXPECT_EQ(Selected(), "1-4");
    EXPECT_EQ(Caption("cmdFind"), "&Find");
}

TEST_F(FindTest, TextIsFoundInTheBytesOfEachFile) {
    frmDoc& wide = OpenMember("caf\xC3\xA9");
    frmDoc& narrow = OpenMember("caf\xE9");
    Activate(wide);
    Look("\xC3\xA9");
    Choose("optSearchIn2");
    Press("cmdFind");
    EXPECT_EQ(ActiveForm(), &wide);
    EXPECT_EQ(Selected(), "3-5");
    Press("cmdFind");
    EXPECT_EQ(ActiveForm(), &narrow);
    EXPECT_EQ(Selected(), "3-4");
    LookToReplace("\xC3\xA9", "\xE2\x82\xAC\xE4\xB8\xAD");
    Choose("optSearchIn0");
    WillBeTold("The file 'source2.bb' cannot hold a character of the new text. Nothing was replaced in it.",
               "Zolto - Replace");
    WillBeTold("The specified region has been searched.\r\n0 replacements were made", "Zolto - Replace All");
    Press("cmdReplaceAll");
    EXPECT_EQ(Text(0), "caf\xE9");
}

TEST_F(FindTest, KeysWorkInTheDialogAndItShowsItsHistory) {
    Open("one two one two");
    Look("two");
    QTest::keyClick(Control<QComboBox>("cboFind").lineEdit(), Qt::Key_Return);
    EXPECT_EQ(Selected(), "4-7");
    QTest::keyClick(&Dialog(), Qt::Key_F3);
    EXPECT_EQ(Selected(), "12-15");
    QTest::keyClick(&Dialog(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), "4-7");
    Write("cboFind", "one");
    Press("cmdFind");
    QTest::keyClick(&Control<QComboBox>("cboFind"), Qt::Key_Down);
    EXPECT_EQ(Control<QComboBox>("cboFind").currentText(), "two");
    QTest::keyClick(&Dialog(), Qt::Key_Escape);
    EXPECT_FALSE(Dialog().isVisible());
    for (const char* text : {"a", "b", "c", "d"}) {
        Write("cboFind", text);
        WillBeAsked(FromTop, MessageAnswer::No);
        WillBeTold(FileSearched, InFile);
        Dialog().FindNext(true);
    }
    EXPECT_EQ(MRUFind.Items(), (std::vector<std::string>{"d", "c", "b", "a", "one"}));
    MRUFind.Clear();
    ForgetRun();
    EXPECT_EQ(Control<QComboBox>("cboFind").count(), 0);
    Dialog().StartFind(false);
    EXPECT_EQ(MRUFind.Count(), 5); // from the store
}

TEST_F(FindTest, TheNextStartHasTheOldOptions) {
    Open("x");
    Choose("optStartAt0");
    Choose("optSearchIn2");
    Tick("chkMatchCase");
    ForgetRun();
    EXPECT_EQ(host.settings.Get("FindOptions", "SearchIn", ""), "2");
    EXPECT_TRUE(Control<QRadioButton>("optStartAt0").isChecked());
    EXPECT_TRUE(Control<QRadioButton>("optSearchIn2").isChecked());
    EXPECT_TRUE(Control<QCheckBox>("chkMatchCase").isChecked());
    EXPECT_FALSE(Control<QCheckBox>("chkRegExp").isChecked());
}

TEST_F(FindTest, TheDialogMakesWayForTheHitInAFoldToo) {
    std::string text = "Function f()\r\n";
    for (int line = 0; line < 30; ++line) text += "line\r\n";
    text += "sought\r\nEnd Function\r\n";
    Open(text);
    auto* view = static_cast<QWidget*>(ActiveForm()->NativeWidget());
    view->setGeometry(0, 0, 700, 500);
    Mod_Sci::ToggleFold(0);
    Settle();
    Look("sought");
    Dialog().move(0, 0);
    Press("cmdFind");
    EXPECT_TRUE(Mod_Sci::GetLineVisible(31));
    const QPoint hit = view->mapToGlobal(
        QPoint(static_cast<int>(Mod_Sci::PointXFromPosition(Mod_Sci::GetSelectionStart())),
               static_cast<int>(Mod_Sci::PointYFromPosition(Mod_Sci::GetSelectionStart()))));
    EXPECT_TRUE(QRect(view->mapToGlobal(QPoint()), view->size()).contains(hit));
    EXPECT_FALSE(Dialog().frameGeometry().contains(hit));
}

TEST_F(FindTest, WithoutADocumentNothingHappens) {
    Look("x");
    for (const char* button : {"cmdFind", "cmdFindPrev", "cmdReplace", "cmdReplace", "cmdReplaceAll",
                               "cmdMarkAll", "cmdInsertWordUnderCursor", "cmdCancel"})
        Press(button);
    EXPECT_EQ(MRUFind.Count(), 0);
}

// Whatever was clicked last, also before the dialog was closed.
TEST_F(FindTest, EnterFinds) {
    Open("aa bb aa bb");
    for (const char* clicked : {"cmdCancel", "cmdInsertWordUnderCursor"}) {
        Dialog().StartFind(false);
        QApplication::setActiveWindow(&Dialog());
        Control<QPushButton>(clicked).setFocus();
        Press(clicked);
        Mod_Sci::SetSel(0, 0);
        Dialog().StartFind(false);
        Write("cboFind", "bb");
        QTest::keyClick(Control<QComboBox>("cboFind").lineEdit(), Qt::Key_Return);
        EXPECT_EQ(Selected(), "3-5") << clicked;
        EXPECT_TRUE(Dialog().isVisible());
    }
}

}
