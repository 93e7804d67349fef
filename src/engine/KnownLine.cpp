// The one line that differs from the tables is the one that its document remembers.
#include "engine/KnownLine.h"

#include "engine/DocumentRecord.h"
#include "sci/Mod_Sci.h"

namespace Mod_Parse {

std::string KnownText(int line) {
    const PipelineState& state = gActiveDoc->State;
    return line == state.UnparsedLine ? state.UnparsedText : Mod_Sci::LineText(line);
}

void ReadKnownEvents(int line, LineEvents& events) {
    const std::string text = KnownText(line);
    const int count = Mod_Lexer::TokenizeBeside(text);
    ReadEvents(LightTokens.data(), count, static_cast<int>(text.size()), events);
}

} // namespace Mod_Parse
