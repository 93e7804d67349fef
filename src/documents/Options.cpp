// Before anything was read, the options have their defaults, folders excepted.
#include "documents/Options.h"

namespace Options {

#define NUMBER(name, byDefault, range, unit, meaning) int name = byDefault;
#define TEXT(name, byDefault, meaning) std::string name = byDefault;
#define FOLDER(name, byDefault, meaning) std::string name;
#include "documents/Options.def"

} // namespace Options
