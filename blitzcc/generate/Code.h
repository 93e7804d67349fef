// The code that the generator makes and the machine runs: a stack machine with typed operations.
// Every name is resolved to a slot, so running looks nothing up.
#pragma once

#include "parse/Error.h"

#include <cstdint>
#include <string>
#include <vector>

namespace blitz {

// clang-format off
enum class Op : uint8_t {
    PushInt,    // a: value; a float's bits likewise
    PushStr,    // a: index of the constant
    PushNull,
    LoadL, LoadLS, StoreL, StoreLS,     // a: slot of the frame; S: strings are counted
    LoadG, LoadGS, StoreG, StoreGS,     // a: slot of the program
    LoadE, LoadES, StoreE, StoreES,     // a: Dim array, x: dimensions; indices on top
    DimArray,                           // a: Dim array, x: dimensions
    LoadF, LoadFS, StoreF, StoreFS,     // a: field; object on top
    LoadV, LoadVS, StoreV, StoreVS,     // fixed array and index on top
    AddI, SubI, MulI, DivI, ModI, AndI, OrI, XorI, ShlI, ShrI, SarI,
    NegI, NotI, AbsI, SgnI, IsZero,
    AddF, SubF, MulF, DivF, ModF, PowF, NegF, AbsF, SgnF, IsZeroF,
    EqI, NeI, LtI, GtI, LeI, GeI,
    EqF, NeF, LtF, GtF, LeF, GeF,
    EqS, NeS, LtS, GtS, LeS, GeS,
    EqO, NeO,
    Concat,
    IntToFloat, FloatToInt, IntToStr, FloatToStr, StrToInt, StrToFloat,
    IntToFloat1, IntToStr1, FloatToStr1, // the value below the top
    Jump, JumpIf0, JumpIfNot0,          // a: target
    JumpNeI, JumpEqI, JumpGeI, JumpLeI, JumpGtI, JumpLtI, // in the order of EqI to GeI, inverted
    AddLC,                              // slot x of the frame += a
    LoadLL,                             // slots x and a of the frame
    AddIC, SubIC, MulIC,                // top with the constant a
    Call,                               // a: function
    CallCommand,                        // a: command, x: arguments given
    Return, ReturnStr, ReturnVoid,
    Gosub, ReturnSub, ReturnSubOrCall,  // the last: falls through when no Gosub is pending
    Pop, PopStr,
    New, First, Last, DeleteEach,       // a: type
    Delete, Before, After, InsertBefore, InsertAfter, Handle,
    Object,                             // a: type
    EachFirst,                          // a: type, x: hidden slot; pushes an object and 1, or 0
    EachNext,                           // x: hidden slot; variable's object on top; result as EachFirst
    EachEnd,                            // x: hidden slot
    ReadInt, ReadFloat, ReadStr,
    Restore,                            // a: index of the item
    Library,                            // a: constant with the name of the library's function
    End, Stop
};
// clang-format on

struct Ins {
    Op op = Op::End;
    uint16_t x = 0;
    int32_t a = 0;
};

/// What a slot, field or element holds, as far as the storage is concerned.
enum class Storage : uint8_t { Plain, String, Vector };

struct VectorInfo {
    uint32_t slot = 0;
    int32_t size = 0; // elements
    bool strings = false;
};

struct FunctionCode {
    std::string name;
    int32_t entry = 0;
    uint32_t parameters = 0;
    uint32_t slots = 0;            // with the parameters
    uint32_t stack = 0;            // upper bound of values above the slots
    std::vector<uint32_t> strings; // slots with counted strings
    std::vector<uint32_t> pins;    // hidden slots of For Each loops
    std::vector<VectorInfo> vectors;
};

struct TypeCode {
    std::string name;
    uint32_t fields = 0;
    std::vector<uint32_t> strings;
    std::vector<VectorInfo> vectors;
};

struct DataItem {
    enum class Kind : uint8_t { Int, Float, String } kind = Kind::Int;
    int32_t integer = 0;
    float real = 0;
    std::string text;
};

/// A checked program, ready to run.
struct Code {
    std::vector<Ins> code;
    std::vector<uint64_t> places;        // file and line of each instruction: file << 32 | line
    std::vector<FunctionCode> functions; // 0 is the main program
    std::vector<TypeCode> types;
    std::vector<std::string> strings;
    std::vector<DataItem> data;
    std::vector<bool> arrays; // Dim arrays; true: of strings
    uint32_t globals = 0;
    std::vector<VectorInfo> globalVectors;
};

}
