// The frame of the main window: document windows, their events in order, and shortcuts.
#include "host/Failure.h"
#include "host/qt/frame/QtDockStudio.h"
#include "host/qt/panes/EdgeStrip.h"
#include "host/qt/tabs/TabGroup.h"
#include "host/qt/view/EditorWidget.h"
#include "support/FakeHost.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDockWidget>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class Page : public Form {
public:
    void* NativeWidget() override { return view_.NativeWidget(); }
    QtEditorView& View() { return view_; }

private:
    QtEditorView view_;
};

struct Recorder : DockStudioEvents {
    std::vector<std::string> events;
    bool cancelHiding = false, cancelShortcut = false;
    std::function<void(DocumentWindow&)> hidden;

    void DS_CommandClick(DockCommand& command, int item) override {
        events.push_back("click " + command.Name() + (item < 0 ? "" : " " + std::to_string(item)));
    }
    void DS_ComboTextChanged(DockCommand& command) override { events.push_back("text " + command.Text()); }
    void DS_ComboTextCommitted(DockCommand& command) override {
        events.push_back("commit " + command.Text());
    }
    void DS_DocumentWindowActivate(DocumentWindow& window, bool creating) override {
        events.push_back((creating ? "create " : "activate ") + window.Key());
    }
    void DS_DocumentWindowDeactivate(DocumentWindow& window) override {
        events.push_back("leave " + window.Key());
    }
    void DS_DocumentWindowHiding(DocumentWindow& window, bool& cancel) override {
        events.push_back("hiding " + window.Key());
        cancel = cancelHiding;
    }
    void DS_DocumentWindowHidden(DocumentWindow& window) override {
        events.push_back("hidden " + window.Key());
        if (hidden) hidden(window);
    }
    std::function<void(int x)> context;

    void DS_DocumentWindowContextClick(DocumentWindow&, int place, int x, int, bool& cancel) override {
        events.push_back("context " + std::to_string(place));
        if (context) context(x);
        cancel = true;
    }
    void DS_DocumentWindowDoubleClick(DocumentWindow&, int) override {}
    void DS_PaneShown(const std::string& pane, bool shown) override {
        events.push_back("pane " + pane + (shown ? " on" : " off"));
    }
    void DS_PaneDragged(const std::string& pane, bool begins) override {
        events.push_back((begins ? "drag " : "let go ") + pane);
    }
    void DS_Customization(bool begins) override { events.push_back(begins ? "customize" : "customized"); }
    void DS_ShortcutFiring(DockCommand&, bool& cancel) override { cancel = cancelShortcut; }
    void DS_FilesDropped(const std::vector<std::string>&) override {}
    void DS_QueryUnload(bool& cancel) override {
        events.push_back("close?");
        cancel = true;
    }
    void DS_Resize() override {}
};

struct DockTest : testing::Test {
    FakeHost host;
    Page a, b, c; // outlive the windows that show them
    QtDockStudio dock;
    Recorder recorder;
    using Events = std::vector<std::string>;

    void SetUp() override {
        Layout layout;
        layout.commands = {{.name = "Save", .caption = "&Save", .category = "Sci", .shortcuts = {"Ctrl+S"}},
                           {.name = "New Line", .shortcuts = {"Return"}},
                           {.name = "Copy", .shortcuts = {"Ctrl+C"}},
                           {.name = "Box", .kind = CommandKind::EditCombo}};
        layout.bars = {{.name = "Main", .caption = "Main", .entries = {{"Save"}, {"Box"}}}};
        dock.LoadLayout(host.Put("Layout.mp", WriteLayout(layout)));
        dock.SetEvents(&recorder);
        dock.SetPlace({.width = 12000, .height = 9000});
        dock.ShowWindow();
        dock.Window().activateWindow();
        QApplication::processEvents();
    }
    Events Take() { return std::exchange(recorder.events, {}); }
};

TEST_F(DockTest, WindowsComeToTheFrontAndCloseInOrder) {
    DocumentWindow& first = dock.AddDocumentWindow("a", "a.bb", &a);
    EXPECT_EQ(Take(), Events{"create a"});
    first.SetVisible(true);
    DocumentWindow& second = dock.AddDocumentWindow("b", "b.bb", &b);
    second.SetVisible(true);
    EXPECT_EQ(Take(), (Events{"activate a", "create b", "leave a", "activate b"}));
    EXPECT_TRUE(second.InFront());
    EXPECT_FALSE(first.InFront());
    second.SetCaption("b.bb*");
    EXPECT_EQ(dock.Window().windowTitle(), "b.bb* - Zolto");
    EXPECT_THROW(dock.AddDocumentWindow("a", "again", &c), Failure);

    recorder.cancelHiding = true;
    second.SetVisible(false);
    EXPECT_TRUE(second.Visible());
    EXPECT_EQ(Take(), Events{"hiding b"});

    recorder.cancelHiding = false;
    recorder.hidden = [&](DocumentWindow& window) { dock.DropDocumentWindow(window); };
    second.SetVisible(false);
    EXPECT_FALSE(second.Visible()); // the window may still be looked at
    EXPECT_EQ(Take(), (Events{"hiding b", "leave b", "hidden b", "activate a"}));
    EXPECT_EQ(dock.FindDocumentWindow("b"), nullptr);
    EXPECT_EQ(dock.ActiveDocumentWindow(), &first);
    EXPECT_EQ(dock.Window().windowTitle(), "a.bb - Zolto");
    first.SetVisible(false);
    EXPECT_EQ(dock.ActiveDocumentWindow(), nullptr);
    EXPECT_EQ(dock.Window().windowTitle(), "Zolto");
}

TEST_F(DockTest, GroupsHaveFrontsOfTheirOwnAndVanishWhenEmpty) {
    DocumentWindow& first = dock.AddDocumentWindow("a", "a", &a);
    DocumentWindow& second = dock.AddDocumentWindow("", "b", &b);
    DocumentWindow& third = dock.AddDocumentWindow("c", "c", &c);
    EXPECT_EQ(second.Key().size(), 38u);
    first.Activate();
    dock.NextTab(-1); // past the first comes the last
    EXPECT_EQ(dock.ActiveDocumentWindow(), &third);
    dock.NewTabGroup(true);
    EXPECT_TRUE(third.InFront());
    EXPECT_TRUE(first.InFront() != second.InFront());
    first.Activate();
    EXPECT_TRUE(third.InFront());
    third.SetVisible(false);
    second.Activate();
    dock.NextTab(1);
    EXPECT_EQ(dock.ActiveDocumentWindow(), &first);
}

TEST_F(DockTest, ACancelledShortcutGoesOnToTheFocusedWidget) {
    dock.AddDocumentWindow("a", "a", &a).Activate();
    auto* view = static_cast<EditorWidget*>(a.View().NativeWidget());
    QApplication::processEvents();
    ASSERT_EQ(QApplication::focusWidget(), view);
    Take();
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_EQ(Take(), Events{"click New Line"});
    EXPECT_EQ(view->SendScintilla(QsciScintillaBase::SCI_GETLENGTH), 0);
    recorder.cancelShortcut = true;
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_EQ(Take(), Events{});
    const long length = view->SendScintilla(QsciScintillaBase::SCI_GETLENGTH);
    QTest::keyClick(view, 'd', Qt::AltModifier); // a menu's key, not typing
    EXPECT_EQ(view->SendScintilla(QsciScintillaBase::SCI_GETLENGTH), length);
    EXPECT_GT(view->SendScintilla(QsciScintillaBase::SCI_GETLENGTH), 0); // the view's own Enter
}

TEST_F(DockTest, TheMenuKeyAsksAtTheCaretAndAViewIsCalledByItsFile) {
    DocumentWindow& window = dock.AddDocumentWindow("a", "one.bb", &a);
    window.Activate();
    QApplication::processEvents();
    auto* view = static_cast<QWidget*>(a.View().NativeWidget());
    window.SetCaption("one.bb*");
    EXPECT_EQ(view->accessibleName(), "one.bb");
    dock.AddDocumentWindow("b", "R&D.bb", &b).SetVisible(true);
    for (const bool first : {false, true}) {
        if (first) window.Activate();
        QAccessibleInterface* bar =
            QAccessible::queryAccessibleInterface(dock.Window().findChild<DocumentTabBar*>());
        EXPECT_EQ(bar->child(0)->state().selected, first);
        EXPECT_EQ(bar->child(1)->state().selected, !first);
        EXPECT_EQ(bar->child(1)->text(QAccessible::Name), "R&D.bb");
    }
    QMenu* menu = nullptr;
    dock.FillPopup("Popup", {"Save"});
    recorder.context = [&](int x) {
        EXPECT_EQ(x, -1);
        dock.ShowPopup("Popup");
        menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    };
    const QRect caret = view->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    QContextMenuEvent key(QContextMenuEvent::Keyboard, caret.center(), view->mapToGlobal(caret.center()));
    QApplication::sendEvent(view, &key);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->pos(), view->mapToGlobal(caret.bottomLeft()));
    menu->close();
    recorder.context = nullptr;
}

TEST_F(DockTest, DisabledCommandsDontFireAndHeldKeysRepeatOnlyWhereAllowed) {
    dock.AddDocumentWindow("a", "a", &a).Activate();
    QApplication::processEvents();
    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    Take();
    const auto hold = [&] {
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_S, Qt::ControlModifier, QString(), true);
        QApplication::sendEvent(focus, &repeat);
    };
    hold();
    EXPECT_EQ(Take(), Events{});
    dock.FindCommand("Save")->SetAutoRepeat(true);
    hold();
    EXPECT_EQ(Take(), Events{"click Save"});
    // The clock of the events may begin anywhere; what counts is how much later than others one comes.
    const auto press = [&](quint64 made, bool repeat) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_S, Qt::ControlModifier, QString(), repeat);
        key.setTimestamp(made);
        QApplication::sendEvent(focus, &key);
        return Take().size();
    };
    EXPECT_EQ(press(500'000, false), 1U);
    EXPECT_EQ(press(500'000, true), 1U);
    EXPECT_EQ(press(499'000, true), 0U) << "a repeat that comes a second late";
    EXPECT_EQ(press(499'000, false), 1U) << "a press was made, however late it comes";
    dock.FindCommand("Save")->SetEnabled(false);
    QTest::keyClick(focus, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Take(), Events{});
}

TEST_F(DockTest, ATextFieldKeepsItsOwnKeys) {
    auto* field = dock.Window().findChild<QLineEdit*>();
    ASSERT_NE(field, nullptr);
    field->setFocus();
    QApplication::processEvents();
    QWidget* box = QApplication::focusWidget(); // who gets the keys that a person types
    QTest::keyClicks(box, "-x 1");
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    Take();
    QTest::keyClick(box, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Take(), Events{});
    QTest::keyClick(box, Qt::Key_S, Qt::ControlModifier); // not the field's own
    EXPECT_EQ(Take(), Events{"click Save"});
    // The field claims a key before it gets the press. If the press never comes, the claim is void.
    const auto offer = [&](QEvent::Type type, Qt::Key key) {
        QKeyEvent event(type, key, Qt::ControlModifier);
        QApplication::sendEvent(box, &event);
    };
    offer(QEvent::ShortcutOverride, Qt::Key_C);
    offer(QEvent::ShortcutOverride, Qt::Key_S);
    offer(QEvent::KeyPress, Qt::Key_S);
    EXPECT_EQ(Take(), Events{"click Save"});
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(Take(), Events{"commit -x 1"});
    dock.FindCommand("Box")->SetText("from the program");
    EXPECT_EQ(field->text(), "from the program");
    EXPECT_EQ(Take(), Events{});
}

TEST_F(DockTest, ClosingTheWindowAsks) {
    dock.CloseWindow();
    EXPECT_EQ(Take(), Events{"close?"});
    EXPECT_TRUE(dock.Window().isVisible());
}

// A pane that is rolled away slides out on demand and gives the focus back to the text.
TEST_F(DockTest, ARolledPaneSlidesOutByCommandAndBackByEscape) {
    QPlainTextEdit text;
    struct TextForm : Form {
        explicit TextForm(QWidget& shown) : widget(shown) {}
        void* NativeWidget() override { return &widget; }
        QWidget& widget;
    } form(text);
    dock.AttachPane("Output", "Output", "", form, true);
    dock.AddDocumentWindow("a", "a", &a).Activate();
    DockPane& pane = *dock.FindPane("Output");
    ASSERT_TRUE(pane.Visible());
    Take();
    pane.SetAutoHidden(true);
    EXPECT_TRUE(pane.Visible()); // its tab is
    EXPECT_TRUE(pane.AutoHidden());
    EXPECT_FALSE(text.isVisible());
    EXPECT_EQ(Take(), Events{}); // it was neither shown nor closed
    QWidget* editor = QApplication::focusWidget();
    pane.Show();
    EXPECT_TRUE(text.isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &text);
    const QWidget* frame = text.parentWidget()->parentWidget();
    const int height = frame->height();
    for (const int change : {-100, 100}) { // it follows the window
        dock.Window().resize(dock.Window().width() + change, dock.Window().height() + change);
        ASSERT_TRUE(QTest::qWaitFor([&] {
            const QRect strip = dock.Window().centralWidget()->geometry();
            return frame->geometry().bottom() == strip.bottom() && frame->height() == height;
        })) << change;
    }
    QTest::keyClick(&text, Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !text.isVisible(); }));
    for (const auto* tab : dock.Window().findChildren<EdgeTab*>()) EXPECT_FALSE(tab->isChecked());
    EXPECT_EQ(QApplication::focusWidget(), editor);
    pane.Hide();
    EXPECT_FALSE(pane.Visible());
    pane.Show(); // back at its edge, and out
    EXPECT_TRUE(text.isVisible());
    EXPECT_EQ(Take(), (Events{"pane Output off", "pane Output on"}));
    pane.SetAutoHidden(false);
    EXPECT_TRUE(text.isVisible());
    EXPECT_TRUE(qobject_cast<QDockWidget*>(text.parentWidget()));
}

}
