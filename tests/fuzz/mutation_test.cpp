// Damaged inputs of every kind: nothing crashes, hangs, or loses what it was not asked to lose. The same seed
// gives the same inputs; ZOLTO_FUZZ_SEED chooses another one, ZOLTO_FUZZ_ROUNDS multiplies the number of
// inputs.
#include "Readers.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

namespace {

int Environment(const char* name, int byDefault) {
    const char* text = std::getenv(name);
    return text == nullptr ? byDefault : std::atoi(text);
}

class Mutator {
public:
    explicit Mutator(unsigned seed) : random_(seed) {}

    // A few changes of a sample, each of another kind.
    std::string Damage(std::string bytes) {
        for (std::size_t change = 0, changes = 1 + Below(6); change < changes; ++change) Change(bytes);
        return bytes;
    }
    std::size_t Below(std::size_t limit) {
        return limit == 0 ? 0 : std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
    }

private:
    // Pieces that mean something to one reader or the other.
    std::string Piece() {
        static const std::string pieces[] = {"\r\n",
                                             "\n",
                                             "\r",
                                             "\"",
                                             ":",
                                             "#",
                                             ";",
                                             "\\",
                                             "(",
                                             ")",
                                             ",",
                                             "=",
                                             std::string(1, '\0'),
                                             "\xFF\xFE",
                                             "\xC3",
                                             "-1",
                                             "99999999999999999999",
                                             "2147483647",
                                             "Function ",
                                             "End Function",
                                             "Type ",
                                             "Field ",
                                             "Dim a(",
                                             "If ",
                                             "EndIf",
                                             ".label",
                                             "Local x",
                                             "Global ",
                                             "Const ",
                                             "Include \"",
                                             ";~F#0#FFFF",
                                             ";~B#1#-1",
                                             ";~C#",
                                             "</Files>",
                                             "<Files>",
                                             " AbsPath=\"",
                                             "[Zolto Project file]",
                                             "[Zolto WorkSpace File]",
                                             "<Views>",
                                             "</Projects>",
                                             " Path=\"@/a.bb\" Single=\"True\"\r\n",
                                             " CPOS=\"",
                                             "#TRUE#",
                                             "Compiling",
                                             std::string(300, 'x'),
                                             std::string(300, '('),
                                             ";[Block]",
                                             ";[End Block]",
                                             "\\..\\..\\"};
        return pieces[Below(std::size(pieces))];
    }
    void Change(std::string& bytes) {
        const std::size_t at = Below(bytes.size() + 1);
        const std::size_t length = Below(40);
        switch (Below(7)) {
        case 0: bytes.insert(at, Piece()); break;
        case 1: bytes.insert(at, bytes.substr(Below(bytes.size() + 1), length)); break;
        case 2: bytes.erase(at, length); break;
        case 3: bytes.resize(at); break;
        case 4: bytes.replace(at, std::min(length, bytes.size() - at), Piece()); break;
        default:
            if (at < bytes.size()) bytes[at] = static_cast<char>(Below(256));
        }
    }

    std::mt19937 random_;
};

class MutationTest : public testing::TestWithParam<const char*> {};

TEST_P(MutationTest, NothingBreaks) {
    const Reader& reader = *FindReader(GetParam());
    const auto seed = static_cast<unsigned>(Environment("ZOLTO_FUZZ_SEED", 1964));
    const int rounds = reader.rounds * Environment("ZOLTO_FUZZ_ROUNDS", 1);
    const std::vector<std::string> samples = reader.samples();
    for (const std::string& sample : samples) EXPECT_EQ(reader.read(sample), "");
    EXPECT_EQ(reader.read(""), "");
    Mutator mutator(seed);
    for (int round = 0; round < rounds; ++round) {
        const std::string bytes = mutator.Damage(samples[mutator.Below(samples.size())]);
        ASSERT_EQ(reader.read(bytes), "") << "seed " << seed << ", round " << round << ":\n" << bytes;
    }
}

INSTANTIATE_TEST_SUITE_P(Readers, MutationTest,
                         testing::Values("source", "project", "workspace", "style", "keywords", "compilers",
                                         "output"),
                         [](const auto& reader) { return std::string(reader.param); });

}
