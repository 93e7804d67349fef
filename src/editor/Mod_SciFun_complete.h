// Completion lists, opened from inside the colouring of the line under the caret.
#pragma once

#include <string>

struct ClsType;

namespace Mod_SciFun {

// Each collects the names that begin with the word at the caret and shows them in the active view; a list
// that is too long opens only on request. Exceeding the list's capacity is reported as a failure. They lower
// ACForced and raise ACShownNow. Autocomplete offers keywords and all names in scope; after a "." type names.
void Autocomplete();
// The types of the project.
void AutocompleteType();
// The labels of the project.
void AutocompleteLabel();
// The fields of a type that begin with `prefix`. From now on only a space closes a list in this view.
void AutocompleteBackSlash(const ClsType& typeRecord, const std::string& prefix);

// Opens the list at the caret on the user's wish, whatever its length.
void ShowAutocomplete();

} // namespace Mod_SciFun
