#include "lookahead.h"

#include <viewer/frames/framesteps.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr std::chrono::milliseconds kLook(5);
constexpr std::chrono::milliseconds kLookForAwaited(1);
/// Frames that are looked for on either side: a job may name a million that nobody has rendered.
constexpr std::size_t kFarthest = 1000;

} // namespace

LookAhead::LookAhead(FrameCache &cache, FrameLoader &loader, const FrameSequence &sequence,
                     const std::vector<std::int32_t> &played)
    : m_cache(cache)
    , m_loader(loader)
    , m_sequence(sequence)
    , m_played(played)
{
    loader.takeFrom(m_ahead);
    m_timer.setInterval(kLook);
    connect(&m_timer, &QTimer::timeout, this, &LookAhead::look);
}

void LookAhead::end()
{
    m_timer.stop();
    m_ahead.clear();
    m_order.clear();
    m_kept.clear();
    m_framesThere = 0;
    m_isSettled = false;
    tellWaiting();
}

bool LookAhead::waitFor(const std::string &path)
{
    if (!m_ahead.isComing(path))
        return false;
    m_awaited = path;
    m_timer.setInterval(kLookForAwaited);
    return true;
}

void LookAhead::tellWaiting()
{
    if (m_awaited.empty() || m_ahead.isComing(m_awaited))
        return;
    m_awaited.clear();
    m_timer.setInterval(kLook);
    Q_EMIT waitedFor();
}

void LookAhead::goOn(const Place &place)
{
    const bool isSame = place.isPlaying == m_place.isPlaying && place.step == m_place.step;
    m_place = place;
    if (!m_isOn || ReadAhead::mostAtOnce() == 0 || m_played.size() < 2 || place.frameBytes == 0) {
        end();
        return;
    }
    if (isSame && m_isSettled && m_settledVersion == m_cache.version())
        return;
    m_isSettled = false;
    m_kept.clear();
    const auto most = std::size_t(std::min<std::uint64_t>(room(), kFarthest));
    m_order = place.isPlaying ? loopFrames(most) : framesAround(most);
    // A picture that has just been loaded is painted before others are read.
    if (place.isPlaying || m_ahead.count() > 0)
        follow();
    if (!m_timer.isActive())
        m_timer.start();
}

/// How many frames the budgets hold beside those that stay.
std::uint64_t LookAhead::room() const
{
    if (!m_place.isPlaying)
        return m_cache.roomFor(m_place.frameBytes, nullptr);
    const std::string shown = m_sequence.fileOf(m_place.frame);
    return m_cache.roomFor(m_place.frameBytes, [&shown](const std::string &path) { return path == shown; });
}

/// False when nothing more is wanted.
bool LookAhead::follow()
{
    std::vector<std::string> wanted;
    std::uint64_t room = this->room();
    m_framesThere = 0;
    bool isGapless = true;
    for (const std::int32_t frame : m_order) {
        if (room == 0 || wanted.size() == ReadAhead::mostAtOnce())
            break;
        std::string path = m_sequence.fileOf(frame);
        const bool isThere = m_cache.contains(path);
        isGapless = isGapless && isThere;
        m_framesThere += isGapless ? 1 : 0;
        if (!isThere && !m_ahead.leavesOut(path))
            wanted.push_back(std::move(path));
        else if (!isThere || !m_place.isPlaying)
            continue; // takes none of the room
        --room;
    }
    m_isSettled = wanted.empty() && room > 0 && m_played.size() <= kFarthest;
    m_settledVersion = m_cache.version();
    m_ahead.follow(wanted, {m_place.layers, m_priority});
    tellWaiting();
    return !wanted.empty();
}

void LookAhead::look()
{
    const std::size_t before = m_ahead.count();
    if (auto image = m_ahead.collect()) {
        const std::string path = image->path;
        LoadRequest request = m_place.request;
        if (m_place.isPlaying)
            request.isKept = [this](const std::string &other) { return keeps(other); };
        if (m_loader.keep(std::move(*image), request))
            Q_EMIT arrived();
        else
            m_ahead.leaveOut(path);
    }
    // Files that are not there make no jobs, which those behind them may.
    const bool isAnyWanted = (before == 0 || m_ahead.count() != before) && follow();
    if (m_ahead.count() == 0 && !isAnyWanted)
        m_timer.stop();
}

bool LookAhead::keeps(const std::string &path)
{
    if (m_kept.empty()) {
        m_kept.insert(m_sequence.fileOf(m_place.frame));
        for (const std::int32_t frame : m_order)
            m_kept.insert(m_sequence.fileOf(frame));
    }
    return m_kept.contains(path);
}

/// Those that a loop comes by before it comes back to the one on show, or to where it has been.
std::vector<std::int32_t> LookAhead::loopFrames(std::size_t most) const
{
    std::vector<std::int32_t> frames;
    std::int64_t at = m_place.frame;
    while (frames.size() < std::min(most, m_played.size())) {
        const std::int64_t next = steppedFrame(m_played, at, m_place.step).value_or(at);
        at = next == at ? m_played.front() : next;
        if (at == m_place.frame)
            break;
        frames.push_back(std::int32_t(at));
    }
    return frames;
}

/// Those after the one on show, then those before it that a loop would come by, the nearest first.
std::vector<std::int32_t> LookAhead::framesAround(std::size_t most) const
{
    std::vector<std::int32_t> frames;
    const auto append = [&](std::int64_t at, std::int64_t step) {
        for (std::size_t count = 0; count < most; ++count) {
            const std::int64_t next = steppedFrame(m_played, at, step).value_or(at);
            if (next == at)
                return;
            at = next;
            frames.push_back(std::int32_t(at));
        }
    };
    append(m_place.frame, m_place.step);
    const std::int64_t first = m_played.front();
    const std::int64_t steps = (m_place.frame - first + m_place.step - 1) / m_place.step;
    append(first + steps * m_place.step, -m_place.step);
    return frames;
}
