#include "imageinput.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const ImageInput input(".exr");
    input.load(data, size);
    return 0;
}
