// Files on the disk of this host.
#pragma once

#include "host/Files.h"

class QtFiles : public Files {
public:
    PathKind Kind(const std::string& path) override;
    std::string Identity(const std::string& path) override;
    std::string Find(const std::string& path) override;
    std::string Read(const std::string& path) override;
    void Write(const std::string& path, std::string_view bytes) override;
    void Append(const std::string& path, std::string_view bytes) override;
    void Remove(const std::string& path) override;
    void Rename(const std::string& from, const std::string& to) override;
    void Copy(const std::string& from, const std::string& to) override;
    void MakeFolders(const std::string& path) override;
    std::vector<std::string> List(const std::string& folder) override;
    long long Size(const std::string& path) override;
    void OpenWithDesktop(const std::string& path) override;
};
