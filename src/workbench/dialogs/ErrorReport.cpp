// The mail draft that a user may send after a failure.
#include "workbench/dialogs/ErrorReport.h"

#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/SettingsStore.h"

std::string ErrorReportText(std::string_view mailbox, std::string_view log) {
    constexpr std::string_view End = "\r\n";
    std::string text;
    const auto line = [&](std::string_view content) { text.append(content).append(End); };
    line("From: <>");
    line("To: \"" + std::string(mailbox) + "\"");
    line("Subject: Zolto - Error Report");
    // Mail programs open the file as an unsent message because of this header.
    line("X-Unsent: 1");
    line("");
    line("If possible, please include a description of the steps required to reproduce this error:");
    for (int blank = 0; blank < 4; ++blank) line("");
    line("Add your note here, or any other info about this error and current state of Zolto : ");
    line("( attaching screenshot to this mail will be also much appreciated )");
    for (int blank = 0; blank < 4; ++blank) line("");
    line("<BEGIN REPORT - PLEASE DO NOT WRITE BELOW THIS LINE>");
    line("");
    line(log);
    line("<END REPORT>");
    return text;
}

std::string ErrorReportFile() { return AppDir() + "/" + std::string(ProgramName) + " - Error Report.eml"; }

void WriteErrorReport() {
    const std::string mailbox = gHost.settings->Get("Options", "ErrorReportMailbox", "");
    gHost.files->Write(ErrorReportFile(),
                       ErrorReportText(mailbox, gHost.files->Read(AppDir() + "/error.log")));
}

void HandOverErrorReport() {
    gHost.files->OpenWithDesktop(ErrorReportFile());
    gHost.files->Write(AppDir() + "/error.log", "");
}
