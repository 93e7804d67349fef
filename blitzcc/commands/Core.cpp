// The commands on strings, numbers, time, banks and the program itself. Each line is shown in the vocabulary
// as it is; the marks give the types, [] encloses what may be omitted.
#include "commands/CommandTable.h"

#include <iterator>

namespace blitz {

// clang-format off
static constexpr const char* definitions[] = {
    // Program and console.
    "AppTitle title$[,close_prompt$]",
    "RuntimeError message$",
    "DebugLog text$",
    "ExecFile command$",
    "Delay milliseconds%",
    "CommandLine$ ()",
    "Print [text$]",
    "Write [text$]",
    "Input$ ([prompt$])",
    "CallDLL (dll_name$,function$[,in_bank%][,out_bank%])",
    "GetEnv$ (name$)",
    "SetEnv name$,value$",
    "SystemProperty$ (property$)",
    // Time.
    "MilliSecs ()",
    "CurrentDate$ ()",
    "CurrentTime$ ()",
    "CreateTimer (frequency%)",
    "WaitTimer (timer%)",
    "FreeTimer timer%",
    "PauseTimer timer%",
    "ResumeTimer timer%",
    "ResetTimer timer%",
    "TimerTicks (timer%)",
    // Numbers.
    "Sin# (degrees#)",
    "Cos# (degrees#)",
    "Tan# (degrees#)",
    "ASin# (value#)",
    "ACos# (value#)",
    "ATan# (value#)",
    "ATan2# (y#,x#)",
    "Sqr# (value#)",
    "Floor# (value#)",
    "Ceil# (value#)",
    "Exp# (value#)",
    "Log# (value#)",
    "Log10# (value#)",
    "Rnd# (from#[,to#])",
    "Rand (from%[,to%])",
    "SeedRnd seed%",
    "RndSeed ()",
    // Strings.
    "String$ (text$,count%)",
    "Left$ (text$,count%)",
    "Right$ (text$,count%)",
    "Replace$ (text$,from$,to$)",
    "Instr (text$,find$[,from%])",
    "Mid$ (text$,position%[,count%])",
    "Upper$ (text$)",
    "Lower$ (text$)",
    "Trim$ (text$)",
    "LSet$ (text$,width%)",
    "RSet$ (text$,width%)",
    "Chr$ (code%)",
    "Asc (text$)",
    "Len (text$)",
    "Hex$ (value%)",
    "Bin$ (value%)",
    // Banks.
    "CreateBank ([size%])",
    "FreeBank bank%",
    "BankSize (bank%)",
    "ResizeBank bank%,size%",
    "CopyBank source_bank%,source_offset%,dest_bank%,dest_offset%,count%",
    "PeekByte (bank%,offset%)",
    "PeekShort (bank%,offset%)",
    "PeekInt (bank%,offset%)",
    "PeekFloat# (bank%,offset%)",
    "PokeByte bank%,offset%,value%",
    "PokeShort bank%,offset%,value%",
    "PokeInt bank%,offset%,value%",
    "PokeFloat bank%,offset%,value#",
    "ReadBytes (bank%,file%,offset%,count%)",
    "WriteBytes (bank%,file%,offset%,count%)",
};
// clang-format on

DefinitionTable coreCommands() { return {definitions, std::size(definitions)}; }

}
