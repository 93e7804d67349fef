// Lock files whose owner no longer exists.
#include "host/qt/system/OrphanedLock.h"

#include <QFile>
#include <QFileInfo>
#include <QThread>

void RemoveOrphanedLock(const QString& lock) {
    constexpr int Rounds = 10;
    constexpr int Milliseconds = 20;
    for (int round = 0; round < Rounds; ++round) {
        const QFileInfo info(lock);
        if (!info.exists() || info.size() > 0) return;
        QThread::msleep(Milliseconds);
    }
    QFile::remove(lock);
}
