#include "exrplan.h"

#include "imageerror.h"

#include <ImathBox.h>
#include <ImathFun.h>

#include <algorithm>
#include <cstdint>
#include <utility>

namespace TImageLibrary {

namespace {

/// What a display window may ask for where no data lies: a blank frame of a sequence stores a single pixel, in the largest
/// pictures that are usual a colour of halves in 8K.
constexpr std::uint64_t kBlankBytes = std::uint64_t(8192) * 4320 * 4 * 2;

std::vector<ExrChannel> chosenChannels(const std::vector<ExrChannel> &all, const std::set<std::string> &names)
{
    std::vector<ExrChannel> chosen;
    std::copy_if(all.begin(), all.end(), std::back_inserter(chosen),
                 [&names](const ExrChannel &channel) { return names.contains(channel.layer); });
    if (!chosen.empty())
        return chosen;
    for (const char *name : {"R", "Y"}) {
        const auto found = std::find_if(all.begin(), all.end(),
                                        [name](const ExrChannel &channel) { return channel.layer == name; });
        if (found != all.end())
            return {*found};
    }
    return {all.front()};
}

/// Halves hold no wider sample; a float holds the others as well as GL can show them.
Imf::PixelType commonType(const std::vector<ExrChannel> &channels)
{
    const bool wide = std::any_of(channels.begin(), channels.end(),
                                  [](const ExrChannel &channel) { return channel.type != Imf::HALF; });
    return wide ? Imf::FLOAT : Imf::HALF;
}

/// A luminance without its chroma is a grey as other formats have it: one without a name.
std::string planeName(const std::string &layer)
{
    return layer == "Y" ? std::string() : layer;
}

struct Shape {
    ExrSpan columns;
    ExrSpan rows;
    TPlaneFormat format;
    bool isCovered = false; ///< by the data window
};

Shape shapeOf(const ExrFile &file, const ExrChannel &channel, Imf::PixelType type)
{
    const Imath::Box2i &display = file.header(channel.part).displayWindow();
    const Imath::Box2i &data = file.header(channel.part).dataWindow();
    Shape shape;
    shape.columns = ExrSpan::within(display.min.x, display.max.x, channel.sampling.x);
    shape.rows = ExrSpan::within(display.min.y, display.max.y, channel.sampling.y);
    if (shape.columns.count <= 0 || shape.rows.count <= 0)
        throw ImageError(TLoadFailure::Damaged, "no samples in channel " + channel.name);
    shape.format = {shape.columns.count, shape.rows.count, type == Imf::HALF ? 2 : 4, true, 1};
    if (channel.type == Imf::UINT)
        shape.format.stored = {sizeof(std::uint32_t), false, 1};
    shape.isCovered = data.intersects(display.min) && data.intersects(display.max);
    return shape;
}

} // namespace

ExrSpan ExrSpan::within(int min, int max, int sampling)
{
    const int first = -Imath::divp(-min, sampling);
    return {first, Imath::divp(max, sampling) - first + 1};
}

ExrSpan ExrSpan::common(const ExrSpan &a, const ExrSpan &b)
{
    const int first = std::max(a.first, b.first);
    return {first, std::max(0, std::min(a.end(), b.end()) - first)};
}

std::vector<ExrTarget> planPlanes(const ExrFile &file, const std::set<std::string> &names,
                                  bool mayBeIncomplete)
{
    const std::vector<ExrChannel> channels = chosenChannels(file.channels(), names);
    const Imf::PixelType type = commonType(channels);

    std::vector<Shape> shapes;
    std::uint64_t bytes = 0;
    std::uint64_t expansion = 1;
    for (const ExrChannel &channel : channels) {
        if (!mayBeIncomplete)
            file.checkComplete(channel.part);
        file.checkChunks(channel.part);
        shapes.push_back(shapeOf(file, channel, type));
        bytes += shapes.back().format.byteSize();
        // A half that becomes a float doubles.
        expansion = std::max(expansion, file.expansion(channel.part) * 2);
    }
    if (!file.source().canHold(bytes - std::min(bytes, kBlankBytes), expansion))
        throw ImageError(TLoadFailure::Damaged, "announces more pixels than the file can hold");

    std::vector<ExrTarget> targets;
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const auto fill = shapes[i].isCovered ? CTImageChannel::Fill::None : CTImageChannel::Fill::Zero;
        targets.push_back({channels[i], type, shapes[i].columns, shapes[i].rows,
                           CTImageChannel(planeName(channels[i].layer), shapes[i].format, fill)});
    }
    return targets;
}

} // namespace TImageLibrary
