// Before anything was read, the options have their defaults.
#include "engine/OptionsEdit.h"

namespace OptionsEdit {

#define NUMBER(name, byDefault, range, unit, meaning) int name = byDefault;
#define TEXT(name, byDefault, meaning) std::string name = byDefault;
#include "engine/OptionsEdit.def"

} // namespace OptionsEdit
