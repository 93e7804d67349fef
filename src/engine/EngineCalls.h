// Requests of the engine to higher floors. They are empty by default, and the engine works without them.
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
    // Reports that the lists of the Code Explorer no longer agree with the tables.
    Request<void()> PuniLista;
    // Reports the beginning and end of the parse of a whole file, so that its duration can be measured.
    Request<void(bool begins)> ParsingAll;
    // Reports that the active document has changed although its text has not.
    Request<void()> DocumentChanged;
};
extern EngineCalls gEngineCalls; // written by the wiring of the application alone
