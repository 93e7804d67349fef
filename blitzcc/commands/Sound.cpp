// The commands on sounds, music and channels. Each line is shown in the vocabulary as it is; the marks give
// the types, [] encloses what may be omitted.
#include "commands/CommandTable.h"

#include <iterator>

namespace blitz {

// clang-format off
static constexpr const char* definitions[] = {
    "LoadSound (file_name$)",
    "FreeSound sound%",
    "LoopSound sound%",
    "SoundPitch sound%,pitch%",
    "SoundVolume sound%,volume#",
    "SoundPan sound%,pan#",
    "PlaySound (sound%)",
    "PlayMusic (file_name$[,mode%])",
    "PlayCDTrack (track%[,mode%])",
    "StopChannel channel%",
    "PauseChannel channel%",
    "ResumeChannel channel%",
    "ChannelPitch channel%,pitch%",
    "ChannelVolume channel%,volume#",
    "ChannelPan channel%,pan#",
    "ChannelPlaying (channel%)",
    "Load3DSound (file_name$)",
    "CreateListener (parent%[,roll_off#][,doppler#][,distance#])",
    "EmitSound (sound%,entity%)",
};
// clang-format on

DefinitionTable soundCommands() { return {definitions, std::size(definitions)}; }

}
