// The line parser and its inverse, the scope queries, and the colourers. Every call works on the current
// document: gActiveDoc, SciWndData and gCurrentProject. Lines count from 0, token indices from 1.
#pragma once

#include "engine/Markers.h"

#include <cstdint>
#include <optional>
#include <string>

class ClsProject;

namespace Mod_Parse {

// --- parsing ---------------------------------------------------------------------------------------

// Parses the current document from its first line to its last. Writes the parser's state.
void ParseFile();
// The same run over all lines for a document whose project is current and whose scope is set.
void ParseAllLines();
// The same for the text of a new document of this project, from an empty scope on.
void ParseOwn(const ClsProject& project);
// Takes back every line of the current document, then has the Code Explorer refilled.
void UnParseFile();
// Forgets what the lines of the current document declared, and takes the parser's markers off all of them, in
// one go. No line may be waiting or being edited. ParseAllLines is to follow.
void ForgetFile();
// Parses one unparsed line and returns the handle of its marker 3. `sequential` means that the line above has
// just been parsed.
int Parseline(int line, bool sequential);
// Takes back what a line declared, by its old text or, without one, by its present text.
void UnparseLine(int line, bool sequential, const std::optional<std::string>& oldText = std::nullopt);
void UnparseLineText(int line, const std::string& oldText);

// --- scope -----------------------------------------------------------------------------------------

// The enclosing function's name, or "*Main Program*". Writes CurrentLocals.
std::string CurrentFunction(int line);
// The enclosing type's name, or empty. Writes CurrentFields when inside a type.
std::string CurrentType(int line);
// The name to show for a line; touches nothing.
std::string CurrentFunctionForDisplay(int line);
// What the tables know of the functions of a line.
struct FunctionsOnLine {
    bool begins = false;    // one begins here
    bool endsAbove = false; // one ends here that began above
    bool goesBelow = false; // a function begins on the line and continues below
    std::string lastBegun;  // the name of the last one that begins here
};
FunctionsOnLine FunctionsOn(int line);
// The indentation level, from 1, of the line below.
int GetNextIndent(int line);
// Sets a line's indentation in columns. A blank line after a lone CR keeps its indentation: without it the
// two line ends would become one.
void SetIndentation(int line, int columns);

// --- colouring -------------------------------------------------------------------------------------

// Colours the caret's line and requests a completion list where the grammar expects a name.
void ColorCurrentLine(int line, bool scopeKnown);
// Colours a parsed line that is not under the caret; `sequential`: the line above was coloured just before.
void ColorLineLight(int line, bool sequential);
// Keeps the scope of a run of lines right across a line that is being edited; styles nothing.
void ColorUnparsedLineLight(int line, bool sequential, const std::string& text);

} // namespace Mod_Parse
