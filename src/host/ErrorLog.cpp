// Failure reports: the entry in error.log, and one dialog at a time. Failures of the report itself are
// ignored, because a report that throws would hide the first failure.
#include "host/ErrorLog.h"

#include "host/Clock.h"
#include "host/Desktop.h"
#include "host/Failure.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/HostCalls.h"
#include "host/Paths.h"

#include <exception>

ErrorFields gLastError;
bool gInErrorReport = false;
bool gErrorDialogShown = false;
HostCalls gHostCalls;

namespace {

std::string Entry() {
    Desktop* desktop = gHost.desktop;
    Clock* clock = gHost.clock;
    std::string text;
    const auto line = [&](std::string_view label, const std::string& value) {
        text.append(label).append(value).append("\r\n");
    };
    line("**********>> Created: ",
         clock ? clock->Date() + ", " + clock->Time() + "<<***********" : ", <<***********");
    line("Zolto version             :", std::string(ProgramVersion));
    line("App. Path                 :", AppDir());
    line("File Name                 :", gLastError.fileName);
    line("Method Name               :", gLastError.methodName);
    line("Error Description         :", gLastError.description);
    line("Error Number              :", std::to_string(gLastError.number));
    line("Error Line                :", std::to_string(gLastError.line));
    line("Error Source              :", gLastError.source);
    line("OS Info                   :",
         desktop ? desktop->OsName() + "   Version:" + desktop->OsVersion() + " Build:" + desktop->OsBuild()
                 : "Unknown   Version: Build:");
    line("Files opened              :", std::to_string(gHostCalls.CountOpenFiles()));
    line("**************************************************************", "");
    return text;
}

// Copies number, description and source of the exception that is being handled.
void ReadPendingFailure() {
    gLastError = {};
    if (!std::current_exception()) return;
    try {
        throw;
    } catch (const Failure& failure) {
        gLastError.number = failure.number;
        gLastError.description = failure.description;
        gLastError.source = failure.source;
    } catch (const std::exception& error) {
        gLastError.description = error.what();
        gLastError.source = ProgramName;
    } catch (...) {
        gLastError.description = "Unknown failure";
        gLastError.source = ProgramName;
    }
}

void Report() {
    try {
        if (gHost.files) gHost.files->Append(AppDir() + "/error.log", Entry());
    } catch (...) {
    }
    if (gInErrorReport || !gHostCalls.ShowErrorDialog) return;
    gErrorDialogShown = true;
    gInErrorReport = true;
    try {
        gHostCalls.ShowErrorDialog();
    } catch (...) {
    }
    gInErrorReport = false;
}

}

void SetErrorLog(std::string_view procName, std::string_view moduleName) noexcept {
    try {
        ReadPendingFailure();
        gLastError.methodName = procName;
        gLastError.fileName = moduleName;
        Report();
    } catch (...) {
    }
}

void SetStopErrorLog(int number) noexcept {
    try {
        gLastError = {};
        gLastError.number = number;
        gLastError.description = "Execution halted";
        gLastError.source = "On Stop Command";
        gLastError.methodName = std::to_string(number);
        gLastError.fileName = "none";
        Report();
    } catch (...) {
    }
}
