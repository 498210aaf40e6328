// libFuzzer target: the GIF decoder on arbitrary bytes.
#include "fuzz_main.h"

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    tf::fuzz::startQt();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    tf::fuzz::decodeBoth(data, size, tf::decodeGif);
    return 0;
}
