#include "exrloader.h"

#include "exrchroma.h"
#include "exrdeep.h"
#include "exrpixels.h"
#include "imageerror.h"

#include <ImathBox.h>
#include <ImfThreading.h>

#include <algorithm>
#include <functional>
#include <list>
#include <map>
#include <utility>

namespace TImageLibrary {

namespace {

constexpr char kFormat[] = "exr";

/// Reads a flat part once, for what is stored and for the colour that is made of luminance and chroma.
void readFlatPart(ExrFile &exr, int part, const std::vector<ExrTarget *> &targets,
                  const std::function<void(double)> &report, PresentChunks *present)
{
    std::vector<ExrTarget *> stored;
    std::map<std::string, std::vector<ExrTarget *>> colors; // by their prefixes
    for (ExrTarget *target : targets) {
        const std::string &name = target->channel.name;
        if (target->channel.origin == ExrOrigin::Chroma)
            colors[name.substr(0, name.size() - 1)].push_back(target);
        else
            stored.push_back(target);
    }
    std::list<ExrChroma> chroma;
    for (const auto &[prefix, members] : colors) {
        chroma.emplace_back(exr, members, present ? CTImageChannel::Fill::Zero : CTImageChannel::Fill::None);
        for (ExrTarget &source : chroma.back().sources())
            stored.push_back(&source);
    }
    const double steps = 1.0 + double(chroma.size());
    readPart(
        exr, part, stored, [&](double fraction) { report(fraction / steps); }, present);
    double done = 1.0;
    for (ExrChroma &each : chroma) {
        each.makeColors([&](double fraction) { report((done + fraction) / steps); });
        done += 1.0;
    }
}

using Targets = std::vector<ExrTarget>;

std::map<int, std::vector<ExrTarget *>> byPart(Targets &targets)
{
    std::map<int, std::vector<ExrTarget *>> parts;
    for (ExrTarget &target : targets)
        parts[target.channel.part].push_back(&target);
    return parts;
}

/// Fills the planes: of all chunks, or of those that a survey has found.
void readParts(ExrFile &exr, Targets &targets, Progress &progress, std::map<int, PresentChunks> *present)
{
    const auto parts = byPart(targets);
    double done = 0.0;
    for (const auto &[part, members] : parts) {
        const auto report = [&](double fraction) {
            progress.report((done + fraction) / double(parts.size()));
        };
        PresentChunks *chunks = present ? &present->at(part) : nullptr;
        exr.isDeep(part) ? flattenPart(exr, part, members, report, chunks)
                         : readFlatPart(exr, part, members, report, chunks);
        done += 1.0;
    }
}

CTImage imageOf(const ExrFile &exr, Targets &&targets)
{
    const bool deep = std::any_of(targets.begin(), targets.end(), [&exr](const ExrTarget &target) {
        return exr.isDeep(target.channel.part);
    });
    const Imath::V2i size = exr.header(targets.front().channel.part).displayWindow().size() + Imath::V2i(1);
    std::vector<CTImageLayer> layers;
    for (ExrTarget &target : targets) {
        std::vector<CTImageChannel> channels;
        channels.push_back(std::move(target.plane));
        layers.emplace_back(target.channel.layer, std::move(channels));
    }
    // Colour is stored multiplied by its alpha in this format.
    return CTImage(size.x, size.y, true, std::move(layers), deep);
}

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
    const ExrFile exr = ExrFile::open(file);
    std::set<std::string> names;
    for (const ExrChannel &channel : exr.channels())
        names.insert(channel.layer);
    return names;
}

CTImage ExrLoader::load(const SourceFile &file, const std::string &, const std::set<std::string> &names,
                        Progress &progress) const
{
    ExrFile exr = ExrFile::open(file, &progress);
    Targets targets = planPlanes(exr, names, false);
    readParts(exr, targets, progress, nullptr);
    return imageOf(exr, std::move(targets));
}

CTImage ExrLoader::loadPartial(const SourceFile &file, const std::set<std::string> &names, Progress &progress,
                               TPartialLoad &load) const
{
    ExrFile stored = ExrFile::open(file, &progress);
    Targets targets = planPlanes(stored, names, true);
    const ExrSurvey survey(stored);
    std::map<int, PresentChunks> present;
    for (const auto &[part, members] : byPart(targets))
        present.emplace(part, PresentChunks(survey, part));
    if (survey.areTablesTrue()) {
        readParts(stored, targets, progress, &present);
    } else {
        const SourceFile repaired = survey.repaired();
        ExrFile exr = ExrFile::open(repaired, &progress);
        readParts(exr, targets, progress, &present);
    }

    for (ExrTarget &target : targets)
        present.at(target.channel.part).clearUnread(target);
    bool isAnyRead = false;
    for (const auto &[part, chunks] : present) {
        chunks.tell(load, stored.header(part).displayWindow());
        isAnyRead = isAnyRead || chunks.isAnyRead();
    }
    if (!isAnyRead)
        throw ImageError(TLoadFailure::Damaged, "the file has no sound part of its pixels");
    load.isWhole = survey.areTablesTrue() && load.unwritten + load.damaged == 0;
    return imageOf(stored, std::move(targets));
}

} // namespace TImageLibrary
