// The table of options, and an option's way to the settings store and back.
#include "documents/OptionTable.h"

#include "documents/Options.h"
#include "engine/OptionsEdit.h"
#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/SettingsStore.h"
#include "host/Text.h"

#include <algorithm>
#include <charconv>

namespace {

using Kind = OptionRange::Kind;

// The words of the rows.
using namespace Options;
using namespace OptionsEdit;
constexpr OptionRange OnOff{Kind::OnOff, 0, 1};
constexpr OptionRange TrueFalse{Kind::TrueFalse, 0, 1};
constexpr OptionRange NoRange{Kind::Number, 0, 0};
constexpr OptionRange Between(int least, int most, int step = 1) { return {Kind::Number, least, most, step}; }
constexpr OptionRange Codes(int first, int last) { return {Kind::Codes, first, last}; }
constexpr OptionRange Bits(int all) { return {Kind::Bits, 0, all}; }

constexpr Option Table[] = {
#define NUMBER(name, byDefault, range, unit, meaning)                                                        \
    {SectionOptions, #name, &Options::name, nullptr, byDefault, "", false, range, unit, meaning},
#define TEXT(name, byDefault, meaning)                                                                       \
    {SectionOptions, #name, nullptr, &Options::name, 0, byDefault, false, NoRange, "", meaning},
#define FOLDER(name, byDefault, meaning)                                                                     \
    {SectionOptions, #name, nullptr, &Options::name, 0, byDefault, true, NoRange, "", meaning},
#include "documents/Options.def"
#define NUMBER(name, byDefault, range, unit, meaning)                                                        \
    {SectionOptionsEdit, #name, &OptionsEdit::name, nullptr, byDefault, "", false, range, unit, meaning},
#define TEXT(name, byDefault, meaning)                                                                       \
    {SectionOptionsEdit, #name, nullptr, &OptionsEdit::name, 0, byDefault, false, NoRange, "", meaning},
#include "engine/OptionsEdit.def"
};

constexpr char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr bool SameKey(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return Lower(x) == Lower(y); });
}

constexpr bool KeysDiffer() {
    for (const Option& option : Table)
        for (const Option* other = &option + 1; other != std::end(Table); ++other)
            if (SameKey(option.key, other->key)) return false;
    return true;
}

constexpr bool DefaultsAreInRange() {
    return std::all_of(std::begin(Table), std::end(Table), [](const Option& option) {
        return option.range.Holds(option.defaultNumber); // a text has the number 0 and a range that holds it
    });
}

static_assert(KeysDiffer(), "a key has two rows");
static_assert(DefaultsAreInRange(), "a default is outside its range");

int ToNumber(std::string_view key, const std::string& text) {
    const std::string_view trimmed = TrimBlanks(text);
    int number = 0;
    const auto [end, error] = std::from_chars(trimmed.data(), trimmed.data() + trimmed.size(), number);
    if (error != std::errc() || end != trimmed.data() + trimmed.size())
        throw Failure(FailureTypeMismatch, "Type mismatch: " + std::string(key) + " = \"" + text + "\"");
    return number;
}

std::string ValueAsText(const Option& option) {
    return option.number ? std::to_string(*option.number) : *option.text;
}

template <class Condition>
const Option* FirstWith(Condition condition) {
    const auto found = std::find_if(std::begin(Table), std::end(Table), condition);
    return found == std::end(Table) ? nullptr : &*found;
}

const Option& Existing(const Option* option) {
    if (option == nullptr) throw Failure(FailureOutOfRange, "The variable is not an option's");
    return *option;
}

void ReadAll(std::string_view section, const char* routine, const char* module) {
    for (const Option& option : Table)
        if (option.section == section) Guarded(routine, module, [&] { ReadOption(option); });
}

}

std::span<const Option> AllOptions() { return Table; }

const Option* FindOption(std::string_view key) {
    return FirstWith([key](const Option& option) { return SameKey(option.key, key); });
}

const Option& OptionOf(const int& variable) {
    return Existing(FirstWith([&](const Option& option) { return option.number == &variable; }));
}

const Option& OptionOf(const std::string& variable) {
    return Existing(FirstWith([&](const Option& option) { return option.text == &variable; }));
}

void ReadOption(const Option& option) {
    if (option.isFolder && option.text->empty()) ResetOption(option);
    const std::string text =
        gHost.settings->Get(std::string(option.section), std::string(option.key), ValueAsText(option));
    if (option.text) {
        *option.text = text;
        return;
    }
    const int number = ToNumber(option.key, text);
    *option.number = option.range.kind == Kind::TrueFalse ? number != 0 : number;
}

void WriteOption(const Option& option) {
    gHost.settings->Save(std::string(option.section), std::string(option.key), ValueAsText(option));
}

void ResetOption(const Option& option) {
    if (option.number)
        *option.number = option.defaultNumber;
    else
        *option.text = option.isFolder ? AppPath(option.defaultText) : option.defaultText;
}

void Options::GetOptions() { ReadAll(SectionOptions, "GetOptions", "frmOptions"); }

void Options::GetEditOptions() {
    ReadAll(SectionOptionsEdit, "GetEditOptions", "frmOptionsEdit");
    // A tab of no columns would divide by zero wherever an indentation is measured.
    if (TabValue < 1) TabValue = 1;
}
