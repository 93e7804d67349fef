// A short list of recently used texts.
#include "documents/ClsMRU.h"

#include "documents/StoredList.h"
#include "host/Dialogs.h"
#include "host/Failure.h"
#include "host/Host.h"
#include "host/Text.h"

#include <algorithm>

ClsMRU MRUFind("MRUFind");
ClsMRU MRUReplace("MRUReplace");
ClsMRU MRUCommandLine("MRUCommandLine");

std::vector<std::string>::iterator ClsMRU::Find(const std::string& text) {
    return std::find_if(items_.begin(), items_.end(),
                        [&](const std::string& item) { return EqualNoCase(item, text); });
}

void ClsMRU::Add(const std::string& text) {
    if (items_.empty()) return items_.push_back(text);
    const auto known = Find(text);
    if (AsFavorites) {
        if (Count() >= Number)
            gHost.dialogs->Show({"Maximum number of files reached !\r\nFile is not added to the list.",
                                 MessageIcon::Critical});
        else if (known == items_.end())
            items_.push_back(text);
        return;
    }
    if (known != items_.end()) items_.erase(known);
    items_.insert(items_.begin(), text);
    while (Count() > std::max(1, Number)) items_.pop_back();
}

void ClsMRU::Remove(const std::string& text) {
    if (const auto known = Find(text); known != items_.end()) items_.erase(known);
}

const std::string& ClsMRU::IndexItem(int index) const {
    if (index < 1 || index > Count()) throw Failure(FailureOutOfRange, "Subscript out of range");
    return items_[static_cast<std::size_t>(index) - 1];
}

void ClsMRU::Load() {
    const std::vector<std::string> stored = ReadStoredList(Name + "MRU");
    if (stored.empty()) return;
    items_.clear();
    for (const std::string& text : stored)
        if (Count() < std::max(1, Number) && Find(text) == items_.end()) items_.push_back(text);
}

void ClsMRU::Save() const { WriteStoredList(Name + "MRU", items_); }
