// Completion lists, opened from inside the colouring of the line under the caret.
#pragma once

#include <string>

struct ClsType;

namespace Mod_SciFun {

// Each collects what begins with the word at the caret and shows it in the active view; a list that would
// be too long does not open by itself. More candidates than the list holds are a failure, which is
// reported. They clear ACForced and raise ACShownNow.
//
// Keywords and every kind of name in scope; behind a "." type names.
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
