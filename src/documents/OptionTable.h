// All options in one table, for code that reads, writes or shows them by their keys.
#pragma once

#include <span>
#include <string>
#include <string_view>

inline constexpr std::string_view SectionOptions = "Options";
inline constexpr std::string_view SectionOptionsEdit = "OptionsEdit";

// What a number may be. The range binds what a dialog offers, and not what is read.
struct OptionRange {
    enum class Kind {
        OnOff,     // 0 or 1
        TrueFalse, // 0 or 1; any other stored number is read as 1
        Number,    // counts something, in the option's unit
        Codes,     // one of the codes beside the declaration of the variable
        Bits,      // a sum of the bits beside the declaration of the variable
    };
    Kind kind;
    int least;
    int most;
    int step = 1; // of a control that counts up and down

    constexpr bool Holds(int number) const {
        return kind == Kind::Bits ? (number & ~most) == 0 : number >= least && number <= most;
    }
};

// Either `number` or `text` is set, and the default of the same type.
struct Option {
    std::string_view section;
    std::string_view key; // unique among all options, whatever their sections
    int* number;
    std::string* text;
    int defaultNumber;
    const char* defaultText;
    bool isFolder;     // the default is a path below the program directory
    OptionRange range; // of a number
    const char* unit;  // in plural; empty where nothing is counted
    const char* meaning;
};

// The options in the order in which they are read.
std::span<const Option> AllOptions();

// The option of a key, without regard to case; null for an unknown key.
const Option* FindOption(std::string_view key);
// The option of a variable. Throws a Failure for a variable that is not one of an option.
const Option& OptionOf(const int& variable);
const Option& OptionOf(const std::string& variable);

// Reads an option from the settings store into its variable. A missing key leaves the variable alone. Throws
// a Failure and leaves the variable alone when the text is not a number.
void ReadOption(const Option& option);
// Writes the variable's value to the settings store, whatever the range.
void WriteOption(const Option& option);
// Gives the variable its default and stores nothing.
void ResetOption(const Option& option);

namespace Options {

// Reads every option of section Options. A value that is not a number is reported, and the others are read.
void GetOptions();
// The same for section OptionsEdit. A TabValue below 1 becomes 1.
void GetEditOptions();

} // namespace Options
