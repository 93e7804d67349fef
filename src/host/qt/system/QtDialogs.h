// Messages and questions in the desktop's own dialogs, above the window that is active.
#pragma once

#include "host/Dialogs.h"

#include <QString>

class QtDialogs : public Dialogs {
public:
    MessageAnswer Show(const Message& message) override;
    std::vector<std::string> OpenFiles(const FileQuestion& question) override;
    std::string SaveFile(const FileQuestion& question) override;
    std::string Folder(const std::string& title, const std::string& start) override;
    std::optional<std::string> Input(const std::string& prompt, const std::string& title,
                                     const std::string& preset) override;

private:
    QString lastFolder_;
};

// "Sources (*.bb)|*.bb;*.inc|All|*.*" as the toolkit writes it: "Sources (*.bb *.inc);;All (*)".
QString ToolkitFilter(const std::string& filter);
