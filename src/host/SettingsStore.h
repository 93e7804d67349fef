// The user's settings: text values by section and key. Sections and keys are compared without regard to case.
#pragma once

#include <string>

class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    // The value, or `byDefault` if the key is missing.
    virtual std::string Get(const std::string& section, const std::string& key,
                            const std::string& byDefault) = 0;
    virtual void Save(const std::string& section, const std::string& key, const std::string& text) = 0;
    virtual void Delete(const std::string& section, const std::string& key) = 0;
};
