// The commands on files and folders. Each line is shown in the vocabulary as it is; the marks give the types,
// [] encloses what may be omitted.
#include "commands/CommandTable.h"

#include <iterator>

namespace blitz {

// clang-format off
static constexpr const char* definitions[] = {
    "OpenFile (file_name$)",
    "ReadFile (file_name$)",
    "WriteFile (file_name$)",
    "CloseFile file%",
    "FilePos (file%)",
    "SeekFile (file%,position%)",
    "Eof (stream%)",
    "ReadAvail (stream%)",
    "ReadByte (stream%)",
    "ReadShort (stream%)",
    "ReadInt (stream%)",
    "ReadFloat# (stream%)",
    "ReadString$ (stream%)",
    "ReadLine$ (stream%)",
    "WriteByte stream%,value%",
    "WriteShort stream%,value%",
    "WriteInt stream%,value%",
    "WriteFloat stream%,value#",
    "WriteString stream%,text$",
    "WriteLine stream%,text$",
    "CopyStream source_stream%,dest_stream%[,buffer_size%]",
    "ReadDir (folder$)",
    "NextFile$ (folder%)",
    "MoreFiles (folder%)",
    "CloseDir folder%",
    "CurrentDir$ ()",
    "ChangeDir folder$",
    "CreateDir folder$",
    "DeleteDir folder$",
    "FileSize (file_name$)",
    "FileType (file_name$)",
    "CopyFile source$,destination$",
    "DeleteFile file_name$",
};
// clang-format on

DefinitionTable fileCommands() { return {definitions, std::size(definitions)}; }

}
