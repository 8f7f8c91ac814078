#include "oiioloader.h"

#include "imageerror.h"
#include "oiiofile.h"
#include "oiioformats.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace TImageLibrary {

namespace {

OiioFile opened(const SourceFile &file, const std::string &name)
{
    const OiioFormat *format = findFormat(name);
    if (!format)
        throw ImageError(TLoadFailure::Unsupported, "no format that is read here");
    return OiioFile(file, *format);
}

} // namespace

std::vector<std::string> OiioLoader::extensions() const
{
    return oiioExtensions();
}

const char *OiioLoader::probe(const SourceFile &file) const
{
    const OiioFormat *format = findFormat(file);
    return format ? format->name : nullptr;
}

bool OiioLoader::knows(const std::string &format) const
{
    return findFormat(format) != nullptr;
}

std::set<std::string> OiioLoader::layers(const SourceFile &file, const std::string &format) const
{
    const std::vector<std::string> names = opened(file, format).layers();
    return {names.begin(), names.end()};
}

CTImage OiioLoader::load(const SourceFile &file, const std::string &format,
                         const std::set<std::string> &names, Progress &progress) const
{
    OiioFile picture = opened(file, format);
    const std::vector<std::string> all = picture.layers();
    std::vector<std::string> chosen;
    std::copy_if(all.begin(), all.end(), std::back_inserter(chosen),
                 [&names](const std::string &name) { return names.contains(name); });
    if (chosen.empty())
        chosen.push_back(all.front());

    std::vector<CTImageLayer> layers;
    for (CTImageChannel &channel : picture.read(chosen, progress)) {
        const std::string name = channel.GetChannelName();
        std::vector<CTImageChannel> channels;
        channels.push_back(std::move(channel));
        layers.emplace_back(name, std::move(channels));
    }
    return CTImage(picture.width(), picture.height(), picture.isPremultiplied(), std::move(layers));
}

} // namespace TImageLibrary
