#include "imagereport.h"

#include <helpers/imageextras.h>
#include <helpers/imagepointer.h>
#include <image_library/iimagecore.h>

#include <QtCore/QFloat16>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <set>
#include <string>
#include <utility>

using FarmHelpers::ImagePointer;
using namespace TImageLibrary;

namespace {

/// Layers that are decoded together: one by one, each would decompress the whole of a file that holds many.
constexpr std::size_t kBatch = 8;

using Names = std::set<std::string>;

struct Source {
    QByteArray path;
    const char *format = nullptr;

    ImagePointer load(const Names &names) const
    {
        return ImagePointer(IImageCore::Load(path.constData(), format, names, nullptr, nullptr));
    }
};

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

/// How samples of one kind are named and measured.
struct SampleType {
    std::int32_t depth;
    std::int32_t type;
    const char *name;
    void (*measure)(const CTImageChannel &channel, ChannelReport &report);
};

constexpr std::array<SampleType, 5> kSampleTypes{{{1, 0, "uint8", &measure<quint8>},
                                                  {2, 0, "uint16", &measure<quint16>},
                                                  {4, 0, "uint32", &measure<quint32>},
                                                  {2, 1, "half", &measure<qfloat16>},
                                                  {4, 1, "float", &measure<float>}}};

ChannelReport inspect(const CTImageChannel &channel)
{
    ChannelReport report;
    report.name = QString::fromStdString(channel.GetChannelName());
    report.width = channel.GetChannelWidth();
    report.height = channel.GetChannelHeight();
    report.samples = channel.GetChannelBitSamples();
    for (const SampleType &sample : kSampleTypes) {
        if (sample.depth != channel.GetChannelBitDepth() || sample.type != channel.GetChannelBitType())
            continue;
        report.type = QString::fromLatin1(sample.name);
        sample.measure(channel, report);
    }
    return report;
}

bool holdsFloats(const CTImage &image)
{
    const CTImageChannel *channel = image.GetDefaultLayer()->GetDefaultChannel();
    return channel->GetChannelBitDepth() == 4 && channel->GetChannelBitType() == 1;
}

/// Tells how much there is of a file that does not load as a whole; empty where that is nothing.
QString chunksOf(const Source &source, const Names &names)
{
    FarmHelpers::PartialLoad load;
    const std::pair<TLoadProgress, void *> progress(nullptr, nullptr);
    const ImagePointer image(
        FarmHelpers::loadPartial<IImageCore>(source.path.constData(), source.format, names, progress, load));
    if (!image || !load.isIncomplete())
        return {};
    return QStringLiteral(" (%1 of %2 chunks are sound)").arg(load.sound()).arg(load.chunks);
}

/// Adds the named layers to the report. Among layers that are loaded together a single float makes floats of the halves:
/// floats are looked for in ever smaller groups, until each stands alone.
bool inspectLayers(const Source &source, const Names &names, ImageReport &report)
{
    ImagePointer image = source.load(names);
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
    report.deep = report.deep || FarmHelpers::isDeep(*image);
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

std::optional<ImageReport> inspectImage(const QString &path, QString &reason)
{
    IImageCore::GetUniqueClass();
    const Source source{path.toUtf8(), IImageCore::Probe(path.toUtf8().constData())};
    Names names;
    bool loads = source.format && IImageCore::LoadLayers(source.path.constData(), source.format, names);
    ImageReport report;
    report.format = QString::fromUtf8(source.format);
    const Names all = names;
    while (loads && !names.empty()) {
        const auto end = std::next(names.begin(), std::ptrdiff_t(std::min(kBatch, names.size())));
        loads = inspectLayers(source, Names(names.begin(), end), report);
        names.erase(names.begin(), end);
    }
    if (loads)
        return report;
    reason = QString::fromStdString(FarmHelpers::lastFailure<IImageCore>().reason);
    if (reason.isEmpty())
        reason = QStringLiteral("damaged, cut short, or no image of a known format");
    if (!all.empty())
        reason += chunksOf(source, all);
    return std::nullopt;
}
