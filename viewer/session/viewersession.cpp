#include "viewersession.h"

#include <viewer/frames/framedisplay.h>
#include <viewer/frames/framesondisk.h>
#include <viewer/frames/framesteps.h>

#include <QtCore/QFileInfo>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

std::int64_t seconds()
{
    return std::chrono::duration_cast<std::chrono::seconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

FrameState stateOf(const LoadResult &load)
{
    if (load.outcome == LoadOutcome::NotFound)
        return FrameState::Missing;
    if (load.partial.isInTheMaking())
        return FrameState::InTheMaking;
    return load.failed() || load.partial.isIncomplete() ? FrameState::Broken : FrameState::Whole;
}

} // namespace

ViewerSession::ViewerSession(CacheTotals &totals, FrameDisplay &display, QObject *parent)
    : QObject(parent)
    , m_display(display)
    , m_cache(totals, display)
    , m_loader(m_cache, display)
    , m_progress(&seconds)
{
    connect(&m_playback, &Playback::stepDue, this, &ViewerSession::playStep);
    connect(&m_playback, &Playback::playingChanged, this, &ViewerSession::lookOn);
    connect(&m_watch, &FrameWatch::mayBeThere, this, &ViewerSession::lookAgain);
    connect(&m_lookAhead, &LookAhead::arrived, this, &ViewerSession::readAhead);
    // A frame that has come is painted in another turn of the event loop than it is uploaded in.
    connect(&m_lookAhead, &LookAhead::waitedFor, &m_playback, &Playback::goOn, Qt::QueuedConnection);
}

void ViewerSession::setJob(JobFrames job)
{
    m_job = std::move(job);
    m_marking.setChunks(m_job.chunks);
    if (!m_job.isSet())
        m_marking.clear();
    Q_EMIT marksChanged();
}

FramesOrigin ViewerSession::origin() const
{
    return {m_job.job ? &*m_job.job : nullptr, m_job.chunk ? &*m_job.chunk : nullptr};
}

void ViewerSession::open(const FramesRequest &request)
{
    if (request.path == m_sequence.framesPath && !request.force)
        return;
    FramesRequest wanted = request;
    if (request.force && !request.preferredFrame)
        wanted.preferredFrame = m_frame;
    OpenedFrames found = openFrames(wanted, origin());
    const bool another = found.sequence.framesPath != m_sequence.framesPath;
    show(std::move(found), another);
}

void ViewerSession::show(OpenedFrames found, bool another)
{
    m_playback.stop();
    m_watch.stop();
    m_lookAhead.end();
    m_cache.clear();
    m_frameBytes = 0;
    m_states.clear();
    const FrameSequence before = std::exchange(m_sequence, std::move(found.sequence));
    m_frame = found.frame;
    m_range = another ? wholeRange(m_sequence) : keptRange(m_range, before, m_sequence);
    if (m_frame < m_range.start || m_frame > m_range.end)
        m_range = wholeRange(m_sequence);
    listPlayed();
    if (another)
        m_layers = std::make_shared<const LayerList>();
    m_anyShown = m_anyShown && !another;
    Q_EMIT opened(another);
    load(true);
}

void ViewerSession::reload()
{
    if (m_sequence.framesPath.empty())
        return;
    OpenedFrames found{m_sequence, m_frame};
    if (m_sequence.isSequence && !m_job.isSet()) {
        found.sequence.frames.merge(framesOnDisk(m_sequence.framesPath));
    } else {
        const bool maskIsSequence = m_sequence.isSequence || m_sequence.isAwaited;
        found = openFrames({.path = m_sequence.framesPath,
                            .force = true,
                            .preferredFrame = m_frame,
                            .maskIsSequence = maskIsSequence},
                           origin());
    }
    show(std::move(found), false);
}

void ViewerSession::lookAgain()
{
    if (!m_sequence.isAwaited)
        load(false);
    else if (firstFrameOnDisk(m_sequence.framesPath))
        reload();
}

void ViewerSession::setFrame(long frame)
{
    const long within = std::clamp(frame, m_sequence.first(), m_sequence.last());
    if (within != m_frame)
        moveTo(within);
}

void ViewerSession::moveTo(long frame)
{
    m_frame = static_cast<std::int32_t>(frame);
    Q_EMIT frameChanged(m_frame);
    load(false);
}

bool ViewerSession::step()
{
    const std::optional<std::int64_t> next = steppedFrame(m_played, m_frame, m_range.step);
    if (!next || *next == m_frame)
        return false;
    moveTo(static_cast<long>(*next));
    return true;
}

/// A frame that is on its way is waited for in the event loop, not in a load.
void ViewerSession::playStep()
{
    if (m_held || m_played.empty())
        return;
    const std::int64_t next = steppedFrame(m_played, m_frame, m_range.step).value_or(m_frame);
    const auto frame = std::int32_t(next == m_frame ? m_played.front() : next);
    if (frame == m_frame)
        return;
    if (m_lookAhead.waitFor(m_sequence.fileOf(frame)))
        m_playback.postpone();
    else
        moveTo(frame);
}

void ViewerSession::setRange(const PlaybackRange &range)
{
    if (range == m_range)
        return;
    m_range = range;
    listPlayed();
    m_lookAhead.end(); // another range may have as many frames
    Q_EMIT rangeChanged();
    const long within = std::clamp(long(m_frame), range.start, range.end);
    if (within != m_frame)
        moveTo(within);
    else
        lookOn();
}

void ViewerSession::listPlayed()
{
    const std::set<long> &frames = m_sequence.frames;
    m_played.assign(frames.lower_bound(m_range.start), frames.upper_bound(m_range.end));
}

bool ViewerSession::setLayer(const std::string &entry)
{
    if (entry.empty() || !m_layers->offers(entry))
        return false;
    m_chosenLayer = entry;
    loadAnew();
    return true;
}

void ViewerSession::setPremultiplied(bool on)
{
    m_premultiplied = on;
    loadAnew();
}

void ViewerSession::setShowIncomplete(bool on)
{
    if (std::exchange(m_showIncomplete, on) != on)
        loadAnew();
}

void ViewerSession::setReadAhead(bool on)
{
    m_lookAhead.setOn(on);
    lookOn();
}

void ViewerSession::setDownsampling(std::int32_t halvings)
{
    m_downsampling = halvings;
    loadAnew();
}

void ViewerSession::applyBudgets()
{
    if (m_cache.trim(file()))
        Q_EMIT cacheTrimmed();
    lookOn();
}

void ViewerSession::loadAnew()
{
    m_lookAhead.end();
    m_cache.clear();
    load(false);
}

LoadRequest ViewerSession::loadRequest()
{
    LoadRequest request;
    request.layer = m_chosenLayer;
    request.premultiplied = m_premultiplied;
    request.downsampling = m_downsampling;
    request.showIncomplete = m_showIncomplete;
    request.progress = &ViewerSession::progressed;
    request.user = this;
    if (m_lookAhead.isOn() && m_playback.isPlaying())
        request.isKept = [this](const std::string &path) { return m_lookAhead.keeps(path); };
    return request;
}

void ViewerSession::lookOn()
{
    const ImageFrame *frame = m_cache.find(file());
    m_frameBytes = frame ? frame->byteSize : m_frameBytes;
    m_lookAhead.goOn({m_frame, std::int32_t(m_range.step), m_playback.isPlaying(), m_frameBytes,
                      m_layers->members(m_layers->resolved(m_chosenLayer)), loadRequest()});
}

void ViewerSession::load(bool fresh)
{
    LoadRequest request = loadRequest();
    request.path = file();
    if (request.path.empty())
        return;
    // Which file a mask's first will be nobody knows: its folder tells of any.
    const QString path = QString::fromStdString(request.path);
    const QString watched = m_sequence.isAwaited ? QFileInfo(path).absolutePath() : path;
    const FileStamp folder = m_sequence.isAwaited ? FileStamp::of(watched.toStdString()) : FileStamp();
    m_lastLoad = m_loader.load(request);
    m_states.set(m_frame, stateOf(m_lastLoad));
    const bool shown = m_lastLoad.shown();
    if (shown && m_lastLoad.layers) {
        const bool isFirst = fresh || m_layers->entries.empty();
        m_layers = m_lastLoad.layers;
        m_layer = m_lastLoad.layer;
        if (isFirst)
            m_chosenLayer = m_layer;
    }
    if (!shown)
        m_display.showFrame(nullptr);
    if (m_lastLoad.isToBeWatched())
        m_watch.watch(watched, m_sequence.isAwaited ? folder : m_lastLoad.stamp);
    else
        m_watch.stop();
    lookOn();
    if (shown && !std::exchange(m_anyShown, true))
        Q_EMIT firstFrameShown();
    Q_EMIT loaded();
}

void ViewerSession::progressed(float fraction, void *session)
{
    auto *self = static_cast<ViewerSession *>(session);
    Q_EMIT self->loadProgressed(self->m_progress.report(fraction));
}

void ViewerSession::togglePlaying()
{
    if (m_playback.isPlaying())
        m_playback.stop();
    else if (canPlay())
        m_playback.start();
}

void ViewerSession::mark(int frame, const MarkRequest &request)
{
    if (!m_job.isSet() || request == MarkRequest{})
        return;
    m_marking.apply(frame, request);
    Q_EMIT marksChanged();
}

void ViewerSession::toggleFrameMark()
{
    if (!m_job.isSet())
        return;
    m_marking.toggleFrame(m_frame);
    Q_EMIT marksChanged();
}

void ViewerSession::toggleChunkMark()
{
    if (!m_job.isSet())
        return;
    m_marking.toggleChunkOf(m_frame);
    Q_EMIT marksChanged();
}

void ViewerSession::clearMarks()
{
    m_marking.clear();
    Q_EMIT marksChanged();
}
