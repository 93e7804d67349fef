// Looking words up by first letter, without regard to case.
#include "engine/Keywords.h"

#include "host/Failure.h"
#include "host/Text.h"

#include <utility>

Vocabulary KeywordTable;

const std::string& ClsBBFunkcija::ParametarTekst(int ParBroj) const {
    static const std::string none;
    const bool known = ParBroj >= 1 && static_cast<std::size_t>(ParBroj) <= parameters_.size();
    return known ? parameters_[static_cast<std::size_t>(ParBroj) - 1] : none;
}

void ClsBBFunkcija::ParametarTekst(int ParBroj, const std::string& tekst) {
    if (ParBroj < 1) throw Failure(FailureOutOfRange, "Subscript out of range");
    if (static_cast<std::size_t>(ParBroj) > parameters_.size())
        parameters_.resize(static_cast<std::size_t>(ParBroj));
    parameters_[static_cast<std::size_t>(ParBroj) - 1] = tekst;
}

const ClsBBFunkcija* KeywordDictionary::Find(std::string_view upper) const {
    const auto at = words_.find(upper);
    return at == words_.end() ? nullptr : at->second.get();
}

ClsBBFunkcija* KeywordDictionary::Find(std::string_view upper) {
    const auto at = words_.find(upper);
    return at == words_.end() ? nullptr : at->second.get();
}

void KeywordDictionary::Add(std::shared_ptr<ClsBBFunkcija> keyword) {
    std::string upper = UCase(keyword->Ime);
    if (!words_.emplace(std::move(upper), std::move(keyword)).second)
        throw Failure(FailureDuplicateKey,
                      "This key is already associated with an element of this collection");
}

const ClsBBFunkcija* FindKeyword(std::string_view upper) {
    if (upper.empty()) return nullptr;
    const int bucket = static_cast<std::uint8_t>(upper[0]) - FirstKeywordCode;
    if (bucket < 0 || bucket >= KeywordBuckets) return nullptr;
    const auto& dictionary = KeywordTable[static_cast<std::size_t>(bucket)];
    return dictionary ? std::as_const(*dictionary).Find(upper) : nullptr;
}
