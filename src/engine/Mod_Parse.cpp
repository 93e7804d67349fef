// Parses one line: walks its tokens once, declares its symbols, and sets markers, first colours, fold level
// and indentation. Mod_Parse_declare.cpp has what the keywords declare.
#include "engine/Mod_Parse.h"

#include "engine/ClosedFiles.h"
#include "engine/ClsProject.h"
#include "engine/DocumentRecord.h"
#include "engine/EngineCalls.h"
#include "engine/LineParser.h"
#include "engine/Mod_Folding.h"
#include "engine/Mod_Parse_walk.h"
#include "engine/OptionsEdit.h"
#include "engine/ParserState.h"
#include "engine/WaitCursor.h"
#include "host/ErrorLog.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"

#include <algorithm>

namespace Mod_Parse {

namespace {

using Word = ClsBBFunkcija::Word;

bool IsComment(const Token& token) {
    return token.Kind == TOK_COMMENT || token.Kind == TOK_BLOCK_START || token.Kind == TOK_BLOCK_END;
}

} // namespace

// The line's text keeps its room from line to line: a file has tens of thousands.
std::string LineParser::text_;

LineParser::LineParser(int line, bool sequential) : line_(line), sequential_(sequential) {}

int LineParser::Run() {
    NoteSymbolsChanged();
    gActiveDoc->State.Restyle();
    handle_ = static_cast<int>(Mod_Sci::MarkerAdd(line_, MarkerParsed));
    lineStart_ = static_cast<int>(Mod_Sci::PositionFromLine(line_)) - 1;
    text_.resize(static_cast<std::size_t>(Mod_Sci::LineLength(line_)));
    if (!text_.empty()) Mod_Sci::GetLine(line_, text_.data());
    length_ = Mod_Lexer::FillLineBuffer(text_);
    // A file may have many lines that are too long, so only the first is reported.
    bool& told = gActiveDoc->State.mRefusalTold;
    count_ = Mod_Lexer::Tokenize(text_, length_, told);
    told = told || Mod_Lexer::Refused();
    gLineStyles.Begin(lineStart_ + 1, length_, true);

    if (!sequential_ || CurrentFunctionName.empty()) SetFunction(CurrentFunction(line_ - 1));
    // The type is looked up when it is needed; a type name left by a repaint must not reach the next lines.
    if (!sequential_) ForgetType();
    MarkMainProgram(line_);
    startsOutside_ = CurrentFunctionName == MainProgram;
    localsBefore_ = CurrentLocals;
    // A load indents nothing unless the option asks for it, so the level is not needed.
    indents_ = OptionsEdit::AutoIndentOnLoad || !ParsingFile;
    if (indents_ && (!sequential_ || IndentLevel == 0)) SetIndentLevel(GetNextIndent(line_ - 1));

    while (index_ <= count_) NextToken();
    MoveBelow();
    if (!opened_.empty()) KeepScopeKeyword(opened_.back());
    // A line is invisible while its file loads; the pass that shows it sets all its styles.
    if (!ParsingFile) {
        gLineStyles.Begin(lineStart_ + 1, length_, true);
        StyleLiterals(count_, lineStart_);
        gLineStyles.Flush();
    }
    Mod_Folding::SetLineLevel(line_, foldDelta_, functionWords_ > 0, sequential_);
    if (indents_) Indent();
    return handle_;
}

int LineParser::AddMarker(int marker) { return static_cast<int>(Mod_Sci::MarkerAdd(line_, marker)); }

Token& LineParser::At(int index) const { return TokenAt(index); }

bool LineParser::NextIsName() const { return index_ < count_ && At(index_ + 1).Kind == TOK_IDENT; }

void LineParser::Rewrite(int index, const std::string& spelling) {
    if (At(index).Text != spelling) RewriteToken(spelling, index, lineStart_);
}

// Takes the token at the index, and moves on to the next one that is not taken yet.
void LineParser::NextToken() {
    switch (At(index_).Kind) {
    case TOK_IDENT: Identifier(); return;
    case TOK_COMMENT: startsWithComment_ = startsWithComment_ || index_ == 1; break;
    case TOK_BLOCK_START: Block("Block", MarkerFoldOpens, +1); break;
    case TOK_BLOCK_END: Block("End", MarkerFoldCloses, -1); break;
    case '.':
        if (index_ == 1 && NextIsName()) Label();
        break;
    default: break;
    }
    ++index_;
}

void LineParser::Block(const std::string& word, int foldMarker, int delta) {
    Token& token = At(index_);
    if (token.Text != word) {
        Respell(lineStart_ + token.StartPos + 2, word, !gActiveDoc->State.mLastOperationUndoRedo);
    }
    AddMarker(MarkerBlock);
    AddMarker(foldMarker);
    foldDelta_ += delta;
}

void LineParser::Identifier() {
    const ClsBBFunkcija* keyword = KeywordOf(At(index_));
    if (keyword == nullptr) {
        ++index_;
        return;
    }
    Rewrite(index_, keyword->Ime);
    if (keyword->IsStartScope) {
        levels_.Open(keyword->word);
        if (RememberScopeKeyword) opened_.push_back(keyword->Ime);
    }
    if (OptionsEdit::AutoIndentType == OptionsEdit::IndentByScope && keyword->IsEndScope)
        EndScope(keyword->word);

    if (NextIsName()) {
        Dispatch(keyword->word);
        return;
    }
    const Token& next = At(index_ + 1);
    if (keyword->word == Word::Stop && (index_ == count_ || next.Kind == ':')) {
        AddMarker(MarkerBreakpoint);
        if (index_ < count_) ++index_;
    } else if (keyword->word == Word::Include && index_ < count_ && next.Kind == TOK_STRING &&
               !next.Text.empty()) {
        Include();
    }
    ++index_;
}

void LineParser::EndScope(Word word) {
    const bool endsHere = index_ == count_ || IsComment(At(index_ + 1));
    const bool beforeIf = NextIsName() && EqualNoCase(At(index_ + 1).Text, "If");
    if (levels_.Close(word, index_ == 1, endsHere, beforeIf) && !opened_.empty()) opened_.pop_back();
}

void LineParser::Indent() {
    if (OptionsEdit::AutoIndentType != OptionsEdit::IndentByScope || gActiveDoc->State.mLastOperationUndoRedo)
        return;
    SetIndentLevel(std::max(1, IndentLevel - levels_.closes));
    if (!startsWithComment_) {
        const int target = (IndentLevel - 1) * OptionsEdit::TabValue;
        // With the whole text the view would forget what was just found.
        const bool blankDocument = line_ == 0 && Mod_Sci::GetLineIndentPosition(0) == Mod_Sci::GetLength();
        if (Mod_Sci::GetLineIndentation(line_) != target && !blankDocument) {
            const ColoringScope own;
            SetIndentation(line_, target);
        }
    }
    const auto caret = Mod_Sci::GetCurrentPos();
    if (Mod_Sci::LineFromPosition(caret) == line_) {
        const auto indent = Mod_Sci::GetLineIndentPosition(line_);
        if (indent > caret) Mod_Sci::GotoPos(indent);
    }
    SetIndentLevel(IndentLevel + levels_.opens);
}

int Parseline(int line, bool sequential) {
    LineParser parser(line, sequential);
    return Guarded("Parseline", "Mod_Parse", 0, [&] { return parser.Run(); });
}

void ParseAllLines() {
    const WaitCursor wait;
    DropClosedSymbols(*gCurrentProject);
    const ParsingFileScope parsing;
    gEngineCalls.ParsingAll(true);
    const int last = Mod_Sci::LineFromPosition(Mod_Sci::GetLength());
    for (int line = 0; line <= last; ++line) Parseline(line, true);
    gEngineCalls.ParsingAll(false);
}

void ParseOwn(const ClsProject& project) {
    BeginDocument(project.MainFunLocals);
    ParseAllLines();
}

void ParseFile() {
    Guarded("ParseFile", "Mod_Parse", [&] {
        gCurrentProject = gProjects.Item(gActiveDoc->PrjName);
        ForgetScope();
        SetFoldLevel(0);
        SetIndentLevel(0);
        ParseAllLines();
    });
}

void UnParseFile() {
    Guarded("UnParseFile", "Mod_Parse", [&] {
        const WaitCursor wait;
        ForgetScope();
        const int last = Mod_Sci::LineFromPosition(Mod_Sci::GetLength());
        for (int line = 0; line <= last; ++line) UnparseLine(line, true);
        gEngineCalls.PuniLista();
    });
}

} // namespace Mod_Parse
