// Joins the lines of a program.
#include "SourceGenerator.h"

#include "ProgramWriter.h"

namespace generator {

std::string generate(const GeneratorOptions& options) {
    const std::string lineEnd = options.lf ? "\n" : "\r\n";
    std::string text;
    for (const std::string& line : ProgramWriter(options).write()) text += line + lineEnd;
    return text;
}

}
