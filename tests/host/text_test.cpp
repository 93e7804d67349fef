// Paths and bytes: the conversions that everything else relies on.
#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/HostCalls.h"
#include "host/Paths.h"
#include "host/Text.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

namespace {

TEST(TextTest, BytesAreUtf8WhereTheyAreValidAndWindows1252Otherwise) {
    EXPECT_EQ(ToUtf8("gr\xC3\xBC\xC3\x9F"), "gr\xC3\xBC\xC3\x9F");
    EXPECT_EQ(ToUtf8("gr\xFC\xDF \x80"), "gr\xC3\xBC\xC3\x9F \xE2\x82\xAC");
    for (const char* bad : {"\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82", "\x80"})
        EXPECT_FALSE(IsUtf8(bad)) << bad;
    std::string bytes;
    EXPECT_TRUE(FromUtf8ToSingleBytes("\xE2\x82\xAC \xC3\xBC", bytes));
    EXPECT_EQ(bytes, "\x80 \xFC");
    EXPECT_FALSE(FromUtf8ToSingleBytes("\xCE\xB1", bytes)); // no such byte
    EXPECT_EQ(bytes, "\x80 \xFC");
}

TEST(PathsTest, PartsOfPaths) {
    EXPECT_EQ(GetFileName("/a/b.c.bb"), "b.c.bb");
    EXPECT_EQ(GetFolder("/a/b.bb"), "/a/");
    EXPECT_EQ(GetFolder("b.bb"), "");
    EXPECT_EQ(GetExtension("/a.x/b"), "");
    EXPECT_EQ(GetExtension("/a/b.Bb"), ".BB");
    EXPECT_EQ(GetBaseName("/a/b.c.bb"), "b.c");
    EXPECT_EQ(CollapseSeparators("/a//b/c"), "/a/b/c");
    EXPECT_EQ(ToData(ToDisk("a\\b/c")), "a\\b\\c");
}

TEST(PathsTest, AppDirNamesAreFoundInAnyCase) {
    FakeHost host;
    host.Put("Conf/hotcodes.dat", "");
    EXPECT_EQ(AppPath("conf\\HotCodes.dat"), host.Path("Conf/hotcodes.dat"));
    host.Put("copy/Conf/x", "");
    EXPECT_EQ(ChooseAppDir(host.Path("copy")), host.Path("copy"));
}

TEST(ErrorLogTest, AnEntryHasItsTwelveLinesAndTheDialogComesOnceAtATime) {
    FakeHost host;
    host.ExpectErrorLog();
    int dialogs = 0;
    gHostCalls.ShowErrorDialog = [&] {
        ++dialogs;
        EXPECT_TRUE(gInErrorReport);
        // Another failure while the dialog is up is logged and shows nothing.
        Guarded("Inner", "Module", [] { throw Failure(5, "inner"); });
    };
    gHostCalls.CountOpenFiles = [] { return 3; };
    const int answer =
        Guarded("OpenFile", "Mod_File", 7, []() -> int { throw Failure(75, "No access", "Disk"); });
    gHostCalls.ShowErrorDialog = nullptr;
    EXPECT_EQ(answer, 7);
    EXPECT_EQ(dialogs, 1);
    EXPECT_FALSE(gInErrorReport);
    EXPECT_TRUE(gErrorDialogShown);
    const std::string log = host.ErrorLog();
    const std::string first = "**********>> Created: 2001-02-03, 04:05:06<<***********\r\n"
                              "Zolto version             :" +
                              std::string(ProgramVersion) +
                              "\r\n"
                              "App. Path                 :" +
                              host.folder +
                              "\r\n"
                              "File Name                 :Mod_File\r\n"
                              "Method Name               :OpenFile\r\n"
                              "Error Description         :No access\r\n"
                              "Error Number              :75\r\n"
                              "Error Line                :0\r\n"
                              "Error Source              :Disk\r\n"
                              "OS Info                   :TestOS   Version:1.2 Build:3\r\n"
                              "Files opened              :3\r\n"
                              "**************************************************************\r\n";
    EXPECT_EQ(log.substr(0, first.size()), first);
    EXPECT_NE(log.find("Method Name               :Inner"), std::string::npos);
    SetStopErrorLog(22593);
    EXPECT_NE(host.ErrorLog().find("Error Description         :Execution halted"), std::string::npos);
}

TEST(ErrorLogTest, ALogThatCannotBeWrittenIsPassedOver) {
    FakeHost host;
    SetAppDir("/no/such/folder");
    Guarded("A", "B", [] { throw std::bad_alloc(); });
    EXPECT_EQ(gLastError.methodName, "A");
    SetAppDir(host.folder);
}

}
