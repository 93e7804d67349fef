// The words that names and texts of a generated program are made of.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

namespace generator {

using Words = std::vector<std::string>;

// The parts joined. A braced list is evaluated from left to right, which the operands of + are not: with
// random choices in the parts, only this gives the same text on every machine.
std::string cat(std::initializer_list<std::string> parts);

extern const Words verbs, qualifiers, nouns, things;
extern const Words intNames, floatNames, textNames;
extern const Words fieldNames; // with their suffixes
extern const Words phrases, remarks, sections;

}
