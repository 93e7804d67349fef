// The arrangement as a person sees it: what is saved comes back pixel for pixel, after everything was moved,
// after a restart, and in a maximised window.
#include "host/Failure.h"
#include "host/qt/frame/QtDockStudio.h"
#include "host/qt/panes/RolledPane.h"
#include "support/FakeHost.h"

#include <QApplication>
#include <QDebug>
#include <QDockWidget>
#include <QPlainTextEdit>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace {

struct TextForm : Form {
    QPlainTextEdit text;
    void* NativeWidget() override { return &text; }
};

// A window with every kind of thing that an arrangement has.
struct Studio {
    std::map<std::string, TextForm> forms; // outlive the windows that show them
    QtDockStudio dock;

    explicit Studio(const std::string& factory) {
        dock.LoadLayout(factory);
        dock.SetPlace({.top = 300, .left = 300, .width = 15000, .height = 10500});
        for (const char* pane : {"Left", "Right", "Bottom"})
            dock.AttachPane(pane, pane, "", forms[pane], false);
        dock.ShowWindow();
        for (const char* key : {"a", "b", "c", "d"}) dock.AddDocumentWindow(key, key, &forms[key]).Activate();
        Settle();
    }

    static void Settle() {
        for (int round = 0; round < 5; ++round) QTest::qWait(1);
    }

    // Every visible widget of the window with its place on it.
    std::vector<std::string> Geometry() {
        std::vector<std::string> all;
        QMainWindow& window = dock.Window();
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            if (!widget->isVisible() || widget->window() != &window) continue;
            const QRect place(widget->mapTo(&window, QPoint()), widget->size());
            QString line;
            QDebug(&line) << widget->metaObject()->className() << widget->objectName()
                          << widget->accessibleName() << place;
            all.push_back(line.toStdString());
        }
        // Not in the order in which they were made.
        std::sort(all.begin(), all.end());
        return all;
    }

    void Resize(const char* pane, int extent, Qt::Orientation direction) {
        auto* dockWidget = dock.Window().findChild<QDockWidget*>(QString("pane-") + pane);
        dock.Window().resizeDocks({dockWidget}, {extent}, direction);
    }
};

struct ArrangementTest : testing::Test {
    FakeHost host;
    std::string factory, saved;

    void SetUp() override {
        Layout layout;
        layout.commands = {
            {.name = "File", .kind = CommandKind::Popup, .caption = "&File", .entries = {{"Open"}, {"Exit"}}},
            {.name = "Open", .caption = "&Open", .shortcuts = {"Ctrl+O"}},
            {.name = "Exit", .caption = "E&xit", .shortcuts = {"Ctrl+W", "Alt+F4"}},
            {.name = "Box", .kind = CommandKind::EditCombo, .caption = "Box"},
            {.name = "Status", .kind = CommandKind::Status, .caption = "Status"}};
        layout.bars = {{.name = "MainMenu", .kind = BarKind::Menu, .entries = {{"File"}}},
                       {.name = "One", .caption = "One", .entries = {{"Open"}, {"Exit", true}}},
                       {.name = "Two", .caption = "Two", .entries = {{"Box"}}},
                       {.name = "StatusBar", .kind = BarKind::Status, .entries = {{"Status"}}}};
        layout.panes = {{.name = "Left", .caption = "Left", .area = "left", .extent = 200},
                        {.name = "Right", .caption = "Right", .area = "right", .extent = 180},
                        {.name = "Bottom", .caption = "Bottom", .area = "bottom", .extent = 120}};
        factory = host.Put("Layout.mp", WriteLayout(layout));
        saved = host.Path("Layouts/saved.mp");
    }

    // Unlike the factory's in every part.
    static void Arrange(Studio& studio) {
        QtDockStudio& dock = studio.dock;
        dock.NewTabGroup(true); // d beside a, b, c
        dock.FindDocumentWindow("c")->Activate();
        dock.NewTabGroup(false); // c below a, b
        dock.FindDocumentWindow("a")->Activate();
        studio.Resize("Left", 260, Qt::Horizontal);
        studio.Resize("Bottom", 173, Qt::Vertical);
        dock.FindPane("Right")->SetAutoHidden(true);
        dock.Window().addToolBar(Qt::BottomToolBarArea, dock.Window().findChild<QToolBar*>("bar-Two"));
        static_cast<QtCommand*>(dock.FindCommand("Open"))
            ->SetShortcuts({QKeyCombination(Qt::ControlModifier, Qt::Key_K)});
        Studio::Settle();
    }

    static void Disarrange(Studio& studio) {
        QtDockStudio& dock = studio.dock;
        dock.MoveToTabGroup(1);
        dock.FindDocumentWindow("d")->Activate();
        dock.MoveToTabGroup(1);
        dock.FindPane("Right")->SetAutoHidden(false);
        dock.FindPane("Left")->Hide();
        dock.FindPane("Bottom")->SetAutoHidden(true);
        dock.FindBar("One")->SetVisible(false);
        dock.FindBar("StatusBar")->SetVisible(false);
        dock.RemoveFromBar("File", "Exit");
        Studio::Settle();
    }
};

TEST_F(ArrangementTest, EverythingComesBackPixelForPixel) {
    Studio studio(factory);
    const auto first = studio.Geometry();
    Arrange(studio);
    const auto arranged = studio.Geometry();
    EXPECT_NE(first, arranged);
    studio.dock.SaveLayout(saved);
    Disarrange(studio);
    EXPECT_NE(studio.Geometry(), arranged);
    studio.dock.LoadLayout(saved);
    Studio::Settle();
    EXPECT_EQ(studio.Geometry(), arranged);
    EXPECT_EQ(studio.dock.ActiveDocumentWindow()->Key(), "d"); // as before it was loaded
    EXPECT_EQ(studio.dock.IndexInBar("File", "Exit"), 1);
    EXPECT_TRUE(studio.dock.FindPane("Right")->AutoHidden());

    studio.dock.LoadLayout(factory); // keys and all
    Studio::Settle();
    EXPECT_EQ(static_cast<QtCommand*>(studio.dock.FindCommand("Open"))->Record().shortcuts,
              std::vector<std::string>{"Ctrl+O"});
    EXPECT_FALSE(studio.dock.FindPane("Right")->AutoHidden());
    for (const char* pane : {"Left", "Right", "Bottom"}) EXPECT_TRUE(studio.dock.FindPane(pane)->Visible());
}

TEST_F(ArrangementTest, ARestartBringsItBackInAMaximisedWindowToo) {
    for (const int state : {0, 2}) {
        const WindowPlace place{.top = 300, .left = 300, .width = 15000, .height = 10500, .state = state};
        std::vector<std::string> arranged;
        {
            Studio studio(factory);
            studio.dock.SetPlace(place);
            Studio::Settle();
            Arrange(studio);
            arranged = studio.Geometry();
            studio.dock.SaveLayout(saved);
        }
        Studio studio(factory);
        studio.dock.LoadLayout(saved);
        studio.dock.SetPlace(place);
        Studio::Settle();
        EXPECT_EQ(studio.Geometry(), arranged) << state;
    }
}

// The size arrives after the arrangement, and later than it was requested.
TEST_F(ArrangementTest, APaneComesBackAtItsSideAndAsWideAsItWas) {
    const auto pane = [](Studio& studio) {
        return studio.dock.Window().findChild<QDockWidget*>("pane-Left");
    };
    {
        Studio studio(factory);
        studio.Resize("Left", 260, Qt::Horizontal);
        Studio::Settle();
        studio.dock.FindPane("Left")->SetAutoHidden(true); // it slides out as wide as it was
        const auto* frame = studio.dock.Window().findChild<RolledPane*>();
        ASSERT_NE(frame, nullptr);
        EXPECT_EQ(frame->Extent(), 260);
        studio.dock.FindPane("Left")->SetAutoHidden(false);
        studio.dock.Window().addDockWidget(Qt::RightDockWidgetArea, pane(studio));
        Studio::Settle();
        studio.dock.SaveLayout(saved);
    }
    const Layout layout = ParseLayout(host.files.Read(saved));
    EXPECT_EQ(layout.panes[0].area, "right");
    // Also where the toolkit's own record of the window is of no use.
    Layout plain = layout;
    plain.windowState.clear();
    Studio studio(host.Put("plain.mp", WriteLayout(plain)));
    EXPECT_EQ(studio.dock.Window().dockWidgetArea(pane(studio)), Qt::RightDockWidgetArea);
}

TEST_F(ArrangementTest, AFloatingPaneIsPaintedAfterARestart) {
    {
        Studio studio(factory);
        studio.dock.Window().findChild<QDockWidget*>("pane-Bottom")->setFloating(true);
        Studio::Settle();
        studio.dock.SaveLayout(saved);
    }
    QtDockStudio dock;
    TextForm form;
    dock.SuspendRepaint(true);
    dock.LoadLayout(saved);
    dock.AttachPane("Bottom", "Bottom", "", form, false);
    dock.SuspendRepaint(false);
    dock.ShowWindow();
    Studio::Settle();
    const auto* pane = dock.Window().findChild<QDockWidget*>("pane-Bottom");
    ASSERT_TRUE(pane->isFloating());
    EXPECT_TRUE(pane->isVisible());
    EXPECT_TRUE(form.text.updatesEnabled());
}

// Saved on a large screen, loaded on a smaller one: the desktop cuts the window down while it is shown.
TEST_F(ArrangementTest, AnArrangementOfALargeScreenComesUpOnASmallOne) {
    {
        Studio studio(factory);
        studio.dock.SetPlace({.width = 60000, .height = 45000});
        Studio::Settle();
        Arrange(studio);
        studio.dock.SaveLayout(saved);
    }
    QtDockStudio dock;
    dock.LoadLayout(saved);
    dock.SetPlace({.width = 9000, .height = 6000, .state = 2});
    dock.ShowWindow();
    Studio::Settle();
    for (const QSize size : {QSize(800, 700), {1366, 768}, {640, 400}}) {
        dock.Window().resize(size);
        Studio::Settle();
    }
    EXPECT_LT(dock.Window().width(), 1000);
}

TEST_F(ArrangementTest, AWorkspaceLineBringsBackWindowsWithoutForms) {
    const std::string key = "/home/caf\xE9/it's \"x\".bb"; // any bytes a path may have
    std::string line;
    {
        Studio studio(factory);
        studio.dock.AddDocumentWindow(key, "x.bb*", &studio.forms["x"]).Activate();
        studio.dock.NewTabGroup(true);
        line = studio.dock.WindowsText();
    }
    EXPECT_EQ(line.find_first_of("\"\r\n"), std::string::npos);
    QtDockStudio dock;
    dock.LoadLayout(factory);
    EXPECT_THROW(dock.SetWindowsText("damaged"), Failure);
    EXPECT_TRUE(dock.DocumentWindows().empty());
    dock.SetWindowsText(line);
    EXPECT_EQ(dock.DocumentWindows().size(), 5u);
    DocumentWindow* window = dock.FindDocumentWindow(key);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->HostedForm(), nullptr);
    EXPECT_EQ(dock.ActiveDocumentWindow(), window);
    EXPECT_TRUE(dock.FindDocumentWindow("d")->InFront()); // of its own group
    EXPECT_EQ(dock.WindowsText().size(), line.size());
}

TEST_F(ArrangementTest, WhatTheUserTookAwayStaysAwayAndWhatIsNewIsOffered) {
    {
        QtDockStudio dock;
        dock.LoadLayout(factory);
        dock.RemoveFromBar("File", "Exit");
        dock.SaveLayout(saved);
    }
    Layout newer = ParseLayout(host.files.Read(factory));
    newer.commands[0].entries.push_back({"Print"});
    newer.commands.push_back({.name = "Print", .caption = "&Print", .shortcuts = {"Ctrl+O", "Ctrl+P"}});
    newer.commands.push_back({.name = "Shut", .shortcuts = {"Ctrl+W"}, .keysFrom = "Exit"});
    std::erase(newer.bars[2].entries, LayoutEntry{"Box"}); // given a place no longer
    QtDockStudio dock;
    dock.LoadLayout(host.Put("newer.mp", WriteLayout(newer)));
    dock.LoadLayout(saved);
    const auto keys = [&](const char* name) {
        return static_cast<QtCommand*>(dock.FindCommand(name))->Record().shortcuts;
    };
    EXPECT_EQ(keys("Exit"), std::vector<std::string>{"Alt+F4"});
    EXPECT_EQ(keys("Shut"), std::vector<std::string>{"Ctrl+W"});
    EXPECT_EQ(dock.IndexInBar("Two", "Box"), -1);
    dock.InsertIntoBar("Two", "Box", 0, false); // the user wants it
    dock.SaveLayout(saved);
    dock.LoadLayout(saved);
    EXPECT_EQ(dock.IndexInBar("Two", "Box"), 0);
    EXPECT_EQ(dock.IndexInBar("File", "Exit"), -1);
    EXPECT_EQ(dock.IndexInBar("File", "Print"), 1);
    // A key that another command has stays there.
    EXPECT_EQ(keys("Print"), std::vector<std::string>{"Ctrl+P"});
}

// A damaged file is refused with nothing changed, or it is loaded and the window keeps working.
TEST_F(ArrangementTest, ACutOrChangedFileNeverStopsTheWindow) {
    Studio studio(factory);
    Arrange(studio);
    studio.dock.SaveLayout(saved);
    const std::string good = host.files.Read(saved);
    const auto load = [&](const std::string& bytes) {
        const std::string before = studio.dock.WindowsText();
        try {
            studio.dock.LoadLayout(host.Put("Layouts/bad.mp", bytes));
        } catch (const Failure&) {
            EXPECT_EQ(studio.dock.WindowsText(), before);
        }
        EXPECT_EQ(studio.dock.DocumentWindows().size(), 4u);
    };
    for (std::size_t length = 0; length < good.size(); length += good.size() / 60)
        load(good.substr(0, length));
    std::mt19937 random(7);
    for (int round = 0; round < 120; ++round) {
        std::string bad = good;
        for (int change = 0; change < 4; ++change)
            bad[random() % bad.size()] = "\"{}[],:0aZ\xFF\0"[random() % 12];
        load(bad);
    }
    QApplication::processEvents();
    studio.dock.LoadLayout(saved);
    Studio::Settle();
    EXPECT_NE(studio.dock.FindCommand("Open"), nullptr);
}

}
