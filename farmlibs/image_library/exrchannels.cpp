#include "exrchannels.h"

#include <ImfChannelList.h>
#include <ImfPartType.h>

#include <algorithm>

namespace TImageLibrary {

namespace {

constexpr const char *kColors[] = {"B", "G", "R"};

/// Whether the channels of a prefix are luminance and chroma as the format describes them, and no colour beside.
bool isChroma(const Imf::ChannelList &channels, const std::string &prefix)
{
    const auto names = ChromaNames::of(prefix + 'R');
    const Imf::Channel *luma = channels.findChannel(names.luma);
    const Imf::Channel *redness = channels.findChannel(names.redness);
    const Imf::Channel *blueness = channels.findChannel(names.blueness);
    const bool hasColor = std::any_of(std::begin(kColors), std::end(kColors), [&](const char *color) {
        return channels.findChannel(prefix + color) != nullptr;
    });
    if (!luma || !redness || !blueness || hasColor)
        return false;
    const auto isSampled = [](const Imf::Channel *channel, int step) {
        return channel->xSampling == step && channel->ySampling == step;
    };
    return isSampled(luma, 1)
        && ((isSampled(redness, 2) && isSampled(blueness, 2))
            || (isSampled(redness, 1) && isSampled(blueness, 1)));
}

} // namespace

ChromaNames ChromaNames::of(const std::string &channel)
{
    const std::string prefix = channel.substr(0, channel.size() - 1);
    return {prefix + 'Y', prefix + "RY", prefix + "BY"};
}

bool isDeep(const Imf::Header &header)
{
    return header.hasType() && (header.type() == Imf::DEEPSCANLINE || header.type() == Imf::DEEPTILE);
}

std::vector<ExrChannel> channelsOf(const Imf::Header &header, int part)
{
    const Imf::ChannelList &channels = header.channels();
    const bool deep = isDeep(header);
    std::vector<ExrChannel> offered;
    if (deep && !(channels.findChannel("Z") && channels.findChannel("A")))
        return offered;
    for (auto channel = channels.begin(); channel != channels.end(); ++channel) {
        const std::string name = channel.name();
        const Imf::Channel &details = channel.channel();
        // Numbers of objects have no sum.
        if (deep && details.type == Imf::UINT)
            continue;
        offered.push_back({{},
                           name,
                           part,
                           details.type,
                           {details.xSampling, details.ySampling},
                           deep ? ExrOrigin::Deep : ExrOrigin::Stored});
    }
    for (auto channel = channels.begin(); channel != channels.end() && !deep; ++channel) {
        const std::string name = channel.name();
        const std::string prefix = name.substr(0, name.size() - 1);
        if (!(name == "Y" || name.ends_with(".Y")) || !isChroma(channels, prefix))
            continue;
        const auto names = ChromaNames::of(name);
        std::erase_if(offered, [&names](const ExrChannel &other) {
            return other.name == names.luma || other.name == names.redness || other.name == names.blueness;
        });
        for (const char *color : kColors)
            offered.push_back({{}, prefix + color, part, Imf::HALF, {1, 1}, ExrOrigin::Chroma});
    }
    return offered;
}

} // namespace TImageLibrary
