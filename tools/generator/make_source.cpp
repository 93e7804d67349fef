// make_source --lines N [--seed S] [--functions N] [--lf] [--output FILE]: writes a generated program.
// Without --output it goes to standard output.
#include "SourceGenerator.h"

#include <charconv>
#include <fstream>
#include <iostream>
#include <string_view>

namespace {

template <class Number>
bool readNumber(std::string_view text, Number& number) {
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end && !text.empty();
}

int usage() {
    std::cerr << "usage: make_source --lines N [--seed S] [--functions N] [--lf] [--output FILE]\n";
    return 2;
}

}

int main(int argc, char** argv) {
    generator::GeneratorOptions options;
    std::string output;
    for (int i = 1; i < argc; ++i) {
        const std::string_view name = argv[i];
        if (name == "--lf") {
            options.lf = true;
            continue;
        }
        if (++i == argc) return usage();
        const std::string_view value = argv[i];
        if (name == "--output")
            output = value;
        else if (name == "--lines"  ? !readNumber(value, options.lines)
                 : name == "--seed" ? !readNumber(value, options.seed)
                                    : name != "--functions" || !readNumber(value, options.functions))
            return usage();
    }
    const std::string text = generator::generate(options);
    if (output.empty()) {
        std::cout << text << std::flush;
        return std::cout ? 0 : 1;
    }
    std::ofstream file(output, std::ios::binary);
    file << text;
    file.close();
    if (!file) std::cerr << "make_source: cannot write " << output << '\n';
    return file ? 0 : 1;
}
