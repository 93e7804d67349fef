// The symbol table: namesakes in the order in which they came, whatever the size, and the sums that make the
// chains.
#include "engine/Mod_Lexer.h"
#include "engine/clsHash.h"
#include "host/Failure.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

namespace {

class HashTest : public testing::Test {
protected:
    HashTest() { Mod_Lexer::BuildCharacterTables(); }

    SymbolPointer Add(const std::string& name, int handle = 0, std::intptr_t view = 0) {
        auto symbol = std::make_shared<Symbol>();
        symbol->Ime = name;
        symbol->Handle = handle;
        symbol->SciWndData = view;
        table.Add(name, symbol);
        return symbol;
    }
    std::vector<int> Handles() const {
        std::vector<int> handles;
        for (const SymbolPointer& symbol : table.Items()) handles.push_back(symbol->Handle);
        return handles;
    }

    FakeHost host;
    clsHash table;
};

int FailureOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const Failure& failure) {
        return failure.number;
    }
    return 0;
}

TEST_F(HashTest, TheSumTakesTheLengthModulo22) {
    EXPECT_EQ(HashOfUpper(""), 0);
    EXPECT_EQ(HashOfUpper("AB"), 'A' + 'B');
    EXPECT_EQ(HashOfUpper(std::string(21, '_')), 21 * '_');
    EXPECT_EQ(HashOfUpper(std::string(22, 'A')), 0);
    EXPECT_EQ(HashOfUpper(std::string(23, 'A')), 'A');
    EXPECT_EQ(HashOfUpper(std::string(44, 'A')), 0);
}

TEST_F(HashTest, NamesakesAnswerOldestFirst) {
    Add("Abc", 1);
    Add("aBC", 2);
    ASSERT_EQ(table.Count(), 2);
    const int hash = HashOfUpper("ABC");
    ASSERT_TRUE(table.ExistsU("ABC", hash));
    EXPECT_EQ(FoundItem->Handle, 1);
    table.RemovePoHandle("abc", 1);
    ASSERT_TRUE(table.Exists("abc", hash));
    EXPECT_EQ(FoundItem->Handle, 2);
    EXPECT_FALSE(table.ExistsU("abc", hash));
    EXPECT_FALSE(table.ExistsOnly("abc", hash));
    table.RemovePoHandle("ABC", 2);
    EXPECT_EQ(table.Count(), 0);
    EXPECT_FALSE(table.ExistsHash("abc"));
    EXPECT_EQ(table.ItemHash("abc"), nullptr);
}

TEST_F(HashTest, OnlySomeLookUpsChangeFoundItem) {
    const SymbolPointer a = Add("a", 7, 70);
    const SymbolPointer b = Add("b", 8, 80);
    ASSERT_TRUE(table.ExistsHash("A"));
    EXPECT_TRUE(table.ExistsOnlyHash("b"));
    EXPECT_TRUE(table.ExistsCodeExplorer("b", 8, 80));
    EXPECT_FALSE(table.ExistsCodeExplorer("b", 8, 70));
    EXPECT_FALSE(table.ExistsCodeExplorer("b", 7, 80));
    EXPECT_EQ(table.ItemHash("b"), b);
    EXPECT_FALSE(table.ExistsHash("c"));
    EXPECT_EQ(FoundItem, a.get());
}

TEST_F(HashTest, KeysAndItemsComeInHashOrderWhateverTheSize) {
    EXPECT_TRUE(table.Keys().empty());
    Add("b", 1);
    Add("ab", 2);
    Add("a", 3);
    Add("ba", 4); // the sum of "ab"
    Add("A", 5);
    Add(std::string(22, 'z'), 6);
    EXPECT_EQ(Handles(), (std::vector<int>{6, 3, 5, 1, 2, 4}));
    EXPECT_EQ(table.Keys()[0], std::string(22, 'Z'));
    EXPECT_EQ(table.Keys()[5], "BA");
    // Over the size at which each hash gets a chain of its own the order is the same.
    for (int handle = 10; handle < 40; ++handle) Add("zz", handle);
    const std::vector<int> many = Handles();
    EXPECT_EQ(std::vector<int>(many.begin(), many.begin() + 6), (std::vector<int>{6, 3, 5, 1, 2, 4}));
    EXPECT_EQ(many[6], 10);
    EXPECT_EQ(many.back(), 39);
}

TEST_F(HashTest, GrowsAndShrinksWithoutLosingAnEntry) {
    std::vector<int> expected;
    for (int round = 0; round < 3; ++round) {
        for (int handle = 0; handle < 600; ++handle)
            Add("name" + std::to_string(handle % 50), round * 1000 + handle);
        // From the chain's head, its middle and its tail in turn.
        for (int handle = 0; handle < 600; ++handle)
            if (handle % 3 != round)
                table.RemovePoHandle("NAME" + std::to_string(handle % 50), round * 1000 + handle);
    }
    EXPECT_EQ(table.Count(), 600);
    EXPECT_EQ(table.Items().size(), 600u);
    for (int name = 0; name < 50; ++name) {
        int last = -1;
        for (const SymbolPointer& symbol : table.Items()) {
            if (symbol->Ime != "name" + std::to_string(name)) continue;
            EXPECT_GT(symbol->Handle, last); // still in the order of their coming
            last = symbol->Handle;
        }
        EXPECT_GE(last, 2000);
    }
    table.RemoveAll();
    EXPECT_EQ(table.Count(), 0);
    EXPECT_EQ(table.Capacity(), 256);
    EXPECT_FALSE(table.ExistsHash("name1"));
    Add("name1", 5);
    EXPECT_EQ(Handles(), std::vector<int>{5});
}

TEST_F(HashTest, AnEntryAddedBehindARemovedTailIsFound) {
    Add("a", 1);
    Add("a", 2);
    table.RemovePoHandle("a", 2);
    Add("a", 3);
    EXPECT_EQ(Handles(), (std::vector<int>{1, 3}));
    table.RemovePoHandle("a", 1);
    Add("a", 4);
    EXPECT_EQ(Handles(), (std::vector<int>{3, 4}));
    table.RemovePoHandle("a", 4);
    table.RemovePoHandle("a", 3);
    Add("a", 5);
    EXPECT_EQ(Handles(), std::vector<int>{5});
}

TEST_F(HashTest, AMissingEntryIsReportedAndNothingChanges) {
    Add("here", 1);
    table.RemovePoHandle("", 1);
    EXPECT_EQ(host.ErrorLog(), "");
    host.ExpectErrorLog();
    table.RemovePoHandle("here", 2);
    EXPECT_NE(host.ErrorLog().find("RemovePoHandle"), std::string::npos);
    EXPECT_NE(host.ErrorLog().find("No such element"), std::string::npos);
    table.RemovePoHandle("there", 1);
    EXPECT_EQ(Handles(), std::vector<int>{1});
}

TEST_F(HashTest, KeysThatNoNameHasAreRefusedOrNotFoundAgain) {
    EXPECT_EQ(FailureOf([&] { Add(""); }), 1001);
    // A byte from 128 up counts on looking up and not on adding.
    Add("caf\xE9", 1);
    EXPECT_FALSE(table.ExistsHash("caf\xE9"));
    EXPECT_EQ(table.Count(), 1);
    EXPECT_EQ(FailureOf([&] { table.ExistsHash(std::string(21, '\xFF')); }), 9);
    EXPECT_EQ(FailureOf([&] { table.Exists("a", 2048); }), 9);
    EXPECT_EQ(FailureOf([&] { table.ExistsU("A", -1); }), 9);
}

TEST_F(HashTest, KeysAreUpperCaseEvenWhenCaseCounts) {
    table.IgnoreCase = false;
    Add("Abc", 1);
    EXPECT_EQ(table.Keys(), std::vector<std::string>{"ABC"});
}

} // namespace
