#include "readahead.h"

#include <helpers/aheadextras.h>
#include <image_library/iimagecore.h>

#include <algorithm>
#include <utility>

using TImageLibrary::CTImage;
using TImageLibrary::IImageCore;
using Result = FarmHelpers::AheadResult<CTImage>;

ReadAhead::~ReadAhead()
{
    clear();
}

std::size_t ReadAhead::mostAtOnce()
{
    constexpr std::size_t kQueued = 2; // so that no thread waits for the next look
    const int threads = FarmHelpers::aheadThreads<IImageCore>();
    return threads > 0 ? std::size_t(threads) + kQueued : 0;
}

void ReadAhead::follow(const std::vector<std::string> &paths, const Wish &wish)
{
    std::erase_if(m_jobs, [&paths](const Job &job) {
        const bool isWanted = std::find(paths.begin(), paths.end(), job.path) != paths.end();
        if (!isWanted)
            FarmHelpers::cancelAhead<IImageCore>(job.id);
        return !isWanted;
    });
    for (const std::string &path : paths) {
        if (m_jobs.size() >= mostAtOnce())
            return;
        if (!isComing(path) && !leavesOut(path))
            begin(path, wish);
    }
}

bool ReadAhead::isComing(const std::string &path) const
{
    return std::any_of(m_jobs.begin(), m_jobs.end(), [&path](const Job &job) { return job.path == path; });
}

void ReadAhead::begin(const std::string &path, const Wish &wish)
{
    const FileStamp stamp = FileStamp::of(path);
    if (!stamp.exists) {
        leaveOut(path);
        return;
    }
    const std::uint64_t id = FarmHelpers::beginAhead<IImageCore>(path, wish.layers, wish.priority);
    m_jobs.push_back({id, path, stamp, wish.layers});
}

std::optional<AheadImage> ReadAhead::collect()
{
    for (auto job = m_jobs.begin(); job != m_jobs.end();) {
        Result result;
        if (!FarmHelpers::pollAhead<IImageCore>(job->id, result)) {
            ++job;
            continue;
        }
        Job done = std::move(*job);
        job = m_jobs.erase(job);
        FarmHelpers::ImagePointer image(result.image);
        if (image)
            return AheadImage{std::move(done.path),     done.stamp,
                              std::move(result.format), std::move(result.layers),
                              std::move(done.asked),    std::move(image)};
        leaveOut(done.path);
    }
    return std::nullopt;
}

std::optional<AheadImage> ReadAhead::take(const std::string &path)
{
    const auto job =
        std::find_if(m_jobs.begin(), m_jobs.end(), [&path](const Job &other) { return other.path == path; });
    if (job == m_jobs.end())
        return std::nullopt;
    Job taken = std::move(*job);
    m_jobs.erase(job);
    Result result;
    if (!FarmHelpers::takeAhead<IImageCore>(taken.id, result) || !result.image)
        return std::nullopt;
    return AheadImage{std::move(taken.path),    taken.stamp,
                      std::move(result.format), std::move(result.layers),
                      std::move(taken.asked),   FarmHelpers::ImagePointer(result.image)};
}

void ReadAhead::clear()
{
    follow({}, {});
    m_leftOut.clear();
}
