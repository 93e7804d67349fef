// Random programs against a model in C++: integer expressions, and the lists of objects.
// The seeds are fixed, so a failure repeats.
#include "Programs.h"
#include "parse/Numbers.h"

#include <algorithm>
#include <random>

namespace blitz::test {
namespace {

class ModelTest : public ProgramTest {
protected:
    int pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

    std::mt19937 random_{2024};
};

/// A random expression: its text and its value.
struct Made {
    std::string text;
    int32_t value;
};

const int32_t variables[] = {3, -7, 100000, 0};

class ExpressionMaker {
public:
    explicit ExpressionMaker(std::mt19937& random) : random_(random) {}

    Made make(int depth) {
        const auto kind = random_() % 10;
        if (depth == 0 || kind < 2) return leaf();
        if (kind == 2) {
            const Made a = make(depth - 1);
            switch (random_() % 4) {
            case 0: return {"(-" + a.text + ")", wrapSub(0, a.value)};
            case 1: return {"(~" + a.text + ")", ~a.value};
            case 2: return {"(Not " + a.text + ")", a.value == 0};
            default: return {"Sgn(" + a.text + ")", (a.value > 0) - (a.value < 0)};
            }
        }
        return binary(make(depth - 1), make(depth - 1));
    }

private:
    Made leaf() {
        const auto index = random_() % 8;
        if (index < 4) return {std::string(1, static_cast<char>('a' + index)), variables[index]};
        if (index == 4) return {"$7FFFFFFF", INT32_MAX};
        if (index == 5) return {"id(2)", 2};
        const auto value = static_cast<int32_t>(random_() % 50);
        return {std::to_string(value), value};
    }

    Made binary(const Made& a, const Made& b) {
        const auto joined = [&](const char* op, int32_t value) {
            return Made{"(" + a.text + op + b.text + ")", value};
        };
        switch (random_() % 15) {
        case 0: return joined("+", wrapAdd(a.value, b.value));
        case 1: return joined("-", wrapSub(a.value, b.value));
        case 2: return joined("*", wrapMul(a.value, b.value));
        case 3:
            return b.value == 0 ? a : joined("/", b.value == -1 ? wrapSub(0, a.value) : a.value / b.value);
        case 4: return b.value == 0 ? a : joined(" Mod ", b.value == -1 ? 0 : a.value % b.value);
        case 5: return joined(" And ", a.value & b.value);
        case 6: return joined(" Or ", a.value | b.value);
        case 7: return joined(" Xor ", a.value ^ b.value);
        case 8: return joined(" Shl ", shiftLeft(a.value, b.value));
        case 9: return joined(" Sar ", a.value >> (b.value & 31));
        case 10: return joined("=", a.value == b.value);
        case 11: return joined("<>", a.value != b.value);
        case 12: return joined("<", a.value < b.value);
        case 13: return joined(">=", a.value >= b.value);
        default: return joined(" Shr ", shiftRight(a.value, b.value));
        }
    }

    std::mt19937& random_;
};

// Locals, globals and constants take different instructions, and conditions are joined with jumps.
TEST_F(ModelTest, ExpressionsGiveWhatTheModelGives) {
    ExpressionMaker maker(random_);
    for (const char* const kind : {"Local", "Global", "Const"}) {
        std::string program = std::string(kind) + " a=3,b=-7,c=100000,d=0\n";
        std::string expected;
        for (int i = 0; i < 150; ++i) {
            const Made made = maker.make(5);
            program += "Print " + made.text + "\nIf " + made.text + " Then Print \"yes\" Else Print \"no\"\n";
            expected += std::to_string(made.value) + "\n" + (made.value ? "yes\n" : "no\n");
        }
        EXPECT_EQ(run(program + "Function id(x)\nReturn x\nEnd Function\n"), expected) << kind;
    }
}

// Objects are made, moved and deleted at random; the list must look like the model's each time.
TEST_F(ModelTest, ObjectListsBehaveLikeLists) {
    std::string program = "Type T : Field n,s$,v[3] : End Type\nDim o.T(1000)\n";
    std::string expected;
    std::vector<int> list;
    for (int i = 0; i < 400; ++i) {
        const int action = list.empty() ? 0 : pick(5);
        if (action <= 1) {
            const std::string at = "o(" + std::to_string(i) + ")";
            program += at + "=New T : " + at + "\\n=" + std::to_string(i) + " : Print Len(" + at + "\\s)+" +
                       at + "\\v[1] : " + at + "\\s=\"x\" : " + at + "\\v[1]=5\n";
            expected += "0\n"; // fields start empty, also of reused memory
            list.push_back(i);
        } else if (action == 2) {
            const auto which = list.begin() + pick(static_cast<int>(list.size()));
            program += "Delete o(" + std::to_string(*which) + ")\n";
            list.erase(which);
        } else {
            const int moved = list[static_cast<size_t>(pick(static_cast<int>(list.size())))];
            const int place = list[static_cast<size_t>(pick(static_cast<int>(list.size())))];
            program += "Insert o(" + std::to_string(moved) + ")" + (action == 3 ? " Before " : " After ") +
                       "o(" + std::to_string(place) + ")\n";
            if (moved != place) {
                list.erase(std::find(list.begin(), list.end(), moved));
                list.insert(std::find(list.begin(), list.end(), place) + (action == 4), moved);
            }
        }
        program += "show\n";
        for (const int n : list) expected += std::to_string(n) + " ";
        expected += "\n";
    }
    program += "Function show() : For t.T=Each T : Write t\\n+\" \" : Next : Print \"\" : End Function\n";
    EXPECT_EQ(run(program), expected);
}

// Loops that delete what they visit, or what comes next, must visit each living object once.
TEST_F(ModelTest, DeletingWhileVisitingKeepsTheOrder) {
    for (int round = 0; round < 20; ++round) {
        std::vector<int> alive(12, 1);
        std::string program =
            "Type T : Field n : End Type\nDim o.T(12)\n"
            "For i=0 To 11 : o(i)=New T : o(i)\\n=i : Next\nFor t.T=Each T\nWrite t\\n+\" \"\nSelect t\\n\n";
        std::string expected;
        std::vector<std::vector<int>> kills(12);
        for (int i = 0; i < 12; ++i) {
            program += "Case " + std::to_string(i) + "\n";
            for (int k = pick(3); k > 0; --k) {
                kills[static_cast<size_t>(i)].push_back(pick(12));
                program += "Delete o(" + std::to_string(kills[static_cast<size_t>(i)].back()) + ")\n";
            }
        }
        for (size_t i = 0; i < 12; ++i) {
            if (!alive[i]) continue;
            expected += std::to_string(i) + " ";
            for (const int k : kills[i]) alive[static_cast<size_t>(k)] = 0;
        }
        ASSERT_EQ(run(program + "End Select\nNext\n"), expected) << program;
    }
}

}
}
