// What the compiler prints, line by line: progress, errors, and all that goes to the Output pane.
#pragma once

class frmDoc;

namespace CompilerOutput {

// Takes the output of a document's console runner from now on.
void Listen(frmDoc& document);

} // namespace CompilerOutput
