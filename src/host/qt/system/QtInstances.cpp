// The single instance of a user: a lock file decides who is first, a local socket transfers one text.
#include "host/qt/system/QtInstances.h"

#include "host/qt/system/OrphanedLock.h"
#include "host/qt/system/QtText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QThread>
#include <unistd.h>

namespace {

constexpr int PatienceMilliseconds = 2000;
constexpr int LastWordMilliseconds = 500;
constexpr unsigned long PublishMilliseconds = 50;
constexpr qint64 LongestText = 1 << 20;

// A folder that only this user can enter.
QString RuntimeFolder() {
    QString base = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (base.isEmpty() || !QFileInfo(base).isWritable()) base = QDir::tempPath();
    const QString folder = base + "/zolto-" + QString::number(geteuid());
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return folder;
}

// Collects what one sender has to say, and hands it on when the sender hangs up.
void Receive(QLocalSocket* socket, const std::function<void(const std::string&)>& received) {
    const auto text = std::make_shared<QByteArray>();
    const auto collect = [socket, text] { *text += socket->read(LongestText - text->size()); };
    QObject::connect(socket, &QLocalSocket::readyRead, socket, collect);
    QObject::connect(socket, &QLocalSocket::disconnected, socket, [socket, text, collect, received] {
        collect();
        socket->deleteLater();
        if (!text->isEmpty()) received(text->toStdString());
    });
    collect();
}

}

QtInstances::QtInstances(const QString& folder) : folder_(folder.isEmpty() ? RuntimeFolder() : folder) {}

QtInstances::~QtInstances() { QtInstances::Withdraw(); }

bool QtInstances::AnotherRuns() {
    if (lock_ && lock_->isLocked()) return false;
    const QString path = folder_ + "/instance.lock";
    RemoveOrphanedLock(path);
    lock_ = std::make_unique<QLockFile>(path);
    // The lock of a process that is gone counts as stale, that of a living one never does.
    lock_->setStaleLockTime(0);
    return !lock_->tryLock(0) && lock_->error() == QLockFile::LockFailedError;
}

std::string QtInstances::Publish(std::function<void(const std::string&)> received) {
    Withdraw();
    const QString id = QString::number(QCoreApplication::applicationPid());
    const QString path = folder_ + '/' + id + ".socket";
    // The name contains this process id, so an existing socket was left by an ended process.
    QLocalServer::removeServer(path);
    server_ = std::make_unique<QLocalServer>();
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(server_.get(), &QLocalServer::newConnection, server_.get(),
                     [server = server_.get(), call = std::move(received)] {
                         while (QLocalSocket* socket = server->nextPendingConnection()) Receive(socket, call);
                     });
    if (!server_->listen(path)) return {};
    return Typed(id) + ":" + PathBytes(path);
}

void QtInstances::WaitForPublish() { QThread::msleep(PublishMilliseconds); }

bool QtInstances::Send(const std::string& handle, const std::string& text) {
    const auto colon = handle.find(':');
    if (colon == handle.npos) return false;
    QLocalSocket socket;
    socket.connectToServer(PathText(handle.substr(colon + 1)));
    if (!socket.waitForConnected(PatienceMilliseconds)) return false;
    socket.write(text.data(), static_cast<qint64>(text.size()));
    while (socket.bytesToWrite() > 0)
        if (!socket.waitForBytesWritten(PatienceMilliseconds)) return false;
    socket.disconnectFromServer();
    return true;
}

void QtInstances::Withdraw() {
    if (!server_) return;
    QFile::remove(server_->fullServerName()); // no other instance finds the socket from here on
    // A text that arrived before counts as delivered for its sender, so it is handled.
    for (bool nobody = false; server_->isListening() && !nobody;) server_->waitForNewConnection(0, &nobody);
    for (QLocalSocket* socket : server_->findChildren<QLocalSocket*>())
        if (socket->state() == QLocalSocket::ConnectedState)
            socket->waitForDisconnected(LastWordMilliseconds);
    server_.reset();
}
