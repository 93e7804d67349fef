// The start: one instance, the load sequence, compilers, settings, and the place of the window.
#include "documents/CompilerRegistry.h"
#include "documents/DocumentCalls.h"
#include "documents/Mod_File.h"
#include "documents/Mod_Main.h"
#include "documents/OptionTable.h"
#include "documents/Options.h"
#include "documents/Session.h"
#include "engine/ClsCompiler.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "host/Host.h"
#include "host/Text.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

struct StartTest : testing::Test {
    Session session;
    void SetUp() override { gCompilers.RemoveAll(); }
};

TEST_F(StartTest, ASecondInstanceSendsWhatItWasGivenAndEnds) {
    session.host.instances.anotherRuns = true;
    session.host.settings.Save("instance", "HANDLE", "4711:channel");
    EXPECT_FALSE(Mod_Main::Main(""));
    EXPECT_FALSE(Mod_Main::Main("/L:3 \"/a b.bb\""));
    EXPECT_EQ(session.host.instances.sent,
              (std::vector<std::string>{"4711:channel Aktiviraj", "4711:channel /L:3 \"/a b.bb\""}));
    EXPECT_EQ(gCompilers.Count(), 0); // nothing was loaded
    session.host.settings.Save("Options", "MultipleInstances", "1");
    EXPECT_TRUE(Mod_Main::Main(""));
    Options::MultipleInstances = 0;
}

// The first instance is closing, or was killed and left its channel.
TEST_F(StartTest, AFileThatNobodyTakesOpensHere) {
    session.host.instances.anotherRuns = session.host.instances.nobodyListens = true;
    const std::string path = session.host.Put("a.bb", "");
    for (const char* handle : {"0", "4711:stale"}) {
        gCompilers.RemoveAll();
        session.host.settings.Save("Instance", "Handle", handle);
        session.host.instances.waits = 0;
        EXPECT_TRUE(Mod_Main::Main(path));
        EXPECT_EQ(session.WindowKeys(), std::vector<std::string>{path});
        EXPECT_EQ(session.host.instances.waits, 30); // an instance that is just starting gets its time
        session.Close(path);
    }
}

TEST_F(StartTest, TheStepsComeInTheirOrder) {
    std::vector<std::string> steps;
    gDocumentCalls.SplashStatus = [&](const std::string& text) { steps.push_back(text); };
    gDocumentCalls.CreateMainWindow = [&] { steps.push_back("create"); };
    gDocumentCalls.ShowMainWindow = [&] {
        EXPECT_EQ(session.host.desktop.locks, 1);
        steps.push_back("show");
    };
    gDocumentCalls.StrictModeChecked = [] { return true; };
    ASSERT_TRUE(Mod_Main::Main(""));
    EXPECT_EQ(steps, (std::vector<std::string>{
                         "Loading Scinitilla library...", "Loading Compilers...", "Loading Options...",
                         "Loading HotCodes...", "Loading External Tools...", "Loading Editor Options...",
                         "Loading Style...", "Loading Editor...", "create", "Starting Editor...", "show"}));
    EXPECT_EQ(BadStyle, 16);
    EXPECT_EQ(session.host.desktop.locks, 0);
    EXPECT_TRUE(session.WindowKeys().empty());
}

TEST_F(StartTest, WhatOpensIsNamedByTheCommandLineElseByTheSetting) {
    session.host.settings.Save("Options", "gStartUp", "2");
    const std::string path = session.host.Put("a.bb", "");
    ASSERT_TRUE(Mod_Main::Main(path));
    EXPECT_EQ(session.WindowKeys(), std::vector<std::string>{path});
    gCompilers.RemoveAll();
    ASSERT_TRUE(Mod_Main::Main(""));
    EXPECT_EQ(ActiveForm()->FullFilename, "New");
}

TEST_F(StartTest, WhatAnotherInstanceSentOpensInFront) {
    const std::string path = session.host.Put("a b.bb", "");
    session.host.dock.place.state = 2;
    Mod_Main::Resized();
    session.host.dock.place.state = 0;
    Mod_Main::TextReceived("");
    EXPECT_EQ(session.host.dock.broughtToFront, 0);
    Mod_Main::TextReceived("Aktiviraj");
    EXPECT_EQ(session.host.dock.broughtToFront, 1);
    EXPECT_EQ(session.host.dock.place.state, 2);
    EXPECT_TRUE(session.WindowKeys().empty());
    session.host.dock.place.state = 1;
    Mod_Main::TextReceived("\"" + path + "\"");
    EXPECT_EQ(session.WindowKeys(), std::vector<std::string>{path});
    EXPECT_EQ(session.host.dock.place.state, 1); // a minimised window stays so
}

struct Ended {
    int status;
};
struct EndingDesktop : FakeDesktop {
    void EndProcess(int status) override { throw Ended{status}; }
};

// The stored state is not loaded yet, and a start that continued could ask something.
TEST_F(StartTest, AnEndDuringTheStartWritesNothing) {
    const std::string workspace = session.host.Put("Conf/LastWorkspace.zws", "of the last run");
    gDocumentCalls.ShowMainWindow = [] { Mod_Main::SaveSession(); };
    EXPECT_TRUE(Mod_Main::Main(""));
    EndingDesktop ending;
    gHost.desktop = &ending;
    Mod_Main::BeginStart();
    EXPECT_THROW(Mod_Main::EndNow(), Ended);
    gHost.desktop = &session.host.desktop;
    Mod_Main::SaveSession();
    EXPECT_EQ(session.Bytes(workspace), "of the last run");
    EXPECT_TRUE(session.host.dock.savedLayouts.empty());
}

struct CompilersTest : StartTest {
    EndingDesktop ending;

    void Load(const std::string& bytes, const std::string& byDefault = "") {
        session.host.Put("Conf/compilers.dat", bytes);
        session.host.settings.Save("Options", "DefaultCompiler", byDefault);
        Mod_Main::LoadCompilers();
    }
    static std::string Entry(const std::string& name, const std::string& console = "#FALSE#") {
        return "\"" + name + "\"\r\n\"C:\\" + name + "\"\r\n\"C:\\" + name + "\\help\"\r\n" + console +
               "\r\n";
    }
};

TEST_F(CompilersTest, AMissingRegistryEndsTheProcess) {
    session.host.files.Remove(session.host.Path("Conf/compilers.dat"));
    gHost.desktop = &ending;
    session.host.dialogs.WillAnswer(MessageAnswer::Ok);
    try {
        Mod_Main::LoadCompilers();
        ADD_FAILURE() << "went on";
    } catch (const Ended& end) {
        EXPECT_EQ(end.status, 1);
    }
    gHost.desktop = &session.host.desktop;
    EXPECT_EQ(session.LastMessage(), "File 'Compilers.dat' is missing or invalid !");
    EXPECT_EQ(session.host.dialogs.messages.back().icon, MessageIcon::Critical);
}

TEST_F(CompilersTest, TheDefaultIsTheSettingsOrTheFirst) {
    const std::string two = "1\r\n2\r\n" + Entry("First") + Entry("Second", "#TRUE#");
    for (const auto& [setting, is] : {std::pair{"second", "second"}, {"", "First"}, {"Removed", "First"}}) {
        gCompilers.RemoveAll();
        Load(two, setting);
        EXPECT_TRUE(EqualNoCase(DefaultCompiler, is)) << setting;
        EXPECT_EQ(session.host.settings.Get("Options", "DefaultCompiler", ""), setting);
    }
    EXPECT_FALSE(gCompilers.Item("First")->RealConsole);
    EXPECT_TRUE(gCompilers.Item("Second")->RealConsole);
    EXPECT_EQ(gCompilers.Item("Second")->HelpPath, "C:\\Second\\help");
}

TEST_F(CompilersTest, ADamagedRegistryLeavesWhatWasRead) {
    session.host.ExpectErrorLog();
    Load("1\r\n3\r\n" + Entry("A") + "\"B\"\r\n\"C:\\B\"");
    EXPECT_EQ(gCompilers.Count(), 1);
    EXPECT_NE(session.host.ErrorLog().find("LoadCompilers"), std::string::npos);
    for (const char* bytes :
         {"", "1", "1\r\nmany\r\n\"A\"", "1\r\n-5\r\n", "1\r\n2147483647\r\n", "\r\n\r\n\r\n"}) {
        gCompilers.RemoveAll();
        Load(bytes);
        EXPECT_EQ(gCompilers.Count(), 0) << bytes;
        EXPECT_EQ(DefaultCompiler, "");
    }
    gCompilers.RemoveAll();
    Load("1\r\n2\r\n" + Entry("Same") + Entry("same"));
    EXPECT_EQ(gCompilers.Count(), 1);
}

TEST_F(CompilersTest, ACompilerThatCannotServeGivesWayToTheDefaultAndIsToldOfOnce) {
    Load("1\r\n2\r\n" + Entry("ZoltoBasic") + Entry("Bare"));
    for (const char* name : {"Bare", "Nobody"}) {
        gActiveCompiler.reset();
        session.host.dialogs.WillAnswer(MessageAnswer::Ok);
        for (int activation = 0; activation < 3; ++activation) {
            EXPECT_TRUE(Mod_Main::SetActiveCompiler(name));
            EXPECT_EQ(gActiveCompiler->Name, "ZoltoBasic");
        }
        EXPECT_NE(session.LastMessage().find(name), std::string::npos);
        EXPECT_NE(FindKeyword("PRINT"), nullptr);
    }
    // A refused choice leaves the vocabulary in use.
    session.host.dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_FALSE(gCompilers.Item("Bare")->SetDefaultKeywords());
    EXPECT_NE(FindKeyword("PRINT"), nullptr);
}

struct SettingsTest : StartTest {
    ~SettingsTest() override { std::ranges::for_each(AllOptions(), ResetOption); }
};

TEST_F(SettingsTest, AnEmptyStoreGivesTheDefaults) {
    Options::GetOptions();
    Options::GetEditOptions();
    EXPECT_EQ(Options::gStartUp, 3);
    EXPECT_EQ(Options::gBackupStoreFolder, session.host.Path("Backup"));
    EXPECT_EQ(OptionsEdit::CursorPeriod, 500);
    EXPECT_EQ(OptionsEdit::ACStopChars, "/\\,.~`!@#$%^&*)-_=+{}[]:;?<>|\"");
    EXPECT_TRUE(session.host.settings.values.empty());
}

TEST_F(SettingsTest, EveryOptionComesBackAsItWasWrittenAndIsReset) {
    for (const Option& option : AllOptions()) {
        if (option.number) *option.number = 0;
        if (option.text) *option.text = "?";
        WriteOption(option);
        ResetOption(option);
        ReadOption(option);
        EXPECT_EQ(option.number ? *option.number : 0, 0) << option.key;
        EXPECT_EQ(option.text ? *option.text : "?", "?") << option.key;
        ResetOption(option);
        EXPECT_EQ(option.number ? *option.number : 0, option.defaultNumber) << option.key;
        EXPECT_NE(option.text ? *option.text : "", "?") << option.key;
    }
    EXPECT_EQ(FindOption("tabVALUE")->number, &OptionsEdit::TabValue);
    EXPECT_EQ(FindOption("TabValues"), nullptr);
    EXPECT_EQ(&OptionOf(OptionsEdit::TabValue), FindOption("TabValue"));
    EXPECT_FALSE(FindOption("WordWrapFlags")->range.Holds(4));
    EXPECT_FALSE(FindOption("gRecentFiles")->range.Holds(4));
}

TEST_F(SettingsTest, KeysAreFoundInAnyCaseAndRangesAreNotChecked) {
    session.host.settings.Save("optionsedit", "cursorwidth", "77");
    session.host.settings.Save("OPTIONS", "GRECENTFILES", " 5 ");
    session.host.settings.Save("OptionsEdit", "ACcompleteOnlyOne", "-3");
    Options::GetOptions();
    Options::GetEditOptions();
    EXPECT_EQ(OptionsEdit::CursorWidth, 77);
    EXPECT_EQ(Options::gRecentFiles, 5);
    EXPECT_EQ(OptionsEdit::ACcompleteOnlyOne, 1);
}

TEST_F(SettingsTest, WhatIsNoNumberIsReportedAndTheOthersAreRead) {
    session.host.ExpectErrorLog();
    session.host.settings.Save("Options", "MultipleInstances", "yes");
    session.host.settings.Save("Options", "gRecentFiles", "7");
    session.host.settings.Save("OptionsEdit", "AutoIndentType", "99999999999");
    session.host.settings.Save("OptionsEdit", "CursorWidth", "2");
    session.host.settings.Save("OptionsEdit", "TabValue", "0"); // would divide by zero
    Options::GetOptions();
    Options::GetEditOptions();
    EXPECT_EQ(Options::MultipleInstances, 0);
    EXPECT_EQ(Options::gRecentFiles, 7);
    EXPECT_EQ(OptionsEdit::AutoIndentType, 2);
    EXPECT_EQ(OptionsEdit::CursorWidth, 2);
    EXPECT_GT(OptionsEdit::TabValue, 0);
    const std::string log = session.host.ErrorLog();
    for (const char* word : {"GetOptions", "frmOptions", "GetEditOptions", "frmOptionsEdit"})
        EXPECT_NE(log.find(word), std::string::npos) << word;
    session.Open("a.bb", "If a\r\n\tb=1\r\nEndIf\r\n");
}

TEST_F(StartTest, AWindowThatWouldBeOffTheScreenComesBack) {
    auto place = [&](const char* key, const char* value) {
        session.host.settings.Save("Layout0.8_0", key, value);
        Mod_Main::PlaceMainWindow();
        return session.host.dock.place;
    };
    EXPECT_EQ(place("MainTop", "99999").top, 1000);
    EXPECT_EQ(place("MainLeft", "28501").left, 1000);
    EXPECT_EQ(place("MainLeft", "28500").left, 28500); // the screen's width is 28800
    EXPECT_EQ(place("MainTop", "12.6").top, 13);
    EXPECT_EQ(place("MainWidth", "nonsense").width, 8000);
    EXPECT_EQ(session.host.dock.place.height, 7000);
    EXPECT_EQ(session.host.dock.place.state, 2);
}

}
