// The binary .style file that the editor loads.
// Little-endian, no padding; colours are written as 0x00BBGGRR.
#pragma once

#include "StyleTable.h"

namespace styles {

// The bytes of the .style file for a table.
std::string styleFileBytes(const StyleTable& table);

}
