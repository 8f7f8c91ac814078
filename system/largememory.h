#pragma once

#include <cstddef>

/// Takes memory that is about to be filled as a whole, to be given back by std::free(); null when there is none. The system
/// gives it in large pages where it can, in a fraction of the time in which small ones come one by one.
void *takeLargeMemory(std::size_t size);
