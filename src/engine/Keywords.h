// The words of a compiler's language: keyword records, and the dictionaries that hold them by first letter.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// One keyword or built-in command.
struct ClsBBFunkcija {
    std::string Ime;           // the spelling that the editor enforces
    std::uint8_t Tip = 1;      // value type of the result
    std::uint8_t VlezNum = 0;  // number of parameters, optional ones too
    bool ImaZagradi = false;   // takes brackets
    std::string Help;          // the definition line
    bool IsStartScope = false; // opens an indentation level
    bool IsEndScope = false;   // closes an indentation level
    bool IsScope = false;      // belongs to the block structure
    bool MoraZagradi = false;  // brackets are obligatory

    // Which of the structure words this is, so that the parser need not compare texts.
    enum class Word : std::uint8_t {
        Other,
        Function,
        End,
        Type,
        Field,
        Dim,
        Global,
        Local,
        Const,
        Include,
        Stop,
        Select,
        If,
        Then,
        Else,
        ElseIf,
        Case,
        Default,
        New,
        Each,
        First,
        Last,
        Goto,
        Gosub,
        Restore,
        Object
    };
    Word word = Word::Other;

    // The text of parameter `ParBroj` (from 1); empty beyond the last. Writing grows the list.
    const std::string& ParametarTekst(int ParBroj) const;
    void ParametarTekst(int ParBroj, const std::string& tekst);

private:
    std::vector<std::string> parameters_;
};

// The keywords that share a first letter, by their text without regard to case.
class KeywordDictionary {
public:
    // Null for an unknown word. `upper` is upper-case.
    const ClsBBFunkcija* Find(std::string_view upper) const;
    ClsBBFunkcija* Find(std::string_view upper);
    // Fails with FailureDuplicateKey for a second definition of one text.
    void Add(std::shared_ptr<ClsBBFunkcija> keyword);
    void Clear() { words_.clear(); }
    std::size_t Count() const { return words_.size(); }

    template <class Visit>
    void ForEach(Visit visit) const {
        for (const auto& entry : words_) visit(*entry.second);
    }

private:
    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };
    std::unordered_map<std::string, std::shared_ptr<ClsBBFunkcija>, TextHash, std::equal_to<>> words_;
};

constexpr int FirstKeywordCode = 60;
constexpr int KeywordBuckets = 68;
using Vocabulary = std::array<std::shared_ptr<KeywordDictionary>, KeywordBuckets>;

// The current vocabulary, shared with the active compiler. Written by ClsCompiler::SetDefaultKeywords.
extern Vocabulary KeywordTable;

// The keyword of that text, whatever its case; null when it is none. `upper` is upper-case.
const ClsBBFunkcija* FindKeyword(std::string_view upper);
