// Vocabularies: reads a .lng file into 68 dictionaries, and adds the structure words that no file defines.
#include "engine/ClsCompiler.h"

#include "engine/KeywordReader.h"
#include "engine/Mod_Lexer.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Files.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/Text.h"

CollectionTools<ClsCompiler> gCompilers;
std::shared_ptr<ClsCompiler> gActiveCompiler;
std::string DefaultCompiler;

namespace {

constexpr std::size_t SmallestKeywordFile = 3000; // bytes; anything shorter is an error text

using Word = ClsBBFunkcija::Word;

struct ScopeRow {
    const char* ime;
    bool start;
    bool end;
};

// What a compiler's file has no word on. Each of these must be in it.
constexpr ScopeRow ScopeRows[] = {
    {"Field", false, false}, {"For", true, false},      {"While", true, false},  {"Repeat", true, false},
    {"Type", true, false},   {"Function", true, false}, {"Select", true, false}, {"If", true, false},
    {"Next", false, true},   {"Wend", false, true},     {"Until", false, true},  {"Forever", false, true},
    {"End", false, true},    {"Then", false, true},     {"Else", false, true},   {"EndIf", false, true},
    {"Case", true, true},    {"Default", true, true},   {"ElseIf", true, true},
};

struct WordRow {
    const char* upper;
    Word word;
};

constexpr WordRow WordRows[] = {
    {"FUNCTION", Word::Function}, {"END", Word::End},         {"TYPE", Word::Type},
    {"FIELD", Word::Field},       {"DIM", Word::Dim},         {"GLOBAL", Word::Global},
    {"LOCAL", Word::Local},       {"CONST", Word::Const},     {"INCLUDE", Word::Include},
    {"STOP", Word::Stop},         {"SELECT", Word::Select},   {"IF", Word::If},
    {"THEN", Word::Then},         {"ELSE", Word::Else},       {"ELSEIF", Word::ElseIf},
    {"CASE", Word::Case},         {"DEFAULT", Word::Default}, {"NEW", Word::New},
    {"EACH", Word::Each},         {"FIRST", Word::First},     {"LAST", Word::Last},
    {"GOTO", Word::Goto},         {"GOSUB", Word::Gosub},     {"RESTORE", Word::Restore},
    {"OBJECT", Word::Object},
};

Message Warning(std::string text) { return {std::move(text), MessageIcon::Exclamation}; }

ClsBBFunkcija* Find(ClsCompiler& compiler, const char* ime) {
    const std::string upper = UCase(ime);
    return compiler.bbFunkcija(static_cast<std::uint8_t>(upper[0])).Find(upper);
}

void SetFlags(ClsCompiler& compiler) {
    for (const ScopeRow& row : ScopeRows) {
        ClsBBFunkcija* keyword = Find(compiler, row.ime);
        if (keyword == nullptr) throw Failure(FailureMissingKey, std::string("Missing keyword: ") + row.ime);
        keyword->IsScope = true;
        keyword->IsStartScope = row.start;
        keyword->IsEndScope = row.end;
    }
    for (const WordRow& row : WordRows)
        if (ClsBBFunkcija* keyword = Find(compiler, row.upper)) keyword->word = row.word;
}

// The lines of a text, whichever line ends it has.
std::vector<std::string_view> Lines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        lines.push_back(text.substr(0, end));
        const bool pair = text.substr(end, 2) == "\r\n";
        text.remove_prefix(std::min(text.size(), end + (pair ? 2 : 1)));
    }
    return lines;
}

} // namespace

std::string ClsCompiler::Folder() const {
    const std::string disk = CollapseSeparators(ToDisk(Path));
    const bool absolute = !disk.empty() && (disk[0] == '/' || disk.find(':') != std::string::npos);
    return absolute ? disk : AppPath(disk);
}

KeywordDictionary& ClsCompiler::bbFunkcija(int code) {
    const int bucket = code - FirstKeywordCode;
    if (bucket < 0 || bucket >= KeywordBuckets) throw Failure(FailureOutOfRange, "Subscript out of range");
    auto& dictionary = dictionaries_[static_cast<std::size_t>(bucket)];
    if (!dictionary) dictionary = std::make_shared<KeywordDictionary>();
    return *dictionary;
}

void ClsCompiler::bbFunkcija(int code, std::shared_ptr<ClsBBFunkcija> keyword) {
    bbFunkcija(code).Add(std::move(keyword));
}

bool ClsCompiler::LoadKeywords() {
    return Guarded("LoadKeywords", "ClsCompiler", false, [&] {
        for (int code = FirstKeywordCode; code < FirstKeywordCode + KeywordBuckets; ++code)
            bbFunkcija(code).Clear();
        KeywordsLoaded = false;

        const std::string file = AppPath("conf\\" + Name + ".lng");
        if (gHost.files->Kind(file) != PathKind::File) {
            gHost.dialogs->Show(Warning("Cannot load keywords file for compiler " + Name +
                                        " !\r\n  Please Refresh Definitions for this compiler..."));
            return false;
        }
        const std::string text = gHost.files->Read(file);
        if (text.size() < SmallestKeywordFile) {
            gHost.dialogs->Show(Warning("Invalid Keywords file for this compiler!"));
            return false;
        }
        for (const std::string_view line : Lines(text)) {
            auto keyword = ReadKeyword(TrimBlanks(line));
            const int code = static_cast<std::uint8_t>(UCase(keyword->Ime.substr(0, 1))[0]);
            bbFunkcija(code, std::move(keyword));
        }
        SetFlags(*this);
        KeywordsLoaded = true;
        // Float# reads as a keyword with its suffix.
        if (ClsBBFunkcija* keyword = Find(*this, "Float")) keyword->Tip = 2;
        return true;
    });
}

bool ClsCompiler::SetDefaultKeywords() {
    return Guarded("SetDefaultKeywords", "ClsCompiler", false, [&] {
        const bool loaded = KeywordsLoaded || LoadKeywords();
        Refused = !loaded;
        // Half a vocabulary is better than none, and worse than the one in use.
        if (!loaded && KeywordTable[0]) return false;
        for (int bucket = 0; bucket < KeywordBuckets; ++bucket) {
            bbFunkcija(bucket + FirstKeywordCode);
            KeywordTable[static_cast<std::size_t>(bucket)] = dictionaries_[static_cast<std::size_t>(bucket)];
        }
        return loaded;
    });
}
