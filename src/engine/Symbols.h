// The symbol records: one for each declared name, owned by a project's tables. The marker on the declaring
// line moves with the line; LineOf returns the current line.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

class clsHash;

// Value types of a name.
enum : std::uint8_t { TipUnnamedType = 0, TipInteger = 1, TipFloat = 2, TipString = 3, TipCustom = 5 };

// A marker's last known line, and the number of line changes in its view at that time.
struct SeenLine {
    int line = -1;
    unsigned changes = 0;
};

// What every record has; the class name prefixes are those of the records.
struct Symbol {
    virtual ~Symbol() = default;
    // What it is called by in its table.
    virtual std::string Key() const { return Ime; }

    std::string Ime;              // the name as declared
    int Handle = 0;               // of the marker on the declaring line
    std::string File;             // Filename of its document
    std::intptr_t SciWndData = 0; // its view
    mutable SeenLine Seen;        // of that marker; written by LineOf and DeclaredOn alone
    int Column = 0;               // from 1, of the name when its line was parsed
    int ScopesBefore = 0;         // words in front of it on its line that begin or end a function, or, for a
                                  // field, a type

    // Fields that not every class declares; those that do not, leave them at their defaults.
    std::uint8_t Tip = TipInteger;
    std::string Tajp;       // the type's name as written, with Tip 5
    bool IsBBArray = false; // has a [...] part
    std::string ArraySize;  // from the bracket to its partner, as written
};

struct ClsFunkcija : Symbol {
    ClsFunkcija();
    std::int16_t VlezNum = 0; // number of parameters
    std::string Help;         // the parameter text
    std::shared_ptr<clsHash> Locals;
};
struct ClsGlobalVar : Symbol {};
struct ClsLocalVar : Symbol {};
struct ClsArrayVar : Symbol {};
struct clsConstant : Symbol {};
struct ClsType : Symbol {
    ClsType();
    std::shared_ptr<clsHash> Fields;
};
struct ClsField : Symbol {};
struct clsLabel : Symbol {};
// A path may hold any byte, and a table takes those of names alone: its key has the others escaped.
struct clsInclude : Symbol {
    static std::string KeyOf(std::string_view path);
    std::string Key() const override { return KeyOf(Ime); }
};

// The name of the scope outside every function.
inline constexpr const char* MainProgram = "*Main Program*";
