// Failure reports. Each failure is appended to error.log below AppDir and shown to the user; the failed
// operation ends and the program goes on.
#pragma once

#include <string>
#include <string_view>

// The last reported failure. Written by SetErrorLog and SetStopErrorLog alone.
struct ErrorFields {
    std::string description;
    int number = 0;
    std::string source;
    std::string methodName;
    std::string fileName;
    int line = 0;
};
extern ErrorFields gLastError;

// True while the error dialog is open: editor notifications are dropped meanwhile.
extern bool gInErrorReport;

// True after the dialog was shown once in this run.
extern bool gErrorDialogShown;

// Reports the exception that is being handled; call it from a catch block. An exception that is not a Failure
// is reported with number 0. Never throws. Writes gLastError.
void SetErrorLog(std::string_view procName, std::string_view moduleName) noexcept;

// Reports that the program's own records contradict each other. Never throws. Writes gLastError.
void SetStopErrorLog(int number) noexcept;

// Runs `body` and returns its result. If `body` throws, the failure is reported under the two names and the
// result is `fallback`.
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
