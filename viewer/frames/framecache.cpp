#include "framecache.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <utility>

namespace {

/// Copies the planes, since the library's image goes after the load. False when there is no memory for them.
bool keepInMainMemory(ImageFrame &frame)
{
    try {
        for (std::size_t i = 0; i < frame.planes.size(); ++i) {
            const auto *data = static_cast<const std::byte *>(frame.planes[i]);
            frame.ownedPlanes.emplace_back(data, data + frame.planeBytes(i));
        }
    } catch (const std::bad_alloc &) {
        frame.ownedPlanes.clear();
        return false;
    }
    return true;
}

} // namespace

FrameCache::FrameCache(CacheTotals &totals, FrameDisplay &display)
    : m_totals(totals)
    , m_display(display)
{ }

FrameCache::~FrameCache()
{
    clear();
}

bool FrameCache::contains(const std::string &path) const
{
    return m_frames.find(path) != m_frames.end();
}

ImageFrame *FrameCache::find(const std::string &path) const
{
    const auto found = m_frames.find(path);
    return found == m_frames.end() ? nullptr : found->second.frame.get();
}

ImageFrame &FrameCache::insert(std::unique_ptr<ImageFrame> frame, const std::string &path)
{
    remove(path);
    place(*frame);
    return keep(std::move(frame), path);
}

bool FrameCache::insert(std::unique_ptr<ImageFrame> frame, const std::string &path, Memory memory)
{
    remove(path);
    frame->inVideoMemory = memory == Memory::Video;
    if (!frame->inVideoMemory && !keepInMainMemory(*frame))
        return false;
    keep(std::move(frame), path);
    return true;
}

ImageFrame &FrameCache::keep(std::unique_ptr<ImageFrame> frame, const std::string &path)
{
    ++m_version;
    ImageFrame &inserted = *frame;
    const auto entry = m_frames.emplace(path, Entry{std::move(frame), {}}).first;
    Queue &queue = queueOf(inserted);
    entry->second.position = queue.insert(queue.end(), &entry->first);
    usedBy(inserted) += inserted.byteSize;
    return inserted;
}

bool FrameCache::remove(const std::string &path)
{
    const auto found = m_frames.find(path);
    if (found == m_frames.end())
        return false;
    destroy(found);
    return true;
}

bool FrameCache::trim(const std::string &keptPath)
{
    const std::size_t before = m_frames.size();
    const auto drop = [&](const Queue &queue, const std::uint64_t &used, std::uint64_t budget) {
        for (auto path = queue.begin(); path != queue.end() && used > budget;) {
            const auto entry = m_frames.find(**path++);
            if (entry->first != keptPath)
                destroy(entry);
        }
    };
    drop(m_videoMemory, m_totals.videoMemoryUsed, m_totals.videoMemoryBudget);
    drop(m_mainMemory, m_totals.mainMemoryUsed, m_totals.mainMemoryBudget);
    return m_frames.size() < before;
}

/// Bytes of the frames that stay.
std::uint64_t FrameCache::kept(const Queue &queue, const Keep &isKept) const
{
    std::uint64_t bytes = 0;
    for (const std::string *path : queue)
        bytes += !isKept || isKept(*path) ? m_frames.find(*path)->second.frame->byteSize : 0;
    return bytes;
}

std::uint64_t FrameCache::roomFor(std::uint64_t bytes, const Keep &isKept) const
{
    const auto room = [&](const Queue &queue, std::uint64_t used, std::uint64_t budget) {
        const std::uint64_t others = used - kept(queue, nullptr);
        const std::uint64_t staying = others + kept(queue, isKept);
        return budget > staying ? (budget - staying) / std::max<std::uint64_t>(bytes, 1) : 0;
    };
    // Halves, so that their sum is a number too.
    return std::min(room(m_videoMemory, m_totals.videoMemoryUsed, m_totals.videoMemoryBudget), UINT64_MAX / 2)
        + std::min(room(m_mainMemory, m_totals.mainMemoryUsed, m_totals.mainMemoryBudget), UINT64_MAX / 2);
}

std::optional<FrameCache::Memory> FrameCache::makeRoom(std::uint64_t bytes, const Keep &isKept)
{
    struct Place {
        Memory memory;
        Queue &queue;
        const std::uint64_t &used;
        std::uint64_t budget;

        bool fits(std::uint64_t more) const { return budget >= more && used <= budget - more; }
    };
    const Place places[] = {
        {Memory::Video, m_videoMemory, m_totals.videoMemoryUsed, m_totals.videoMemoryBudget},
        {Memory::Main, m_mainMemory, m_totals.mainMemoryUsed, m_totals.mainMemoryBudget}};
    for (const Place &place : places) {
        if (place.fits(bytes))
            return place.memory;
    }
    for (const Place &place : places) {
        const std::uint64_t leaving = isKept ? kept(place.queue, nullptr) - kept(place.queue, isKept) : 0;
        if (bytes > place.budget || place.used - leaving > place.budget - bytes)
            continue;
        for (auto path = place.queue.begin(); path != place.queue.end() && !place.fits(bytes);) {
            const auto entry = m_frames.find(**path++);
            if (!isKept(entry->first))
                destroy(entry);
        }
        return place.memory;
    }
    return std::nullopt;
}

void FrameCache::clear()
{
    m_display.showFrame(nullptr);
    while (!m_frames.empty())
        destroy(std::prev(m_frames.end()));
}

void FrameCache::place(ImageFrame &frame)
{
    frame.inVideoMemory = true;
    if (m_totals.videoMemoryUsed < m_totals.videoMemoryBudget)
        return;
    if (m_totals.mainMemoryUsed < m_totals.mainMemoryBudget) {
        frame.inVideoMemory = !keepInMainMemory(frame);
        return;
    }
    while (m_totals.videoMemoryUsed >= m_totals.videoMemoryBudget && !m_videoMemory.empty())
        destroy(m_frames.find(*m_videoMemory.front()));
    while (m_totals.mainMemoryUsed >= m_totals.mainMemoryBudget && !m_mainMemory.empty())
        destroy(m_frames.find(*m_mainMemory.front()));
}

void FrameCache::destroy(Frames::iterator entry)
{
    ++m_version;
    ImageFrame &frame = *entry->second.frame;
    m_display.frameDies(frame);
    frame.deleteTextures();
    usedBy(frame) -= frame.byteSize;
    queueOf(frame).erase(entry->second.position);
    m_frames.erase(entry);
}

FrameCache::Queue &FrameCache::queueOf(const ImageFrame &frame)
{
    return frame.inVideoMemory ? m_videoMemory : m_mainMemory;
}

std::uint64_t &FrameCache::usedBy(const ImageFrame &frame)
{
    return frame.inVideoMemory ? m_totals.videoMemoryUsed : m_totals.mainMemoryUsed;
}
