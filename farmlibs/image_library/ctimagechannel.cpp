#include "ctimagechannel.h"

#include <system/largememory.h>

#include <new>
#include <utility>

namespace TImageLibrary {

CTImageChannel::CTImageChannel(std::string name, const TPlaneFormat &format, Fill fill)
    : m_name(std::move(name))
    , m_format(format)
{
    // Zeroed pages that the file does not fill are never touched, and a plane that it fills is not zeroed first.
    void *data = fill == Fill::Zero ? std::calloc(format.byteSize(), 1) : takeLargeMemory(format.byteSize());
    if (!data)
        throw std::bad_alloc();
    m_data.reset(static_cast<std::byte *>(data));
}

} // namespace TImageLibrary
