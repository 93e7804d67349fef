// A view tells the same changes in the same order whether a screen reader runs or not.
#include "host/qt/EditorWidget.h"
#include "host/qt/QtEditorView.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

enum : unsigned {
    SCI_GETLENGTH = 2006,
    SCI_SETTARGETSTART = 2190,
    SCI_SETTARGETEND = 2192,
    SCI_REPLACETARGET = 2194,
    SCI_INSERTTEXT = 2003,
    SCI_GOTOPOS = 2025,
    SCI_SETSEL = 2160,
    SCI_REPLACESEL = 2170,
    SCI_BEGINUNDOACTION = 2078,
    SCI_ENDUNDOACTION = 2079,
    SCI_UNDO = 2176,
    SCI_REDO = 2011,
    SCI_PASTE = 2179,
    SCI_LINEDELETE = 2338,
    SCI_SETMODEVENTMASK = 2359,
};
constexpr std::uintptr_t Mask = 3443;
constexpr int Changes = 0xC03; // before and behind insertions and deletions

// Writes down what it is told, with the length of the text at that moment.
class Recorder : public EditorViewEvents {
public:
    explicit Recorder(EditorView& view)
        : view_(view), pointer_(view.DirectPointer()), send_(view.DirectFunction()) {
        Send(SCI_SETMODEVENTMASK, Mask);
        view.SetEvents(this);
    }
    ~Recorder() override { view_.SetEvents(nullptr); }

    void OnNotify(const SciNotification& told) override {
        const bool change = told.code == 2008 && (told.modificationType & Changes);
        if (!change && told.code != 2001 && told.code != 2002) return;
        std::string row = std::to_string(told.code);
        if (change)
            row += " type " + std::to_string(told.modificationType & ~0x1180) + " at " +
                   std::to_string(told.position) + " for " + std::to_string(told.length) + " lines " +
                   std::to_string(told.linesAdded) + " of " + std::to_string(Send(SCI_GETLENGTH));
        rows.push_back(row);
        if (told.modificationType & 0x400)
            texts.push_back(told.text ? std::string(told.text, static_cast<std::size_t>(told.length)) : "?");
    }
    void OnSetFocus() override {}
    void OnKillFocus() override {}
    void OnDropFiles(const std::vector<std::string>&) override {}

    std::intptr_t Send(unsigned message, std::uintptr_t wParam = 0, std::intptr_t lParam = 0) {
        return send_(pointer_, message, wParam, lParam);
    }
    void Text(unsigned message, std::uintptr_t wParam, const char* text) {
        Send(message, wParam, reinterpret_cast<std::intptr_t>(text));
    }

    std::vector<std::string> rows;
    std::vector<std::string> texts; // of the insertions, before they happen

private:
    EditorView& view_;
    std::intptr_t pointer_;
    SciDirectFunction send_;
};

struct Told {
    std::vector<std::string> rows, texts;
};

Told EditWith(bool screenReader) {
    QAccessible::setActive(screenReader);
    QtEditorView view;
    auto* widget = static_cast<QWidget*>(view.NativeWidget());
    Recorder recorder(view);
    recorder.Text(SCI_REPLACESEL, 0, "one\r\ntwo\r\nthree");
    QTest::keyClick(widget, 'x');
    QTest::keyClick(widget, ' ');
    recorder.Text(SCI_INSERTTEXT, 2, "+");
    recorder.Send(SCI_SETSEL, 4, 12);
    QTest::keyClick(widget, 'y'); // over a selection: a deletion and an insertion
    QTest::keyClick(widget, Qt::Key_Backspace);
    QApplication::clipboard()->setText("a\nb");
    recorder.Send(SCI_PASTE);
    recorder.Send(SCI_BEGINUNDOACTION);
    recorder.Send(SCI_SETTARGETSTART, 0);
    recorder.Send(SCI_SETTARGETEND, 3);
    recorder.Text(SCI_REPLACETARGET, 4, "O\r\nE");
    recorder.Send(SCI_LINEDELETE);
    recorder.Send(SCI_ENDUNDOACTION);
    for (int i = 0; i < 9; ++i) recorder.Send(SCI_UNDO);
    for (int i = 0; i < 9; ++i) recorder.Send(SCI_REDO);
    QAccessible::setActive(false);
    return {recorder.rows, recorder.texts};
}

TEST(ViewChanges, AreToldInTheLibrarysOrder) {
    const Told with = EditWith(true);
    const Told without = EditWith(false);
    EXPECT_GT(with.rows.size(), 40U);
    EXPECT_EQ(with.rows, without.rows);
    EXPECT_EQ(with.texts, without.texts);
}

TEST(ViewChanges, AnInsertionTellsItsTextBeforehand) {
    const Told told = EditWith(false);
    const std::vector<std::string> expected{"one\r\ntwo\r\nthree", "x", " ", "+", "y", "a\nb", "O\r\nE"};
    ASSERT_GE(told.texts.size(), expected.size());
    EXPECT_EQ(std::vector(told.texts.begin(), told.texts.begin() + 7), expected);
}

TEST(ViewChanges, AViewThatIsOpenFollowsAScreenReader) {
    QtEditorView view;
    Recorder recorder(view);
    for (const bool active : {true, false}) {
        QAccessible::setActive(active);
        recorder.rows.clear();
        recorder.Text(SCI_REPLACESEL, 0, "a\r\n");
        EXPECT_EQ(recorder.rows.size(), 2U) << active;
    }
}

} // namespace
