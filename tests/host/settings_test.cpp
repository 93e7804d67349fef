// The settings store on disk.
#include "host/qt/system/QtInstances.h"
#include "host/qt/system/QtSettingsStore.h"
#include "support/FakeHost.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

TEST(SettingsTest, ValuesComeBackInAnyCaseAndWithAnyBytes) {
    const FakeHost host;
    const std::string path = host.Path("Zolto.conf");
    const std::string odd = "a, \"b\"; \\ = \xE9 \r\n @x";
    {
        QtSettingsStore store(path);
        store.Save("OptionsEdit", "CursorWidth", "2");
        store.Save("RecentFilenames", "1", odd);
        store.Save("RecentFilenames", "2", "");
    }
    QtSettingsStore store(path);
    EXPECT_EQ(store.Get("optionsedit", "cursorwidth", "1"), "2");
    EXPECT_EQ(store.Get("RecentFilenames", "1", ""), odd);
    EXPECT_EQ(store.Get("RecentFilenames", "2", "default"), "");
    EXPECT_EQ(store.Get("RecentFilenames", "3", "default"), "default");
    store.Delete("OPTIONSEDIT", "CURSORWIDTH");
    EXPECT_EQ(store.Get("OptionsEdit", "CursorWidth", "1"), "1");
}

TEST(SettingsTest, WhatWasWrittenByHandIsFoundInAnyCase) {
    FakeHost host;
    const std::string path = host.Put("Zolto.conf", "[Options]\ngStartUp=2\n[options]\ngrecentfiles=7\n");
    {
        QtSettingsStore store(path);
        EXPECT_EQ(store.Get("Options", "gStartUp", "3"), "2");
        EXPECT_EQ(store.Get("Options", "gRecentFiles", "3"), "7");
        store.Save("OPTIONS", "GSTARTUP", "1");
    }
    QtSettingsStore store(path);
    EXPECT_EQ(store.Get("Options", "gStartUp", "3"), "1");
    store.Delete("Options", "gStartUp");
    EXPECT_EQ(store.Get("Options", "gStartUp", "3"), "3");
}

TEST(SettingsTest, TheLockOfAProcessThatWasKilledHoldsNobodyUp) {
    FakeHost host;
    host.Put("Zolto.conf.lock", "");
    QElapsedTimer time;
    time.start();
    {
        QtSettingsStore store(host.Path("Zolto.conf"));
        store.Save("Options", "gStartUp", "1");
    }
    EXPECT_LT(time.elapsed(), 5000);
    EXPECT_EQ(QtSettingsStore(host.Path("Zolto.conf")).Get("Options", "gStartUp", ""), "1");
}

TEST(SettingsTest, ADamagedFileIsPutAsideWithOneNotice) {
    FakeHost host;
    const std::string damaged = "[Options\nno equals sign \x01\x02\nrubbish";
    const std::string path = host.Put("Zolto.conf", damaged);
    std::vector<std::string> notices;
    {
        QtSettingsStore store(path, [&](const std::string& text) { notices.push_back(text); });
        store.Save("Options", "StartUp", "1");
    }
    ASSERT_EQ(notices.size(), 1u);
    EXPECT_NE(notices[0].find(path + ".damaged-1"), std::string::npos);
    EXPECT_EQ(host.files.Read(path + ".damaged-1"), damaged);
    EXPECT_EQ(QtSettingsStore(path).Get("Options", "StartUp", ""), "1");
}

// Two programs find each other by this section: it is on the disk at once, and read from there.
TEST(SettingsTest, TheInstanceIsExchangedWithTheDiskAtOnce) {
    FakeHost host;
    const std::string path = host.Path("Zolto.conf");
    QtSettingsStore store(path);
    store.Save("Options", "gStartUp", "1");
    store.Save("Instance", "Handle", "1:mine");
    const std::string written = host.files.Read(path);
    EXPECT_NE(written.find("1:mine"), std::string::npos) << written;
    EXPECT_NE(written.find("gstartup=1"), std::string::npos) << written;
    host.Put("Zolto.conf", "[instance]\nhandle=2:other\n[options]\ngstartup=2\ngrecentfiles=7\n");
    EXPECT_EQ(store.Get("Instance", "Handle", ""), "2:other");
    store.Save("Instance", "Handle", "1:mine");
    EXPECT_NE(host.files.Read(path).find("grecentfiles=7"), std::string::npos) << "the other's key is kept";
}

TEST(InstancesTest, AnEmptyLockIsNobodys) {
    FakeHost host;
    host.Put("instance.lock", "");
    QtInstances first(QString::fromStdString(host.folder));
    EXPECT_FALSE(first.AnotherRuns());
    QtInstances second(QString::fromStdString(host.folder));
    EXPECT_TRUE(second.AnotherRuns());
    EXPECT_FALSE(second.Send("1:" + host.Path("gone.socket"), "text"));
}

TEST(InstancesTest, TheFirstOwnsAndASecondDeliversItsText) {
    const FakeHost host;
    QtInstances first(QString::fromStdString(host.folder));
    EXPECT_FALSE(first.AnotherRuns());
    EXPECT_FALSE(first.AnotherRuns()); // asking again changes nothing
    std::vector<std::string> received;
    const std::string handle = first.Publish([&](const std::string& text) { received.push_back(text); });
    EXPECT_NE(std::atoi(handle.c_str()), 0);
    QtInstances second(QString::fromStdString(host.folder));
    const std::string text = "/L:3 \"/tmp/a b.bb\" " + std::string(200000, 'x');
    EXPECT_TRUE(second.Send(handle, text));
    QElapsedTimer clock;
    clock.start();
    while (received.empty() && clock.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    EXPECT_EQ(received, std::vector<std::string>{text});
    EXPECT_TRUE(second.Send(handle, "the last word"));
    first.Withdraw();
    EXPECT_EQ(received.back(), "the last word"); // its sender takes it for delivered
    EXPECT_FALSE(second.Send(handle, "Aktiviraj"));
    EXPECT_FALSE(second.Send("0", "Aktiviraj"));
}

}
