// The commands on TCP and UDP streams and on net games. Each line is shown in the vocabulary as it is; the
// marks give the types, [] encloses what may be omitted.
#include "commands/CommandTable.h"

#include <iterator>

namespace blitz {

// clang-format off
static constexpr const char* definitions[] = {
    // Addresses.
    "DottedIP$ (ip%)",
    "CountHostIPs (host_name$)",
    "HostIP (host_index%)",
    // TCP.
    "OpenTCPStream (server$,server_port%[,local_port%])",
    "CloseTCPStream stream%",
    "CreateTCPServer (port%)",
    "CloseTCPServer server%",
    "AcceptTCPStream (server%)",
    "TCPStreamIP (stream%)",
    "TCPStreamPort (stream%)",
    "TCPTimeouts read_milliseconds%,accept_milliseconds%",
    // UDP.
    "CreateUDPStream ([port%])",
    "CloseUDPStream stream%",
    "SendUDPMsg stream%,dest_ip%[,dest_port%]",
    "RecvUDPMsg (stream%)",
    "UDPStreamIP (stream%)",
    "UDPStreamPort (stream%)",
    "UDPMsgIP (stream%)",
    "UDPMsgPort (stream%)",
    "UDPTimeouts receive_timeout%",
    // Net games.
    "StartNetGame ()",
    "HostNetGame (game_name$)",
    "JoinNetGame (game_name$,ip_address$)",
    "StopNetGame",
    "CreateNetPlayer (name$)",
    "DeleteNetPlayer player%",
    "SendNetMsg (type%,message$,from_player%[,to_player%][,reliable%])",
    "RecvNetMsg ()",
    "NetMsgType ()",
    "NetMsgFrom ()",
    "NetMsgTo ()",
    "NetMsgData$ ()",
    "NetPlayerName$ (player%)",
    "NetPlayerLocal (player%)",
};
// clang-format on

DefinitionTable networkCommands() { return {definitions, std::size(definitions)}; }

}
