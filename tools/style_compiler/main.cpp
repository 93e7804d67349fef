// style_compiler TABLE OUTPUT: makes a .style file from a text table.
// style_compiler --report TABLE: prints every measured contrast instead.
#include "StyleContrast.h"
#include "StyleFile.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>

namespace {

std::string readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw styles::StyleError("cannot be read");
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::string& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) throw styles::StyleError("cannot write " + path);
}

void print(std::FILE* to, const styles::Pairing& pairing) {
    std::fprintf(to, "%5.2f (least %.1f)  %s on %s\n", pairing.ratio, pairing.required, pairing.text.c_str(),
                 pairing.ground.c_str());
}

}

int main(int argc, char** argv) {
    const std::string first = argc > 1 ? argv[1] : "";
    if (argc != 3) {
        std::cerr << "usage: style_compiler TABLE OUTPUT | style_compiler --report TABLE\n";
        return 2;
    }
    const bool report = first == "--report";
    const std::string tablePath = report ? argv[2] : first;
    try {
        const styles::StyleTable table = styles::readStyleTable(readFile(tablePath));
        bool readable = true;
        for (const styles::Pairing& pairing : styles::measureContrast(table)) {
            if (report) print(stdout, pairing);
            if (pairing.passes()) continue;
            readable = false;
            if (!report) print(stderr, pairing);
        }
        if (!readable) throw styles::StyleError("contrast is too low");
        if (!report) writeFile(argv[2], styles::styleFileBytes(table));
    } catch (const styles::StyleError& error) {
        std::cerr << tablePath << ": " << error.what() << '\n';
        return 1;
    }
    return 0;
}
