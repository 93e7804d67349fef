// The commands on keyboard, mouse and joystick. Each line is shown in the vocabulary as it is; the marks give
// the types, [] encloses what may be omitted.
#include "commands/CommandTable.h"

#include <iterator>

namespace blitz {

// clang-format off
static constexpr const char* definitions[] = {
    // Keyboard.
    "KeyDown (key%)",
    "KeyHit (key%)",
    "GetKey ()",
    "WaitKey ()",
    "FlushKeys",
    // Mouse.
    "MouseDown (button%)",
    "MouseHit (button%)",
    "GetMouse ()",
    "WaitMouse ()",
    "MouseWait ()",
    "MouseX ([canvas%])",
    "MouseY ([canvas%])",
    "MouseZ ()",
    "MouseXSpeed ()",
    "MouseYSpeed ()",
    "MouseZSpeed ()",
    "FlushMouse",
    "MoveMouse x%,y%[,canvas%]",
    "HidePointer [canvas%]",
    "ShowPointer [canvas%]",
    // Joystick.
    "JoyType ([port%])",
    "JoyDown (button%[,port%])",
    "JoyHit (button%[,port%])",
    "GetJoy ([port%])",
    "WaitJoy ([port%])",
    "JoyWait ([port%])",
    "JoyX# ([port%])",
    "JoyY# ([port%])",
    "JoyZ# ([port%])",
    "JoyU# ([port%])",
    "JoyV# ([port%])",
    "JoyPitch# ([port%])",
    "JoyYaw# ([port%])",
    "JoyRoll# ([port%])",
    "JoyHat ([port%])",
    "JoyXDir ([port%])",
    "JoyYDir ([port%])",
    "JoyZDir ([port%])",
    "JoyUDir ([port%])",
    "JoyVDir ([port%])",
    "FlushJoy",
    "EnableDirectInput enable%",
    "DirectInputEnabled ()",
};
// clang-format on

DefinitionTable inputCommands() { return {definitions, std::size(definitions)}; }

}
