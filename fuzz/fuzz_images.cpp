#include "imageinput.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // Everything but old Targa files is known by its first bytes.
    static const ImageInput input(".tga");
    input.load(data, size);
    return 0;
}
