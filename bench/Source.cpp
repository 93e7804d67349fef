// Generated sources.
#include "Source.h"

#include "SourceGenerator.h"
#include "documents/Mod_File.h"
#include "engine/DocumentRecord.h"
#include "host/DockStudio.h"
#include "host/Files.h"
#include "host/Host.h"

#include <filesystem>

std::string Source(int lines) {
    generator::GeneratorOptions options;
    options.lines = lines;
    return generator::generate(options);
}

std::string FileOf(int lines) {
    const std::string path =
        (std::filesystem::temp_directory_path() / ("zolto_bench_" + std::to_string(lines) + ".bb")).string();
    gHost.files->Write(path, Source(lines));
    return path;
}

void CloseActive() { gHost.dock->FindDocumentWindow(gActiveDoc->m_strDocumentWindowID)->SetVisible(false); }

OpenSource::OpenSource(int lines) : path_(FileOf(lines)) { Mod_File::OpenFile(path_); }

OpenSource::~OpenSource() {
    CloseActive();
    std::filesystem::remove(path_);
}
