// Tabs under the mouse: dragged within a group and between groups, closed, and switched by the wheel.
#include "host/qt/frame/QtDockStudio.h"
#include "host/qt/tabs/TabGroup.h"
#include "host/qt/view/QtEditorView.h"
#include "support/FakeHost.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

struct Page : Form {
    QtEditorView view;
    void* NativeWidget() override { return view.NativeWidget(); }
};

struct TabsTest : testing::Test {
    FakeHost host;
    Page pages[4]; // outlive the windows that show them
    QtDockStudio dock;

    void SetUp() override {
        Layout layout;
        layout.commands = {{.name = "Open"}};
        dock.LoadLayout(host.Put("Layout.mp", WriteLayout(layout)));
        dock.SetPlace({.width = 15000, .height = 12000});
        dock.ShowWindow();
        int index = 0;
        for (const char* key : {"a", "b", "c", "d"})
            dock.AddDocumentWindow(key, key, &pages[index++]).Activate();
        QApplication::processEvents();
    }

    std::vector<TabGroup*> Groups() {
        auto groups = dock.Window().findChildren<TabGroup*>().toVector();
        std::vector<TabGroup*> shown(groups.begin(), groups.end());
        std::erase_if(shown, [](const TabGroup* group) { return !group->isVisible(); });
        const auto place = [](const TabGroup* group) { return group->mapTo(group->window(), QPoint()); };
        std::sort(shown.begin(), shown.end(), [&](const TabGroup* one, const TabGroup* two) {
            return std::pair(place(one).y(), place(one).x()) < std::pair(place(two).y(), place(two).x());
        });
        return shown;
    }
    // The captions of each group, in order.
    std::vector<std::string> Captions() {
        std::vector<std::string> all;
        for (const TabGroup* group : Groups()) {
            std::string captions;
            for (int at = 0; at < group->count(); ++at) captions += group->tabText(at).toStdString();
            all.push_back(captions);
        }
        return all;
    }
    // Drags a tab of a group to a place of the window, in steps as a hand does.
    void Drag(TabGroup* group, int tab, const QPoint& to, bool drop = true) {
        QTabBar* bar = group->tabBar();
        const QPoint from = bar->tabRect(tab).center();
        const QPoint target = bar->mapFromGlobal(dock.Window().mapToGlobal(to));
        QTest::mousePress(bar, Qt::LeftButton, {}, from);
        for (int step = 1; step <= 4; ++step) {
            const QPoint at = from + (target - from) * step / 4;
            QMouseEvent move(QEvent::MouseMove, at, bar->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(bar, &move);
        }
        if (!drop) return;
        QTest::mouseRelease(bar, Qt::LeftButton, {}, target);
        QApplication::processEvents();
    }
    QPoint In(TabGroup* group, double x, double y) {
        return group->mapTo(&dock.Window(), QPoint(static_cast<int>(group->width() * x),
                                                   static_cast<int>(group->height() * y)));
    }
};

using Captioned = std::vector<std::string>;

TEST_F(TabsTest, ATabIsDraggedToASideIntoAGroupAndBack) {
    TabGroup* first = Groups().front();
    Drag(first, 1, In(first, 0.9, 0.5)); // b to the right side
    EXPECT_EQ(Captions(), (Captioned{"acd", "b"}));
    EXPECT_EQ(dock.ActiveDocumentWindow()->Key(), "b");
    Drag(Groups()[0], 0, In(Groups()[1], 0.5, 0.9)); // a below b
    EXPECT_EQ(Captions(), (Captioned{"cd", "b", "a"}));
    Drag(Groups()[0], 1, In(Groups()[1], 0.5, 0.5)); // d into the middle of b's group
    EXPECT_EQ(Captions(), (Captioned{"c", "bd", "a"}));
    // b before c: its group of two is left with one
    const QPoint onBar = Groups()[0]->tabBar()->tabRect(0).center() - QPoint(10, 0);
    Drag(Groups()[1], 0, Groups()[0]->tabBar()->mapTo(&dock.Window(), onBar));
    EXPECT_EQ(Captions(), (Captioned{"bc", "d", "a"}));
    const int width = Groups()[0]->width();
    Drag(Groups()[1], 0, In(Groups()[2], 0.5, 0.5));
    EXPECT_EQ(Captions(), (Captioned{"bc", "ad"}));
    EXPECT_EQ(Groups()[0]->width(), width) << "the other division keeps its sizes";
    Drag(Groups()[1], 0, In(Groups()[0], 0.5, 0.5));
    Drag(Groups()[1], 0, In(Groups()[0], 0.5, 0.5));
    EXPECT_EQ(Captions(), Captioned{"bcad"}); // divisions without parts are gone
    EXPECT_EQ(dock.ActiveDocumentWindow()->Key(), "d");
}

// The keyboard's focus decides which document is the active one, in whatever group it is.
TEST_F(TabsTest, AClickIntoAnotherGroupMakesItsDocumentActive) {
    TabGroup* first = Groups().front();
    Drag(first, 1, In(first, 0.9, 0.5)); // b to the right side
    static_cast<QWidget*>(pages[3].NativeWidget())->setFocus();
    EXPECT_EQ(dock.ActiveDocumentWindow()->Key(), "d");
    static_cast<QWidget*>(pages[1].NativeWidget())->setFocus();
    EXPECT_EQ(dock.ActiveDocumentWindow()->Key(), "b");
}

TEST_F(TabsTest, ADragThatIsCancelledOrGoesNowhereChangesNothing) {
    TabGroup* group = Groups().front();
    Drag(group, 0, QPoint(-200, -200));
    EXPECT_EQ(Captions(), Captioned{"abcd"});
    Drag(group, 1, In(group, 0.5, 0.5)); // where it already is
    EXPECT_EQ(Captions(), Captioned{"abcd"});
    Drag(group, 2, In(group, 0.9, 0.5), false);
    QTest::keyClick(group->tabBar(), Qt::Key_Escape);
    QTest::mouseRelease(group->tabBar(), Qt::LeftButton, {}, group->tabBar()->rect().center());
    EXPECT_EQ(Captions(), Captioned{"abcd"});
}

TEST_F(TabsTest, WithinItsBarATabOnlyChangesItsPlace) {
    QTabBar* bar = Groups().front()->tabBar();
    QTest::mousePress(bar, Qt::LeftButton, {}, bar->tabRect(0).center());
    for (int x = bar->tabRect(0).center().x(); x <= bar->tabRect(2).center().x() + 5; x += 5) {
        const QPoint at(x, bar->tabRect(0).center().y());
        QMouseEvent move(QEvent::MouseMove, at, bar->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(bar, &move);
    }
    QTest::mouseRelease(bar, Qt::LeftButton, {}, bar->tabRect(2).center());
    EXPECT_EQ(Captions(), Captioned{"bcad"});
    EXPECT_EQ(dock.ActiveDocumentWindow()->Key(), "a");
}

TEST_F(TabsTest, MiddleClickClosesAndTheWheelSwitches) {
    QTabBar* bar = Groups().front()->tabBar();
    QTest::mouseClick(bar, Qt::MiddleButton, {}, bar->tabRect(1).center());
    EXPECT_FALSE(dock.FindDocumentWindow("b")->Visible());
    EXPECT_EQ(Captions(), Captioned{"acd"});
    const QPointF at = bar->tabRect(0).center();
    QWheelEvent up(at, bar->mapToGlobal(at), {}, QPoint(0, 120), Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(bar, &up);
    EXPECT_EQ(dock.ActiveDocumentWindow()->Key(), "c");
}

}
