// The settings store in one INI file. A file that cannot be read is put aside before the first write,
// because the library below would write a new one over it.
#include "host/qt/system/QtSettingsStore.h"

#include "host/Text.h"
#include "host/qt/system/OrphanedLock.h"
#include "host/qt/system/QtText.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace {

QString Folded(const std::string& section, const std::string& key) {
    return Shown(LCase(section)) + '/' + Shown(LCase(key));
}

// This section is how instances find each other, so it is exchanged with the disk at once.
bool IsShared(const std::string& section) { return EqualNoCase(section, "Instance"); }

bool Readable(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists()) return true;
    if (!info.isFile() || !info.isReadable()) return false;
    const QSettings probe(path, QSettings::IniFormat);
    return probe.status() == QSettings::NoError;
}

// Moves the file to a free name derived from its own. Returns that name, empty if the move failed.
QString PutAside(const QString& path) {
    for (int number = 1; number < 1000; ++number) {
        const QString aside = path + ".damaged-" + QString::number(number);
        if (QFileInfo::exists(aside)) continue;
        return QFile::rename(path, aside) ? aside : QString();
    }
    return {};
}

QString UsablePath(const QString& path, const QtSettingsStore::Notice& notice) {
    if (Readable(path)) return path;
    const QString aside = PutAside(path);
    if (notice)
        notice(aside.isEmpty()
                   ? "The settings file " + PathBytes(path) +
                         " cannot be read. Settings are not kept in this run."
                   : "The settings file " + PathBytes(path) + " could not be read. It was kept as " +
                         PathBytes(aside) + ", and the program starts with its default settings.");
    // An empty file name makes the library keep everything in memory.
    return aside.isEmpty() ? QString() : path;
}

}

QtSettingsStore::QtSettingsStore(const std::string& path, const Notice& notice) {
    QString file = PathText(path);
    if (path.empty())
        file = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/zolto/Zolto.conf";
    RemoveOrphanedLock(file + ".lock");
    file = UsablePath(file, notice);
    if (!file.isEmpty()) QDir().mkpath(QFileInfo(file).path());
    settings_ = std::make_unique<QSettings>(file, QSettings::IniFormat);
    FindOtherSpellings();
}

QtSettingsStore::~QtSettingsStore() = default;

// Keys written by hand may have any case, so they are mapped to the folded keys that the program writes.
void QtSettingsStore::FindOtherSpellings() {
    for (const QString& key : settings_->allKeys())
        if (const QString folded = Folded(Typed(key.section('/', 0, 0)), Typed(key.section('/', 1)));
            folded != key)
            asWritten_[folded] = key;
}

QString QtSettingsStore::KeyFor(const QString& folded) const {
    const auto at = asWritten_.find(folded);
    return at == asWritten_.end() || settings_->contains(folded) ? folded : at->second;
}

std::string QtSettingsStore::Get(const std::string& section, const std::string& key,
                                 const std::string& byDefault) {
    if (IsShared(section)) settings_->sync();
    const QVariant value = settings_->value(KeyFor(Folded(section, key)));
    return value.isValid() ? value.toByteArray().toStdString() : byDefault;
}

void QtSettingsStore::Save(const std::string& section, const std::string& key, const std::string& text) {
    // What is no UTF-8 is kept as bytes, so that a path comes back as it went in.
    const QString name = KeyFor(Folded(section, key));
    if (IsUtf8(text))
        settings_->setValue(name, QString::fromStdString(text));
    else
        settings_->setValue(name, QByteArray::fromStdString(text));
    if (IsShared(section)) settings_->sync();
}

void QtSettingsStore::Delete(const std::string& section, const std::string& key) {
    settings_->remove(KeyFor(Folded(section, key)));
}
