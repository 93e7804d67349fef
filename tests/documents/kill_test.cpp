// A program that is killed while it saves leaves whole files behind.
#include "documents/StoredList.h"
#include "documents/WorkspaceText.h"
#include "host/Host.h"
#include "host/qt/system/QtSettingsStore.h"
#include "support/FakeHost.h"

#include <QProcess>
#include <QThread>
#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace {

TEST(KillTest, WorkspaceSettingsAndRecentListsAreWholeAtEveryMoment) {
    constexpr int Rounds = 12;
    FakeHost host;
    const std::vector<std::string> files{host.Put("a.bb", "; first file\r\n"),
                                         host.Put("b.bb", "; second file\r\n"),
                                         host.Put("c.bb", "; third file\r\n")};
    std::mt19937 random(11);
    std::vector<std::string> written;
    for (int round = 0; round < Rounds; ++round) {
        QProcess saver;
        QStringList arguments{ZOLTO_APPDIR, QString::fromStdString(host.folder)};
        for (const std::string& file : files) arguments << QString::fromStdString(file);
        saver.start(ZOLTO_SAVE_LOOP, arguments);
        const bool saving = saver.waitForReadyRead();
        if (!saving) {
            saver.kill();
            saver.waitForFinished();
        }
        ASSERT_TRUE(saving) << saver.readAllStandardError().toStdString();
        QThread::usleep(random() % 40000);
        saver.kill();
        ASSERT_TRUE(saver.waitForFinished());
        EXPECT_EQ(saver.exitStatus(), QProcess::CrashExit); // it did not end before by itself
        const auto workspace = ReadWorkspaceText(host.files.Read(host.Path("last.zws")));
        ASSERT_TRUE(workspace);
        EXPECT_TRUE(workspace->whole);
        ASSERT_EQ(workspace->entries.size(), files.size());
        for (std::size_t at = 0; at < files.size(); ++at) EXPECT_EQ(workspace->entries[at].path, files[at]);
        EXPECT_EQ(workspace->views.size(), files.size());
        std::string notice;
        QtSettingsStore settings(host.Path("settings.ini"), [&](const std::string& text) { notice = text; });
        EXPECT_EQ(notice, "");
        gHost.settings = &settings;
        std::vector<std::string> recent = ReadStoredList("RecentFilenames");
        EXPECT_EQ(settings.Get("RecentFilenames", "Count", ""), std::to_string(files.size()));
        EXPECT_NE(settings.Get("Layout0.8_0", "MainTop", "none"), "none");
        gHost.settings = &host.settings;
        std::sort(recent.begin(), recent.end());
        EXPECT_EQ(recent, files);
    }
}

} // namespace
