// What a program left open is closed at its end.
#include "machine/Stores.h"

namespace blitz {

FileStore::~FileStore() {
    for (const auto& [handle, file] : files) std::fclose(file.stream);
}

}
