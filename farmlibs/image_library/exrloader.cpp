#include "exrloader.h"

#include "exrpixels.h"

#include <ImathBox.h>
#include <ImfThreading.h>

#include <map>
#include <utility>

namespace TImageLibrary {

namespace {

constexpr char kFormat[] = "exr";

} // namespace

ExrLoader::ExrLoader()
{
    Imf::setGlobalThreadCount(exrPoolThreads());
}

std::vector<std::string> ExrLoader::extensions() const
{
    return {"exr", "sxr", "mxr"};
}

const char *ExrLoader::probe(const SourceFile &file) const
{
    return file.head().starts_with("\x76\x2f\x31\x01") ? kFormat : nullptr;
}

bool ExrLoader::knows(const std::string &format) const
{
    return format == kFormat;
}

std::set<std::string> ExrLoader::layers(const SourceFile &file, const std::string &) const
{
    const ExrFile exr(file);
    std::set<std::string> names;
    for (const ExrChannel &channel : exr.channels())
        names.insert(channel.layer);
    return names;
}

CTImage ExrLoader::load(const SourceFile &file, const std::string &, const std::set<std::string> &names,
                        Progress &progress) const
{
    ExrFile exr(file);
    std::vector<ExrTarget> targets = planPlanes(exr, names);
    std::map<int, std::vector<ExrTarget *>> byPart;
    for (ExrTarget &target : targets)
        byPart[target.channel.part].push_back(&target);
    double done = 0.0;
    for (const auto &[part, members] : byPart) {
        readPart(exr, part, members,
                 [&](double fraction) { progress.report((done + fraction) / double(byPart.size())); });
        done += 1.0;
    }

    const Imath::V2i size = exr.header(targets.front().channel.part).displayWindow().size() + Imath::V2i(1);
    std::vector<CTImageLayer> layers;
    for (ExrTarget &target : targets) {
        std::vector<CTImageChannel> channels;
        channels.push_back(std::move(target.plane));
        layers.emplace_back(target.channel.layer, std::move(channels));
    }
    // Colour is stored multiplied by its alpha in this format.
    return CTImage(size.x, size.y, true, std::move(layers));
}

} // namespace TImageLibrary
