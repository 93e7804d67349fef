// Names are tried from right to left, so the innermost call that the caret is in wins.
#include "editor/Mod_SciFun_tips.h"

#include "engine/ClsCompiler.h"
#include "engine/ClsProject.h"
#include "engine/Mod_Lexer.h"
#include "engine/Mod_Parse_walk.h"
#include "sci/Mod_Sci.h"

namespace Mod_SciFun {

namespace {

constexpr std::intptr_t ShortestLine = 2;

class CallSearch {
public:
    CallSearch(int caretColumn, int count) : caret_(caretColumn), count_(count) {}

    CallAtCaret Run() {
        for (int i = count_; i >= 1; --i) {
            const Token& token = TokenAt(i);
            switch (token.Kind) {
            case ',':
                if (depth_ >= 0) ++call_.param;
                break;
            case '(': closedCall_ = ++depth_ == 0; break;
            case ')': --depth_; break;
            case TOK_COMMENT:
            case ':': return {};
            case TOK_IDENT:
                if (closedCall_)
                    closedCall_ = false; // the name of a call that is closed before the caret
                else if (depth_ >= 0 && IsCall(token, i == 1))
                    return call_;
                break;
            default: break;
            }
        }
        return {};
    }

private:
    // Whether the caret is on the word, not only at its end.
    bool CaretOn(const Token& token) const { return token.EndPos > caret_; }

    bool IsCall(const Token& token, bool first) {
        if (const ClsBBFunkcija* keyword = Mod_Parse::KeywordOf(token)) {
            if (first && keyword->IsEndScope && keyword->word != ClsBBFunkcija::Word::Case) {
                call_.showScope = true;
                return true;
            }
            const bool takes = keyword->VlezNum >= 1 || keyword->ImaZagradi;
            if (CaretOn(token)) return takes && Take(token, false, call_.param);
            return takes && keyword->VlezNum >= call_.param && Take(token, false, call_.param + 1);
        }
        if (gCurrentProject->Funkcii.ExistsHash(token.Text)) {
            const int parameters = static_cast<const ClsFunkcija&>(*FoundItem).VlezNum;
            if (CaretOn(token)) return Take(token, true, 0);
            return parameters >= call_.param && Take(token, true, call_.param + 1);
        }
        if (depth_ > 0) call_.param = 0; // an array, whose commas belong to no call
        return false;
    }

    bool Take(const Token& token, bool isUser, int param) {
        call_.name = token.Text;
        call_.isUser = isUser;
        call_.param = param;
        call_.column = token.StartPos - 1;
        return true;
    }

    CallAtCaret call_;
    int caret_;
    int count_;
    int depth_ = 0; // of the brackets that are open at the caret; below 0 inside one that is closed
    bool closedCall_ = false;
};

} // namespace

CallAtCaret ZemiHelp(std::intptr_t pos, int line) {
    if (Mod_Sci::LineLength(line) < ShortestLine) return {};
    const auto start = Mod_Sci::PositionFromLine(line);
    std::string text = Mod_Sci::GetTextRange(start, Mod_Sci::WordEndPosition(pos, 1));
    const int length = Mod_Lexer::FillLineBuffer(text);
    const int count = Mod_Lexer::Tokenize(text, length, true);
    return CallSearch(static_cast<int>(pos - start) + 1, count).Run();
}

} // namespace Mod_SciFun
