// Colouring may respell a name after another declaration, even on a line that declares it. The records of
// such a line are updated from its text here.
#include "engine/Mod_Parse_walk.h"

#include "engine/ParserState.h"
#include "engine/ScopeMoves.h"
#include "sci/Mod_Sci.h"

namespace Mod_Parse {

bool LineRespelt = false;

void RespellSymbols(int line) {
    const ScopeKept scope;
    std::string text = Mod_Sci::LineText(line);
    const int length = Mod_Lexer::FillLineBuffer(text);
    const int count = Mod_Lexer::Tokenize(text, length, true);
    LineEvents events;
    ReadEvents(Tokens.data(), count, length, events);
    for (const LineSymbol& symbol : FindLineSymbols(line, false, Tokens.data(), events).symbols) {
        if (!symbol.record) continue;
        Symbol& record = *symbol.record;
        record.Ime = symbol.name;
        if (symbol.event.type > 0) record.Tajp = TokenAt(symbol.event.type).Text;
        if (symbol.event.from == 0) continue;
        std::string behind = Cut(symbol.event.from, symbol.event.to);
        while (behind.ends_with('\r') || behind.ends_with('\n')) behind.pop_back();
        if (symbol.event.kind == LineEvent::Function)
            static_cast<ClsFunkcija&>(record).Help = behind;
        else
            record.ArraySize = behind;
    }
}

} // namespace Mod_Parse
