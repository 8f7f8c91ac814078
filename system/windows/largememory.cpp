#include <system/largememory.h>

#include <cstdlib>

// Large pages take a privilege there that users do not have.
void *takeLargeMemory(std::size_t size)
{
    return std::malloc(size);
}
