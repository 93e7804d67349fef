// A source that is opened and saved comes back byte for byte, whatever its line ends and its code page.
#include "documents/Mod_File.h"
#include "documents/Session.h"
#include "editor/EditorCalls.h"
#include "engine/OptionsEdit.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <gtest/gtest.h>

namespace {

constexpr const char* Names[] = {"broken.bb",     "crlf.bb",       "empty.bb",       "lf.bb",
                                 "line_33000.bb", "long_line.bb",  "mixed.bb",       "no_final_eol.bb",
                                 "nul.bb",        "tabs.bb",       "tokens_2100.bb", "utf8.bb",
                                 "utf8_bom.bb",   "windows1252.bb"};

// Keywords and names are spelled as they were declared, so letters are compared without their case.
void ExpectSameBytes(const std::string& is, const std::string& expected, const std::string& name) {
    ASSERT_EQ(is.size(), expected.size()) << name;
    for (std::size_t i = 0; i < is.size(); ++i)
        ASSERT_EQ(LCase(is.substr(i, 1)), LCase(expected.substr(i, 1))) << name << ", byte " << i;
}

class RoundTripTest : public testing::TestWithParam<const char*> {
protected:
    Session session;
    // A line with too many tokens is reported, and is kept all the same.
    void SetUp() override {
        if (TestData(GetParam()).size() > 2000) session.host.ExpectErrorLog();
    }
};

TEST_P(RoundTripTest, NothingIsLostAndNothingAdded) {
    SaveNothingExtra();
    const std::string before = TestData(GetParam());
    frmDoc& document = session.Open("a.bb", before);
    EXPECT_FALSE(document.Dirty);
    EXPECT_FALSE(document.CanUndo()); // the load itself cannot be undone
    ASSERT_TRUE(Mod_File::SaveFile(&document));
    ExpectSameBytes(session.Bytes(document.FullFilename), before, GetParam());
}

TEST_P(RoundTripTest, ASecondSaveWritesTheSameFile) {
    const std::string path = session.Open("a.bb", TestData(GetParam())).FullFilename;
    if (Mod_Sci::GetLength() > 0) Mod_Sci::MarkerAdd(0, 4);
    ASSERT_TRUE(Mod_File::SaveFile(ActiveForm()));
    const std::string first = session.Bytes(path);
    session.Close(path);
    ASSERT_TRUE(Mod_File::SaveFile(&session.Reopen(path)));
    EXPECT_EQ(session.Bytes(path), first);
    ExpectSameBytes(first.substr(0, TestData(GetParam()).size()), TestData(GetParam()), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Files, RoundTripTest, testing::ValuesIn(Names), [](const auto& file) {
    const std::string name = file.param;
    return name.substr(0, name.find('.'));
});

struct EncodingTest : testing::Test {
    Session session;
    std::intptr_t CodePage() { return Mod_Sci::Send(SCI_GETCODEPAGE); }
    // As an input method does it: composes something first, then gives the text.
    static void Commit(const std::string& text, const std::string& composed = "") {
        auto* view = static_cast<QWidget*>(ActiveForm()->NativeWidget());
        QInputMethodEvent composing(QString::fromStdString(composed), {});
        QInputMethodEvent commit;
        commit.setCommitString(QString::fromStdString(text));
        if (!composed.empty()) QApplication::sendEvent(view, &composing);
        QApplication::sendEvent(view, &commit);
    }
};

TEST_F(EncodingTest, Utf8IsShownAsSuchAndEverythingElseAsSingleBytes) {
    const std::pair<const char*, int> pages[] = {
        {"\xC3\xA9", SC_CP_UTF8}, {"\xE9", 0}, {"e", 0}, {"\xC3\xA9 \xC3", 0}}; // one ends too early
    for (const auto& [text, page] : pages) {
        session.Open("u.bb", std::string("; ") + text);
        EXPECT_EQ(CodePage(), page) << text;
        session.Close(session.host.Path("u.bb"));
    }
}

// What is typed, composed or pasted is never turned into question marks unsaid.
TEST_F(EncodingTest, CharactersOutsideLatin1AreTakenOrTold) {
    std::string told;
    gEditorCalls.SetNotice = [&](const std::string& text) { told = text; };
    struct {
        std::string before, typed, after;
        bool isNew, utf8, isTold;
    } rows[] = {
        {";\xE9", "\u20AC\u201C", ";\xE9\x80\x93", false, false, false},
        {";\xE9", "a\u0416b\u20AC",
         ";\xE9"
         "ab\x80",
         false, false, true},
        {";a", "\u0416\u0443\u043A", ";a\u0416\u0443\u043A", false, true, true},
        {"", "\u0416\u0443\u043A", "\u0416\u0443\u043A", true, true, true},
        {";\xE9\x80", "\u0416\U0001F600", ";\u00E9\u20AC\u0416\U0001F600", true, true, true},
        {";\u00E9", "\u0416", ";\u00E9\u0416", false, true, false},
        {";\xE9", "e\u0301", ";\xE9\xE9", false, false, false}, // an accent of its own joins its letter
        {"", "", "", true, false, false},                       // a composition that was given up
        {"\n", "a\r\nb\n", "\na\nb\n", false, false, false},
        {"\r\n", "a\nb", "\r\na\r\nb", false, false, false},
    };
    for (const auto& row : rows)
        for (const char* composed : {"", "x", "\u0416"}) {
            if (row.isNew) {
                Mod_File::NewFile();
                Mod_Sci::ReplaceSel(row.before.c_str());
            } else {
                session.Open("a.bb", row.before);
            }
            Mod_Sci::GotoPos(Mod_Sci::GetLength());
            told.clear();
            Commit(row.typed, composed);
            EXPECT_EQ(Mod_Sci::GetText(), row.after) << composed;
            EXPECT_EQ(CodePage(), row.utf8 ? SC_CP_UTF8 : 0) << row.after << composed;
            EXPECT_EQ(!told.empty(), row.isTold) << row.after << told;
            Mod_Sci::SetSavePoint();
            if (row.isNew) ActiveForm()->SetDirty(false);
            session.Close(ActiveForm()->m_strDocumentWindowID);
        }
    session.Open("a.bb", ";\xE9");
    Mod_Sci::GotoPos(2);
    QApplication::clipboard()->setText(QString::fromUtf8("\u20AC\u0416"));
    Mod_Sci::Paste();
    EXPECT_EQ(Mod_Sci::GetText(), ";\xE9\x80?");
    EXPECT_NE(told.find("\u0416"), std::string::npos) << told;
    // Copied in its own code page, although the bytes could be UTF-8.
    Mod_Sci::ReplaceSel("\xC3\xA4");
    Mod_Sci::SetSel(Mod_Sci::GetLength() - 2, Mod_Sci::GetLength());
    Mod_Sci::Copy();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "\u00C3\u00A4");
    gEditorCalls = {};
}

// The history leads back to the code page, and what comes in takes the selection's and the pointer's place.
TEST_F(EncodingTest, ATextThatBecomesUtf8StaysWhereItIs) {
    const auto begin = [](const char* text) {
        Mod_File::NewFile();
        Mod_Sci::ReplaceSel(text);
        Mod_Sci::EmptyUndoBuffer();
    };
    begin("\xE9\n\xE9");
    Commit("\u0416");
    Mod_Sci::Undo();
    Commit("\u00E4");
    EXPECT_EQ(Mod_Sci::GetText(), "\xE9\n\xE9\xE4");
    // A rectangle of the second column of both lines.
    begin("\xE9y\n\xE9z");
    Mod_Sci::Send(SCI_SETRECTANGULARSELECTIONANCHOR, 1);
    Mod_Sci::Send(SCI_SETRECTANGULARSELECTIONCARET, 5);
    QApplication::clipboard()->setText(QString::fromUtf8("\u0416"));
    Mod_Sci::Paste();
    EXPECT_EQ(Mod_Sci::GetText(), "\u00E9\u0416\n\u00E9");
    begin("\xE9\xE9yz");
    auto* view = static_cast<QAbstractScrollArea*>(static_cast<QWidget*>(ActiveForm()->NativeWidget()));
    QMimeData dropped;
    dropped.setText("\u0416");
    const QPoint at(static_cast<int>(Mod_Sci::Send(SCI_POINTXFROMPOSITION, 0, 3)), 1);
    QDragEnterEvent enter(at, Qt::CopyAction, &dropped, Qt::LeftButton, {});
    QDropEvent drop(at, Qt::CopyAction, &dropped, Qt::LeftButton, {});
    QApplication::sendEvent(view->viewport(), &enter);
    QApplication::sendEvent(view->viewport(), &drop);
    EXPECT_EQ(Mod_Sci::GetText(), "\u00E9\u00E9y\u0416z");
    ActiveForm()->m_oSubclass->DeactivateCheck(); // as the paint does it
    auto* told = QAccessible::queryAccessibleInterface(view)->editableTextInterface();
    told->replaceText(1, 3, "a\nb");
    EXPECT_EQ(Mod_Sci::GetText(), "\u00E9a\r\nb\u0416z");
    Mod_Sci::Undo();
    EXPECT_EQ(Mod_Sci::GetText(), "\u00E9\u00E9y\u0416z");
}

// A block has the line ends of its file, but a block with other line ends is read as well. Repeated opening
// loses nothing.
TEST_F(EncodingTest, TheBlockKeepsTheSourceByteForByteInEveryKindOfFile) {
    const auto replaced = [](std::string text, const std::string& end) {
        for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += end.size())
            text.replace(at, 1, end);
        return text;
    };
    const std::string block = "\n;~Zolto Editor Parameters:\n;~B#0\n;~C#ZoltoBasic";
    for (const std::string source : {"a=1\nb=2\n", "a=1\nb=2", "a=1", "\n", "a=1\n\n\n", "\"x\";~Zolto"})
        for (const std::string lineEnd : {"\n", "\r\n"})
            for (const std::string blockEnd : {"\n", "\r\n"}) {
                const std::string text = replaced(source, lineEnd);
                const std::string path = session.host.Put("a.bb", text + replaced(block, blockEnd));
                std::string last;
                for (int opening = 0; opening < 4; ++opening) {
                    frmDoc& document = session.Reopen(path);
                    EXPECT_EQ(Mod_Sci::GetText(), text) << opening;
                    EXPECT_EQ(Mod_Sci::MarkerGet(0) & 16, 16) << opening;
                    ASSERT_TRUE(Mod_File::SaveFile(&document));
                    const std::string saved = session.Bytes(path);
                    const bool lf = document.LfEnds;
                    EXPECT_EQ(saved, text + replaced(block, lf ? "\n" : "\r\n"));
                    EXPECT_EQ(Mod_Sci::Send(SCI_GETEOLMODE), lf ? SC_EOL_LF : SC_EOL_CRLF);
                    if (source.back() == '\n') {
                        EXPECT_EQ(lf, lineEnd == "\n");
                    }
                    if (opening > 0) {
                        EXPECT_EQ(saved, last);
                    }
                    last = saved;
                    session.Close(path);
                }
            }
    OptionsEdit::KeepLineEnds = 0;
    const std::string path = session.Open("a.bb", "a=1\n" + block).FullFilename;
    EXPECT_EQ(Mod_Sci::Send(SCI_GETEOLMODE), SC_EOL_CRLF);
    ASSERT_TRUE(Mod_File::SaveFile(ActiveForm()));
    EXPECT_EQ(session.Bytes(path), "a=1\n" + replaced(block, "\r\n"));
}

}
