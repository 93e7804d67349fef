// A view reports changes of its text in the library's order, and reports them to assistive technology.
#include "host/qt/view/EditorWidget.h"
#include "host/qt/view/QtEditorView.h"

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
constexpr int Changes = 0xC03; // before and after insertions and deletions

// Records the notifications, with the length of the text at that moment.
class Recorder : public EditorViewEvents {
public:
    // `byLibrary`: the mask bypasses the view, which then makes no notifications itself.
    explicit Recorder(EditorView& view, bool byLibrary = false)
        : view_(view), pointer_(view.DirectPointer()), send_(view.DirectFunction()) {
        if (byLibrary)
            static_cast<EditorWidget*>(view.NativeWidget())->SendScintilla(SCI_SETMODEVENTMASK, Mask);
        else
            Send(SCI_SETMODEVENTMASK, Mask);
        view.SetEvents(this);
    }
    ~Recorder() override { view_.SetEvents(nullptr); }

    void OnNotify(const SciNotification& told) override {
        const bool change = told.code == 2008 && (told.modificationType & Changes);
        if (!change && told.code != 2001 && told.code != 2002) return;
        std::string row = std::to_string(told.code);
        if (change)
            row += " type " + std::to_string(told.modificationType & ~0x3180) + " at " +
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

Told Edit(bool byLibrary) {
    QtEditorView view;
    auto* widget = static_cast<QWidget*>(view.NativeWidget());
    Recorder recorder(view, byLibrary);
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
    return {recorder.rows, recorder.texts};
}

TEST(ViewChanges, AreToldInTheLibrarysOrderAndInsertionsWithTheirTextBeforehand) {
    const Told with = Edit(true);
    const Told without = Edit(false);
    EXPECT_GT(with.rows.size(), 40U);
    EXPECT_EQ(with.rows, without.rows);
    EXPECT_EQ(with.texts, without.texts);
    const std::vector<std::string> expected{"one\r\ntwo\r\nthree", "x", " ", "+", "y", "a\nb", "O\r\nE"};
    ASSERT_GE(with.texts.size(), expected.size());
    EXPECT_EQ(std::vector(with.texts.begin(), with.texts.begin() + 7), expected);
}

TEST(ViewPainting, HighBytesLookAsTheirCharactersDo) {
    QImage seen[2];
    for (const bool wide : {false, true}) {
        QtEditorView view;
        auto* widget = static_cast<EditorWidget*>(view.NativeWidget());
        view.SetUtf8(wide);
        widget->SendScintilla(EditorWidget::SCI_STYLESETFONT, EditorWidget::STYLE_DEFAULT, "Monospace");
        widget->SendScintilla(EditorWidget::SCI_STYLECLEARALL);
        Recorder(view).Text(SCI_REPLACESEL, 0, wide ? "a\u20AC b" : "a\x80 b");
        widget->resize(200, 60);
        // Up to the blank: the position of what follows may be a fraction of a pixel.
        const auto blank = widget->SendScintilla(EditorWidget::SCI_POINTXFROMPOSITION, 0UL, wide ? 4L : 2L);
        seen[wide] = widget->viewport()->grab(QRect(0, 0, static_cast<int>(blank), 60)).toImage();
    }
    EXPECT_EQ(seen[0], seen[1]);
}

TEST(ViewChanges, WhatIsCopiedIsReadableElsewhere) {
    for (const bool wide : {false, true}) {
        QtEditorView view;
        view.SetUtf8(wide);
        Recorder recorder(view);
        recorder.Text(SCI_REPLACESEL, 0, wide ? "a\u20AC b" : "a\x80 b");
        static_cast<EditorWidget*>(view.NativeWidget())->SendScintilla(EditorWidget::SCI_SELECTALL);
        static_cast<EditorWidget*>(view.NativeWidget())->SendScintilla(EditorWidget::SCI_COPY);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), u"a\u20AC b") << wide;
    }
}

std::vector<std::string> heard;

void Listen(QAccessibleEvent* event) {
    const auto add = [](const std::string& kind, int at, const QString& text) {
        heard.push_back(kind + std::to_string(at) + " " + text.toStdString());
    };
    switch (event->type()) {
    case QAccessible::TextInserted: {
        auto* told = static_cast<QAccessibleTextInsertEvent*>(event);
        return add("+", told->changePosition(), told->textInserted());
    }
    case QAccessible::TextRemoved: {
        auto* told = static_cast<QAccessibleTextRemoveEvent*>(event);
        return add("-", told->changePosition(), told->textRemoved());
    }
    case QAccessible::TextCaretMoved:
        return add("|", static_cast<QAccessibleTextCursorEvent*>(event)->cursorPosition(), {});
    case QAccessible::TextSelectionChanged: {
        auto* told = static_cast<QAccessibleTextSelectionEvent*>(event);
        return add("#", told->selectionStart(), QString::number(told->selectionEnd()));
    }
    default: return;
    }
}

// Offsets are in UTF-16 units, also after letters of several bytes.
TEST(ViewChanges, AssistiveTechnologyHearsTextCaretAndSelection) {
    for (const bool wide : {false, true}) {
        QtEditorView view;
        auto* widget = static_cast<EditorWidget*>(view.NativeWidget());
        Recorder recorder(view);
        recorder.Send(SCI_SETMODEVENTMASK, 0);
        view.SetUtf8(wide);
        recorder.Text(SCI_REPLACESEL, 0,
                      wide ? "\u00E9\U0001F600\u0416\r\nend"
                           : "\xE9\x80\x93"
                             "b\r\nend");
        recorder.Send(SCI_GOTOPOS, 1 + wide);
        recorder.Send(SCI_SETMODEVENTMASK, Mask);
        heard.clear();
        QAccessible::setActive(true);
        TextTeller::Send = Listen;
        widget->show();
        const auto settle = [&] {
            widget->viewport()->repaint();
            QApplication::processEvents();
        };
        settle();
        EXPECT_EQ(heard, std::vector<std::string>{}) << "the first look";
        QTest::keyClick(widget, 'x');
        settle();
        recorder.Send(SCI_SETSEL, 2 + wide, wide ? 7 : 4);
        settle();
        QTest::keyClick(widget, Qt::Key_Backspace);
        settle();
        TextTeller::Send = QAccessible::updateAccessibility;
        const std::vector<std::string> narrow{"+1 x", "|2 ", "|4 ", "#2 4", "-2 \u20AC\u201C", "|2 ", "#2 2"};
        const std::vector<std::string> two{"+1 x", "|2 ", "|4 ", "#2 4", "-2 \U0001F600", "|2 ", "#2 2"};
        EXPECT_EQ(heard, wide ? two : narrow);
        QAccessibleTextInterface* text = QAccessible::queryAccessibleInterface(widget)->textInterface();
        ASSERT_NE(text, nullptr);
        const QString all =
            wide ? QString::fromUtf8("\u00E9x\u0416\r\nend") : QString::fromUtf8("\u00E9xb\r\nend");
        EXPECT_EQ(text->characterCount(), all.size());
        recorder.Text(SCI_INSERTTEXT, 0, "123");
        EXPECT_EQ(text->characterCount(), all.size() + 3) << "counted anew after a change";
        recorder.Send(SCI_UNDO);
        EXPECT_EQ(text->text(0, -1), all);
        int start = 0, end = 0;
        EXPECT_EQ(text->textAtOffset(6, QAccessible::LineBoundary, &start, &end), "end");
        EXPECT_EQ(start, 5);
        EXPECT_EQ(text->textAtOffset(6, QAccessible::WordBoundary, &start, &end), "end");
        EXPECT_EQ(text->textBeforeOffset(5, QAccessible::LineBoundary, &start, &end), all.left(5));
        EXPECT_EQ(text->textAfterOffset(0, QAccessible::CharBoundary, &start, &end), "x");
        text->setSelection(0, 1, 3);
        EXPECT_EQ(recorder.Send(SCI_GETLENGTH), wide ? 10 : 8);
        text->selection(0, &start, &end);
        EXPECT_EQ(std::pair(start, end), std::pair(1, 3));
        QAccessible::setActive(false);
    }
}

} // namespace
