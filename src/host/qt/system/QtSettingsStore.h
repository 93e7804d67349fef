// The settings store in one INI file, shared by all instances of the program.
#pragma once

#include "host/SettingsStore.h"

#include <QString>
#include <functional>
#include <map>
#include <memory>

class QSettings;

class QtSettingsStore : public SettingsStore {
public:
    // Called once, with a text for the user, when the file could not be read and was put aside.
    using Notice = std::function<void(const std::string& text)>;

    // An empty path is zolto/Zolto.conf in the user's configuration folder.
    explicit QtSettingsStore(const std::string& path = {}, const Notice& notice = {});
    ~QtSettingsStore() override;

    std::string Get(const std::string& section, const std::string& key,
                    const std::string& byDefault) override;
    void Save(const std::string& section, const std::string& key, const std::string& text) override;
    void Delete(const std::string& section, const std::string& key) override;

private:
    void FindOtherSpellings();
    QString KeyFor(const QString& folded) const;

    std::unique_ptr<QSettings> settings_;
    std::map<QString, QString> asWritten_; // maps a folded key to the key as spelled in the file
};
