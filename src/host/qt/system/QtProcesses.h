// Child processes of this host.
#pragma once

#include "host/Processes.h"

#include <sys/types.h>
#include <vector>

struct SpawnRequest;

class QtProcesses : public Processes {
public:
    // Writing to a child that is gone must be an error number, not the end of this process.
    QtProcesses();

    std::unique_ptr<ChildProcess> Start(const ProcessStart& start, bool& pipeFailed,
                                        SystemError& error) override;
    SystemError StartDetached(const std::string& command) override;
    bool HasTerminal() override;
    SystemError StartInTerminal(const ProcessStart& start) override;
    bool RunIntoFile(const std::string& command, const std::string& target, int milliseconds) override;
    void SetEnvironment(const std::string& name, const std::string& value) override;

private:
    SystemError Release(SpawnRequest request);
    void ReapLeftAlone();

    std::vector<pid_t> leftAlone_; // children that nobody waits for
};
