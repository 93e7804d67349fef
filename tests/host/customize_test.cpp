// The window for customising, used as a person uses it: by its fields, buttons and keys.
#include "host/qt/customize/CustomizeDialog.h"
#include "host/qt/frame/QtDockStudio.h"
#include "support/FakeHost.h"

#include "host/qt/system/QtText.h"

#include <QAccessible>
#include <QApplication>
#include <QDropEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QTest>
#include <gtest/gtest.h>
#include <set>

namespace {

struct CustomizeTest : testing::Test {
    FakeHost host;
    QtDockStudio dock;
    CustomizeDialog* dialog = nullptr;

    void SetUp() override {
        Layout layout;
        layout.commands = {{.name = "File",
                            .kind = CommandKind::Popup,
                            .caption = "&File",
                            .entries = {{"Open"}, {"Exit", true}}},
                           {.name = "Open", .caption = "&Open…", .shortcuts = {"Ctrl+O"}},
                           {.name = "Exit", .caption = "E&xit", .shortcuts = {"Ctrl+Q"}},
                           {.name = "Word Left", .caption = "Word &Left"}};
        layout.bars = {
            {.name = "MainMenu", .kind = BarKind::Menu, .caption = "Main Menu", .entries = {{"File"}}},
            {.name = "One", .caption = "One", .entries = {{"Open"}, {"Exit"}}}};
        dock.LoadLayout(host.Put("Layout.mp", WriteLayout(layout)));
        dock.SetPlace({.width = 15000, .height = 12000});
        dock.ShowWindow();
        dock.Customize();
        dialog = dock.Window().findChild<CustomizeDialog*>();
        ASSERT_NE(dialog, nullptr);
        dialog->activateWindow();
        QApplication::processEvents();
    }

    template <class Widget>
    Widget* The(const QString& text) {
        for (Widget* widget : dialog->findChildren<Widget*>())
            if (widget->isVisible() && widget->text() == text) return widget;
        ADD_FAILURE() << "nothing says " << text.toStdString();
        return nullptr;
    }
    void Press(const QString& button) { The<QPushButton>(button)->click(); }
    void Search(const QString& words) {
        dialog->findChild<CommandList*>()->findChild<QLineEdit*>()->setText(words);
    }
    std::vector<std::string> Keys(const char* name) {
        return static_cast<QtCommand*>(dock.FindCommand(name))->Record().shortcuts;
    }
    std::string Word() {
        for (const QLabel* label : dialog->findChildren<QLabel*>())
            if (label->text().contains("belongs") || label->text().contains("writes"))
                return Typed(label->text());
        return {};
    }
    void ShowPlaces(const QString& place) {
        dialog->findChild<QTabWidget*>()->setCurrentIndex(1);
        auto* box = dialog->findChild<PlacePage*>()->findChild<QComboBox*>();
        box->setCurrentIndex(box->findText(place));
    }
    using Texts = std::vector<std::string>;
};

TEST_F(CustomizeTest, AKeyIsAssignedWithAWordOnItsOwnerAndCanBePutBack) {
    Search("left");
    EXPECT_EQ(dialog->findChild<CommandList*>()->Selected()->Name(), "Word Left");
    auto* field = dialog->findChild<KeyField*>();
    QTest::keyClick(field, 'x');
    EXPECT_NE(Word(), ""); // a letter is for typing
    EXPECT_FALSE(The<QPushButton>("Assi&gn")->isEnabled());
    QTest::keyClick(field, Qt::Key_O, Qt::ControlModifier);
    EXPECT_NE(Word().find("“Open”"), std::string::npos) << Word();
    Press("Assi&gn");
    EXPECT_EQ(Keys("Word Left"), Texts{"Ctrl+O"});
    EXPECT_EQ(Keys("Open"), Texts{});
    // It fires at once, and the menu shows it.
    EXPECT_TRUE(
        static_cast<QtCommand*>(dock.FindCommand("Word Left"))->Action()->text().endsWith("\tCtrl+O"));
    Search("ctrl+q");
    EXPECT_EQ(dialog->findChild<CommandList*>()->Selected()->Name(), "Exit");
    Press("&Remove");
    EXPECT_EQ(Keys("Exit"), Texts{});
    Search("open");
    Press("&Default");
    EXPECT_EQ(Keys("Open"), Texts{"Ctrl+O"});
    EXPECT_EQ(Keys("Word Left"), Texts{});
    Press("Re&vert");
    EXPECT_EQ(Keys("Exit"), Texts{"Ctrl+Q"});
}

TEST_F(CustomizeTest, EntriesAreInsertedMovedAndRemovedByButtons) {
    Search("left");
    ShowPlaces("Menu: File");
    auto* entries = dialog->findChild<EntryList*>();
    entries->setCurrentRow(0);
    Press("&Insert");
    EXPECT_EQ(dock.IndexInBar("File", "Word Left"), 1);
    Press("&Down");
    EXPECT_EQ(dock.IndexInBar("File", "Word Left"), 2);
    The<QCheckBox>("Begins a &group")->click();
    Press("&Insert"); // it is there already
    EXPECT_EQ(dock.IndexInBar("File", "Word Left"), 2);
    EXPECT_EQ(entries->count(), 3);
    entries->setCurrentRow(0);
    Press("&Remove");
    EXPECT_EQ(dock.IndexInBar("File", "Open"), -1);
    const std::string saved = host.Path("saved.mp");
    dock.SaveLayout(saved); // ends the customising
    QApplication::processEvents();
    EXPECT_TRUE(ParseLayout(host.files.Read(saved)).commands[0].entries ==
                (LayoutEntries{{"Exit", true}, {"Word Left", true}}));
}

TEST_F(CustomizeTest, ACommandIsDroppedOnABarAndOnAMenusTitle) {
    const auto drop = [&](QWidget* bar, const QPoint& at) {
        QMimeData mime;
        mime.setData(CommandMime, "Word Left");
        QCursor::setPos(bar->mapToGlobal(at));
        QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(bar, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent dropped(at, Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(bar, &dropped);
    };
    auto* bar = dock.Window().findChild<QToolBar*>("bar-One");
    auto* action = static_cast<QtCommand*>(dock.FindCommand("Exit"))->Action();
    drop(bar, bar->widgetForAction(action)->geometry().center() - QPoint(4, 0));
    EXPECT_EQ(dock.IndexInBar("One", "Word Left"), 1);
    auto* file = static_cast<QtCommand*>(dock.FindCommand("File"))->Action();
    QMenuBar* menus = dock.Window().menuBar();
    drop(menus, menus->actionGeometry(file).center());
    EXPECT_EQ(dock.IndexInBar("File", "Word Left"), 2);
    Press("Re&vert");
    EXPECT_EQ(dock.IndexInBar("One", "Word Left"), -1);
    EXPECT_EQ(dock.IndexInBar("File", "Word Left"), -1);
}

// Each control can be reached by Tab, and each says what it is.
TEST_F(CustomizeTest, EveryControlIsReachedByKeyboardAndNamed) {
    for (const int page : {0, 1}) {
        dialog->findChild<QTabWidget*>()->setCurrentIndex(page);
        QApplication::processEvents();
        std::set<const QWidget*> reached;
        QWidget* at = dialog;
        do {
            at = at->nextInFocusChain();
            reached.insert(at);
        } while (at != dialog);
        for (const QWidget* widget : dialog->findChildren<QWidget*>()) {
            if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus)) continue;
            EXPECT_EQ(reached.count(widget), 1u) << widget->metaObject()->className();
            const QAccessibleInterface* told =
                QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
            ASSERT_NE(told, nullptr);
            if (qobject_cast<const QTabBar*>(widget)) continue; // its tabs are named
            EXPECT_FALSE(told->text(QAccessible::Name).isEmpty())
                << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
        }
    }
}

}
