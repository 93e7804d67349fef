// The commands that the runner can carry out, by name.
// A command without an entry here ends the program with a message.
#pragma once

#include "machine/Machine.h"

#include <optional>

namespace blitz {

NativeTable textNatives();
NativeTable mathNatives();
NativeTable systemNatives();
NativeTable fileNatives();
NativeTable folderNatives();
NativeTable bankNatives();

/// All of them, for the machine that carries them out.
inline std::vector<NativeTable> allNatives() {
    return {textNatives(), mathNatives(), systemNatives(), fileNatives(), folderNatives(), bankNatives()};
}

/// Values of the kinds that commands return.
inline Value intValue(int32_t integer) {
    Value value{};
    value.integer = integer;
    return value;
}
inline Value floatValue(float real) {
    Value value{};
    value.real = real;
    return value;
}

/// The open file of a handle. Throws Fault.
OpenFile& openFile(Machine& machine, int32_t handle);
/// The bytes of a bank from offset on, count of them. Throws Fault when they are not all in it.
uint8_t* bankBytes(Machine& machine, int32_t handle, int32_t offset, int32_t count);

}
