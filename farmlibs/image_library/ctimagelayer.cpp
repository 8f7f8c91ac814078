#include "ctimagelayer.h"

#include <algorithm>
#include <utility>

namespace TImageLibrary {

CTImageLayer::CTImageLayer(std::string name, std::vector<CTImageChannel> channels)
    : m_name(std::move(name))
    , m_channels(std::move(channels))
{ }

const CTImageChannel *CTImageLayer::GetChannel(const char *name) const
{
    const auto found =
        std::find_if(m_channels.begin(), m_channels.end(), [name](const CTImageChannel &channel) {
            return name && channel.GetChannelName() == name;
        });
    return found == m_channels.end() ? nullptr : &*found;
}

} // namespace TImageLibrary
