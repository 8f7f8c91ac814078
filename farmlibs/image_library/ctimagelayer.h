#pragma once

#include "ctimagechannel.h"

#include <string>
#include <vector>

namespace TImageLibrary {

/// Holds a named layer of an image with its channels, at least one; owned by the image.
class CTImageLayer final {
public:
    /// `channels` must not be empty.
    CTImageLayer(std::string name, std::vector<CTImageChannel> channels);

    /// Gives the name, empty for the one layer of a format that has none.
    const std::string &GetLayerName() const { return m_name; }
    /// Finds a channel; null when there is none of that name.
    const CTImageChannel *GetChannel(const char *name) const;
    const CTImageChannel *GetDefaultChannel() const { return &m_channels.front(); }
    const std::vector<CTImageChannel> &GetChannels() const { return m_channels; }

private:
    std::string m_name;
    std::vector<CTImageChannel> m_channels;
};

} // namespace TImageLibrary
