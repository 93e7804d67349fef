// What the engine may ask of the floors above it. Empty by default: the engine works without an answer.
#pragma once

#include "host/Request.h"

#include <string>

struct ClsType;

struct EngineCalls {
    // Asks for a completion list at the caret: of names, of type names, of labels, of a type's fields.
    Request<void()> Autocomplete;
    Request<void()> AutocompleteType;
    Request<void()> AutocompleteLabel;
    Request<void(const ClsType& type, const std::string& typed)> AutocompleteBackSlash;
    // Tells that the lists of the Code Explorer no longer agree with the tables.
    Request<void()> PuniLista;
    // Reports that the parse of a whole file begins or ends, for whoever measures it.
    Request<void(bool begins)> ParsingAll;
    // Tells that the active document has changed without a change of its text.
    Request<void()> DocumentChanged;
};
extern EngineCalls gEngineCalls; // written by the wiring of the application alone
