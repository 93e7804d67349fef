// A program typed from nothing, the way people type: in the wrong case, with words chosen from the list, ends
// that come late, a function header put above lines that stand, and steps taken back.
#include "engine/fixture/SourceTest.h"
#include "host/Files.h"
#include "host/Host.h"

#include <QTest>
#include <QWidget>

namespace {

class Scenario : public SourceTest {
protected:
    static void Press(Qt::Key key) {
        QTest::keyClick(static_cast<QWidget*>(ActiveForm()->NativeWidget()), key);
        Settle();
    }
    // Types a line; a "|" takes what the list offers.
    static void Line(const std::string& keys) {
        std::size_t from = 0;
        for (auto at = keys.find('|'); at != std::string::npos; at = keys.find('|', from)) {
            Type(keys.substr(from, at - from));
            EXPECT_TRUE(Mod_Sci::AutoCActive()) << keys;
            Press(Qt::Key_Tab);
            from = at + 1;
        }
        Type(keys.substr(from) + "\n");
    }
    static std::string All() {
        std::string text = Mod_Sci::GetText();
        for (auto at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n")) text.erase(at, 1);
        return text;
    }
};

std::vector<std::string> KeysOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t from = 0, end; (end = text.find('\n', from)) != std::string::npos; from = end + 1)
        lines.push_back(text.substr(from, end - from));
    return lines;
}

constexpr int LocalsLine = 50;
constexpr int LastOfReport = 56;

TEST_F(Scenario, AProgramIsTypedFromNothing) {
    const std::string Typed = gHost.files->Read(ZOLTO_SOURCE_ROOT "/tests/data/scenario_text.txt");
    Open("");
    for (const std::string& keys :
         KeysOf(gHost.files->Read(ZOLTO_SOURCE_ROOT "/tests/data/scenario_keys.txt")))
        Line(keys);
    ASSERT_EQ(All(), Typed);
    ExpectAsLoaded();
    const std::string symbols = Symbols();
    EXPECT_NE(symbols.find("Local of *Main Program* total @50"), std::string::npos) << symbols;

    // Existing lines become a function: first its header is typed, later its end.
    GoTo(LocalsLine);
    Settle();
    Line("function report()");
    EXPECT_NE(Symbols().find("Local of report total @51"), std::string::npos);
    GoTo(LastOfReport + 1, static_cast<int>(Text(LastOfReport + 1).size()));
    Settle();
    Type("\nend function");
    Leave(0);
    EXPECT_EQ(Text(LastOfReport + 2), "End Function");
    ExpectAsLoaded();

    while (Mod_Sci::CanUndo()) {
        Mod_Sci::Undo();
        Settle();
        if (All() == Typed) break;
    }
    Leave(0);
    EXPECT_EQ(Symbols(), symbols);
    ExpectAsLoaded();
    while (Mod_Sci::CanUndo()) {
        Mod_Sci::Undo();
        Settle();
    }
    EXPECT_EQ(All(), "");
    EXPECT_EQ(Symbols(), "");
}

} // namespace
