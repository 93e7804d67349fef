// The failure path of the whole program: each failure is appended to error.log below AppDir and
// shown once; the operation that failed is abandoned and everything else goes on.
#pragma once

#include <string>
#include <string_view>

// What was last reported. Written by SetErrorLog and SetStopErrorLog alone.
struct ErrorFields {
    std::string description;
    int number = 0;
    std::string source;
    std::string methodName;
    std::string fileName;
    int line = 0;
};
extern ErrorFields gLastError;

// True while the error dialog is up: every editor notification is dropped meanwhile.
extern bool gInErrorReport;

// True once the dialog was shown in this run.
extern bool gErrorDialogShown;

// Reports the failure that is being handled, so it is called from a catch block; anything that is not
// a Failure is reported with number 0 and its own text. Never throws. Writes gLastError.
void SetErrorLog(std::string_view procName, std::string_view moduleName) noexcept;

// Reports a stop that the program raised itself because its own records disagree. Never throws.
void SetStopErrorLog(int number) noexcept;

// Runs `body` and answers its result; a failure in it is reported under the two names and answers
// `fallback` instead.
template <class Body, class Result>
Result Guarded(std::string_view procName, std::string_view moduleName, Result fallback, Body&& body) {
    try {
        return body();
    } catch (...) {
        SetErrorLog(procName, moduleName);
        return fallback;
    }
}

// The same for a body without a result.
template <class Body>
void Guarded(std::string_view procName, std::string_view moduleName, Body&& body) {
    try {
        body();
    } catch (...) {
        SetErrorLog(procName, moduleName);
    }
}
