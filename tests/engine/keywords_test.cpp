// Reading a vocabulary: one definition, the flags of the structure words, and files that are refused.
#include "engine/ClsCompiler.h"
#include "engine/KeywordReader.h"
#include "engine/fixture/SourceTest.h"
#include "host/Failure.h"

#include <set>

namespace {

std::string Told(const std::string& line) {
    const auto keyword = ReadKeyword(line);
    std::string text = keyword->Ime + " tip " + std::to_string(keyword->Tip);
    if (keyword->ImaZagradi) text += " takes";
    if (keyword->MoraZagradi) text += " needs";
    for (int i = 1; i <= keyword->VlezNum; ++i) text += " |" + keyword->ParametarTekst(i);
    EXPECT_EQ(keyword->Help, line);
    EXPECT_EQ(keyword->ParametarTekst(keyword->VlezNum + 1), "");
    return text;
}

class KeywordsTest : public SourceTest {
protected:
    // Loads a file of that content; the messages are in host.dialogs.
    bool Load(const std::string& content) {
        host.Put("Conf/Other.lng", content);
        return other.LoadKeywords();
    }
    static std::string Without(const std::string& word) {
        std::string text = TestVocabulary();
        const std::size_t at = text.find("\n" + word + "\r\n") + 1;
        return text.erase(at, word.size() + 2);
    }
    const ClsBBFunkcija* Word(const std::string& upper) {
        return other.bbFunkcija(static_cast<std::uint8_t>(upper[0])).Find(upper);
    }

    ClsCompiler other = [] {
        ClsCompiler compiler;
        compiler.Name = "Other";
        return compiler;
    }();
};

TEST_F(KeywordsTest, ADefinitionIsTakenApart) {
    const std::pair<const char*, const char*> rows[] = {
        {"Cls", "Cls tip 1"},
        {"Pi#", "Pi# tip 1"}, // nothing after it: the suffix stays in the name
        {"Sin# (degrees#)", "Sin tip 2 takes |degrees#"},
        {"Chr$ (ascii)", "Chr tip 3 takes needs |ascii"},
        {"Rnd# (from#[,to#])", "Rnd tip 2 takes |from# |[to#]"},
        {"Plot x,y", "Plot tip 1 |x |y"},
        {"Cls2 [colour]", "Cls2 tip 1 |[colour]"},
        {"Load$ (file$,flag%,[mask%])", "Load tip 3 takes |file$ |flag |[mask]"},
        {"Wait ([ms%])", "Wait tip 1 takes needs |[ms]"},
        {"Flip ()", "Flip tip 1 takes needs"},
    };
    for (const auto& [line, told] : rows) EXPECT_EQ(Told(line), told) << line;
}

TEST_F(KeywordsTest, AnEmptyLineAndALongParameterTextFail) {
    EXPECT_THROW(ReadKeyword(""), Failure);
    EXPECT_EQ(ReadKeyword("X " + std::string(254, 'a'))->VlezNum, 1);
    EXPECT_THROW(ReadKeyword("X " + std::string(255, 'a')), Failure);
}

TEST_F(KeywordsTest, TheStructureWordsGetTheirFlags) {
    ASSERT_TRUE(Load(TestVocabulary()));
    EXPECT_TRUE(other.KeywordsLoaded);
    std::set<std::string> start, end, both, inside;
    for (int code = FirstKeywordCode; code < FirstKeywordCode + KeywordBuckets; ++code)
        other.bbFunkcija(code).ForEach([&](const ClsBBFunkcija& word) {
            EXPECT_TRUE(word.IsScope || !(word.IsStartScope || word.IsEndScope)) << word.Ime;
            if (!word.IsScope) return;
            if (word.IsStartScope)
                (word.IsEndScope ? both : start).insert(word.Ime);
            else
                (word.IsEndScope ? end : inside).insert(word.Ime);
        });
    using Words = std::set<std::string>;
    EXPECT_EQ(inside, Words{"Field"});
    EXPECT_EQ(start, (Words{"For", "While", "Repeat", "Type", "Function", "Select", "If"}));
    EXPECT_EQ(end, (Words{"Next", "Wend", "Until", "Forever", "End", "Then", "Else", "EndIf"}));
    EXPECT_EQ(both, (Words{"Case", "Default", "ElseIf"}));
}

TEST_F(KeywordsTest, AWordIsFoundWhateverItsCaseAndKeepsTheFilesSpelling) {
    std::string text = TestVocabulary();
    text.replace(text.find("Print"), 5, "pRINT");
    ASSERT_TRUE(Load(text));
    ASSERT_TRUE(other.SetDefaultKeywords());
    ASSERT_NE(FindKeyword("PRINT"), nullptr);
    EXPECT_EQ(FindKeyword("PRINT")->Ime, "pRINT");
    EXPECT_EQ(FindKeyword("FLOAT")->Tip, 2); // so that Float# is one word
    EXPECT_EQ(FindKeyword("PRINTER"), nullptr);
    EXPECT_EQ(FindKeyword("9A"), nullptr); // below the first letter's code
    EXPECT_EQ(FindKeyword("\xC9"), nullptr);
    EXPECT_EQ(FindKeyword(""), nullptr);
    EXPECT_TRUE(Load(Without("Float# (value)"))); // the one word that may be missing
}

TEST_F(KeywordsTest, AMissingOrShortFileIsToldAndRefused) {
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    EXPECT_FALSE(other.LoadKeywords());
    host.dialogs.WillAnswer(MessageAnswer::Ok);
    const std::string vocabulary = TestVocabulary();
    std::string text = vocabulary.substr(0, vocabulary.find("Command100"));
    text += "Filler " + std::string(250, 'a') + "\r\n";
    for (int i = 0; text.size() < 2900; ++i) text += "Pad" + std::to_string(i) + "\r\n";
    text += "Tail";
    EXPECT_FALSE(Load(text + std::string(2999 - text.size(), 'x')));
    EXPECT_FALSE(other.KeywordsLoaded);
    EXPECT_EQ(host.dialogs.messages[0].text, "Cannot load keywords file for compiler Other !\r\n  Please "
                                             "Refresh Definitions for this compiler...");
    EXPECT_EQ(host.dialogs.messages[1].text, "Invalid Keywords file for this compiler!");
    EXPECT_TRUE(Load(text + std::string(3000 - text.size(), 'x')));
}

TEST_F(KeywordsTest, AFileThatGoesWrongKeepsWhatWasReadAndIsReported) {
    host.ExpectErrorLog();
    const std::string vocabulary = TestVocabulary();
    const std::string bad[] = {
        "Early\r\n\r\n" + vocabulary,          // an empty line
        "Early\r\n1st\r\n" + vocabulary,       // no dictionary for its first character
        "Early\r\nEARLY (x)\r\n" + vocabulary, // the same text twice
        "Early\r\n" + Without("Wend"),         // a structure word is missing
        "Early\r\nX " + std::string(300, 'a') + "\r\n" + vocabulary,
    };
    for (const std::string& text : bad) {
        EXPECT_FALSE(Load(text)) << text.substr(0, 20);
        EXPECT_FALSE(other.KeywordsLoaded);
        EXPECT_NE(Word("EARLY"), nullptr);
        EXPECT_NE(host.ErrorLog().find("LoadKeywords"), std::string::npos) << text.substr(0, 20);
        host.files.Remove(host.Path("error.log"));
    }
    // A second load begins with empty dictionaries.
    EXPECT_TRUE(Load(vocabulary));
    EXPECT_EQ(Word("EARLY"), nullptr);
}

} // namespace
