// One program for each format, which libFuzzer runs: fuzz-mt940 and so on.

#include "modFuzz.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const modFuzz::cTarget* const target = modFuzz::Find(QStringLiteral(FUZZ_TARGET));
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString fault = modFuzz::Fault(*target, bytes, static_cast<int>(size % modFuzz::optionSets));
    if (!fault.isEmpty()) {
        std::fprintf(stderr, "%s\n", fault.toUtf8().constData());
        std::abort();
    }
    return 0;
}
