// libFuzzer target: the JASC palette reader on arbitrary bytes.
#include "fuzz_main.h"
#include "paint/jascpalette.h"

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    tf::fuzz::startQt();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const tf::JascPalette p =
        tf::readJascPalette(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    if (p.entries.size() > 256)
        __builtin_trap();
    return 0;
}
