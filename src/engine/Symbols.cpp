// Functions and types own a table each.
#include "engine/Symbols.h"

#include "engine/clsHash.h"

ClsFunkcija::ClsFunkcija() : Locals(std::make_shared<clsHash>()) {}
ClsType::ClsType() : Fields(std::make_shared<clsHash>()) {}
