#include <system/largememory.h>

#include <cstdlib>

#include <sys/mman.h>

void *takeLargeMemory(std::size_t size)
{
#ifdef MADV_HUGEPAGE
    constexpr std::size_t kPage = std::size_t(2) << 20;
    // The last page is a large one only where hardly any of it is left over.
    constexpr std::size_t kWaste = 16;
    const std::size_t rest = size % kPage;
    const std::size_t rounded = rest > 0 && (kPage - rest) <= size / kWaste ? size - rest + kPage : size;
    const std::size_t large = rounded / kPage * kPage;
    if (large > 0) {
        void *memory = nullptr;
        if (posix_memalign(&memory, kPage, rounded) != 0)
            return nullptr;
        madvise(memory, large, MADV_HUGEPAGE);
        return memory;
    }
#endif
    return std::malloc(size);
}
