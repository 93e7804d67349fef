// The mail draft that a user may send after a failure. Nothing is sent by the program itself.
#pragma once

#include <string>
#include <string_view>

// The draft's text: headers, room for notes, and the log. Lines end in CR LF.
std::string ErrorReportText(std::string_view mailbox, std::string_view log);

// Where the draft is written.
std::string ErrorReportFile();

// Writes the draft from error.log below AppDir. Fails when a file cannot be read or written.
void WriteErrorReport();
// Opens the draft with the desktop's mail program and empties the log. Fails when either cannot be done.
void HandOverErrorReport();
