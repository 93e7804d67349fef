// The entry of one fuzzer: which reader it feeds is decided when it is built.
#include "Readers.h"

#include <QApplication>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* count, char*** values) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(*count, *values); // never ended: the end of the process comes in no order
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Reader* const reader = FindReader(ZOLTO_FUZZ_READER);
    const std::string fault = reader->read(std::string(reinterpret_cast<const char*>(data), size));
    if (fault.empty()) return 0;
    std::fprintf(stderr, "%s: %s\n", reader->name, fault.c_str());
    std::abort();
}
