// The single instance of a user, and the channel on which a second start hands over its command line.
#pragma once

#include "host/Instances.h"

#include <QLocalServer>
#include <QLockFile>
#include <QString>
#include <memory>

class QtInstances : public Instances {
public:
    // The folder holds the lock and the sockets; empty: the user's runtime folder.
    explicit QtInstances(const QString& folder = {});
    ~QtInstances() override;

    bool AnotherRuns() override;
    // The name is the process id, a colon and the socket's path, so it reads as a number that isn't 0.
    // Empty when no channel could be opened.
    std::string Publish(std::function<void(const std::string&)> received) override;
    void WaitForPublish() override;
    bool Send(const std::string& handle, const std::string& text) override;
    void Withdraw() override;

private:
    QString folder_;
    std::unique_ptr<QLockFile> lock_;
    std::unique_ptr<QLocalServer> server_;
};
