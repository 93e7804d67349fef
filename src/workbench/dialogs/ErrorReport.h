// The mail draft that a user may send after a failure. The program itself sends nothing.
#pragma once

#include <string>
#include <string_view>

// Returns the draft: headers, room for notes, and the log. Lines end in CR LF.
std::string ErrorReportText(std::string_view mailbox, std::string_view log);

// Returns the path of the draft.
std::string ErrorReportFile();

// Writes the draft from error.log below AppDir. Fails if a file cannot be read or written.
void WriteErrorReport();
// Opens the draft with the desktop's mail program and empties the log. Fails if either is impossible.
void HandOverErrorReport();
