// The machine that runs a checked program's code.
// Strings are counted, objects are found by slot and generation, so a deleted one reads as Null.
#pragma once

#include "generate/Code.h"
#include "machine/Output.h"
#include "machine/Stores.h"

#include <deque>
#include <map>
#include <memory>
#include <unordered_map>

namespace blitz {

/// A counted string; a null pointer is the empty one.
struct Str {
    uint32_t references = 1;
    std::string text;
};

struct Vec;

/// One value on the stack or in a slot; its kind is known to the code alone.
union Value {
    uint64_t object; // slot in the lower half, generation in the upper, 0 is Null
    int32_t integer;
    float real;
    Str* string;
    Vec* vector;
};

/// A fixed array; its memory lives as long as the machine.
struct Vec {
    bool strings = false;
    std::vector<Value> items;
};

/// Thrown by commands and operations; the machine adds the place. The message holds no colon.
struct Fault {
    std::string message;
};

[[noreturn]] inline void fault(std::string message) { throw Fault{std::move(message)}; }

/// What a program is run with.
struct RunOptions {
    std::string arguments;     // CommandLine$
    std::string programFolder; // SystemProperty$("appdir")
    bool debug = false;
};

class Machine;
using Native = Value (*)(Machine& machine, const Value* arguments, size_t given);

struct NativeEntry {
    const char* name;
    Native function;
};

struct NativeTable {
    const NativeEntry* entries;
    size_t count;
};

class Machine {
public:
    /// A command that none of the tables carries out ends the program with a message.
    Machine(const Code& code, Output& output, RunOptions options, const std::vector<NativeTable>& natives);
    Machine(const Machine&) = delete;
    Machine& operator=(const Machine&) = delete;

    /// Runs to the end of the program. Throws RuntimeError; the output is not flushed.
    void run();

    // For the commands.
    Output& output() { return output_; }
    const RunOptions& options() const { return options_; }
    FileStore& files() { return files_; }
    BankStore& banks() { return banks_; }
    uint32_t& randomState() { return random_; }
    /// A value that owns a new string; the empty text takes no memory.
    Value makeString(std::string text);
    /// The text of a string value.
    static const std::string& text(Value value);
    /// Ends the program as End does.
    [[noreturn]] static void end();

private:
    struct Ended {};
    struct Object {
        uint32_t generation = 1;
        uint32_t previous = 0;
        uint32_t next = 0;
        int32_t type = -1;
        uint32_t pins = 0; // For Each loops whose hidden slot holds it
        int32_t handle = 0;
        bool alive = false;
        std::unique_ptr<Value[]> fields;
    };
    struct TypeList {
        uint32_t first = 0;
        uint32_t last = 0;
        std::vector<uint32_t> unused;
    };
    struct Frame {
        const Ins* back;
        Value* slots;
        const FunctionCode* function;
    };
    struct Array {
        std::vector<int32_t> sizes;
        std::vector<Value> items;
    };

    void prepareNatives(const std::vector<NativeTable>& tables);
    void execute(const Ins*& at);
    void step(const Ins& ins, Value*& top, Value* slots);
    [[noreturn]] void stopAt(const Ins* at, const std::string& message) const;
    void debugStop(const Ins* at);

    // Calls.
    Value* enter(const FunctionCode& function, Value* top);
    void leave(const FunctionCode& function, Value* slots);
    void callCommand(const Ins& ins, Value*& top);
    void pushGosub(const Ins* back);
    bool popGosub(const Ins*& at);

    // Strings.
    Value keep(Value value) {
        if (value.string) ++value.string->references;
        return value;
    }
    void drop(Value value) {
        if (value.string && --value.string->references == 0) recycle(value.string);
    }
    void recycle(Str* string);
    Value concatenated(Value left, Value right);
    int compared(Value left, Value right);
    void convertText(const Ins& ins, Value* top);

    // Arrays.
    Vec* makeVector(const VectorInfo& info);
    void freeVector(Vec* vector);
    void clearValues(std::vector<Value>& values, bool strings);
    void dimension(const Ins& ins, Value*& top);
    Value& element(const Ins& ins, Value*& top);
    static Value& item(Value vector, Value index);

    // Objects.
    Object* find(Value value);
    Object& need(Value value);
    Value idOf(uint32_t slot) const;
    Value create(int32_t type);
    void link(uint32_t slot, uint32_t before);
    void unlink(uint32_t slot);
    void remove(Value value);
    void removeAll(int32_t type);
    Value neighbour(uint32_t slot, bool forward) const;
    void insert(Value value, Value place, bool before);
    int32_t handleOf(Value value);
    Value objectOf(int32_t handle, int32_t type);
    void pin(Value& hidden, uint32_t slot);
    void each(const Ins& ins, Value*& top, Value* slots);

    const DataItem& nextData();
    void readData(const Ins& ins, Value*& top);

    const Code& code_;
    Output& output_;
    RunOptions options_;
    std::vector<Native> natives_;
    std::vector<uint32_t> stringMasks_; // of each command: its string parameters
    std::vector<uint8_t> argumentCounts_;
    std::unique_ptr<Value[]> stack_;
    Value* limit_;
    std::vector<Value> globals_;
    std::vector<Array> arrays_;
    std::vector<Value> constants_;
    std::vector<Frame> frames_;
    std::vector<std::pair<const Ins*, size_t>> gosubs_;
    std::deque<Str> strings_;
    std::vector<Str*> unusedStrings_;
    std::deque<Vec> vectors_;
    std::map<std::pair<size_t, bool>, std::vector<Vec*>> unusedVectors_;
    std::vector<Object> objects_;
    std::vector<TypeList> types_;
    std::unordered_map<int32_t, uint64_t> handles_;
    int32_t lastHandle_ = 0;
    size_t dataAt_ = 0;
    uint32_t random_ = 1;
    FileStore files_;
    BankStore banks_;
};

}
