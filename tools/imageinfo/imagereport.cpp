#include "imagereport.h"

#include <image_library/iimagecore.h>

#include <QtCore/QFloat16>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <memory>
#include <set>
#include <string>

using namespace TImageLibrary;

namespace {

/// Layers that are decoded together: one by one, each would decompress the whole of a file that holds many.
constexpr std::size_t kBatch = 8;

struct Destroy {
    void operator()(CTImage *image) const { IImageCore::DestroyImage(image); }
};
using Image = std::unique_ptr<CTImage, Destroy>;
using Names = std::set<std::string>;

struct Source {
    QByteArray path;
    const char *format = nullptr;

    Image load(const Names &names) const
    {
        return Image(IImageCore::Load(path.constData(), format, names, nullptr, nullptr));
    }
};

QString typeName(const CTImageChannel &channel)
{
    const bool isFloat = channel.GetChannelBitType() == 1;
    switch (channel.GetChannelBitDepth()) {
    case 1:
        return QStringLiteral("uint8");
    case 2:
        return isFloat ? QStringLiteral("half") : QStringLiteral("uint16");
    default:
        return isFloat ? QStringLiteral("float") : QStringLiteral("uint32");
    }
}

template <typename Sample>
void measure(const CTImageChannel &channel, ChannelReport &report)
{
    const auto *samples = static_cast<const Sample *>(channel.GetChannelData());
    const auto count = std::int64_t(report.width) * report.height * report.samples;
    double minimum = std::numeric_limits<double>::infinity();
    double maximum = -minimum;
    double sum = 0.0;
    for (std::int64_t i = 0; i < count; ++i) {
        const auto value = double(samples[i]);
        if (!std::isfinite(value)) {
            ++report.nonFinite;
            continue;
        }
        minimum = std::min(minimum, value);
        maximum = std::max(maximum, value);
        sum += value;
    }
    if (report.nonFinite == count)
        return;
    report.minimum = minimum;
    report.maximum = maximum;
    report.mean = sum / double(count - report.nonFinite);
}

ChannelReport inspect(const CTImageChannel &channel)
{
    ChannelReport report;
    report.name = QString::fromStdString(channel.GetChannelName());
    report.width = channel.GetChannelWidth();
    report.height = channel.GetChannelHeight();
    report.type = typeName(channel);
    report.samples = channel.GetChannelBitSamples();
    const bool isFloat = channel.GetChannelBitType() == 1;
    switch (channel.GetChannelBitDepth()) {
    case 1:
        measure<quint8>(channel, report);
        break;
    case 2:
        isFloat ? measure<qfloat16>(channel, report) : measure<quint16>(channel, report);
        break;
    default:
        isFloat ? measure<float>(channel, report) : measure<quint32>(channel, report);
        break;
    }
    return report;
}

bool holdsFloats(const CTImage &image)
{
    const CTImageChannel *channel = image.GetDefaultLayer()->GetDefaultChannel();
    return channel->GetChannelBitDepth() == 4 && channel->GetChannelBitType() == 1;
}

/// Adds the named layers to the report. Among layers that are loaded together a single float makes floats of the halves:
/// floats are looked for in ever smaller groups, until each stands alone.
bool inspectLayers(const Source &source, const Names &names, ImageReport &report)
{
    Image image = source.load(names);
    if (!image)
        return false;
    if (names.size() > 1 && holdsFloats(*image)) {
        image.reset();
        const auto middle = std::next(names.begin(), std::ptrdiff_t(names.size() / 2));
        return inspectLayers(source, Names(names.begin(), middle), report)
            && inspectLayers(source, Names(middle, names.end()), report);
    }
    report.width = std::max(report.width, int(image->GetWidth()));
    report.height = std::max(report.height, int(image->GetHeight()));
    report.premultiplied = image->GetIsPremultiplied();
    for (const std::string &name : names) {
        const CTImageLayer *layer = image->GetLayer(name.c_str());
        if (!layer)
            return false;
        LayerReport layerReport{QString::fromStdString(name), {}};
        for (const CTImageChannel &channel : layer->GetChannels())
            layerReport.channels.push_back(inspect(channel));
        report.layers.push_back(std::move(layerReport));
    }
    return true;
}

} // namespace

std::optional<ImageReport> inspectImage(const QString &path)
{
    const Source source{path.toUtf8(), IImageCore::Probe(path.toUtf8().constData())};
    Names names;
    if (!source.format || !IImageCore::LoadLayers(source.path.constData(), source.format, names))
        return std::nullopt;
    ImageReport report;
    report.format = QString::fromUtf8(source.format);
    while (!names.empty()) {
        const auto end = std::next(names.begin(), std::ptrdiff_t(std::min(kBatch, names.size())));
        if (!inspectLayers(source, Names(names.begin(), end), report))
            return std::nullopt;
        names.erase(names.begin(), end);
    }
    return report;
}
