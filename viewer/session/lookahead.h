#pragma once

#include <viewer/frames/frameloader.h>
#include <viewer/frames/framesequence.h>
#include <viewer/frames/readahead.h>

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <cstdint>
#include <set>
#include <string>
#include <vector>

/// Has frames read into the cache before they are due, as many as the budgets hold: while a sequence plays those that come
/// next, for which others make room; else those after the one on show, then those before it, where there is room. Neither
/// says a word of a frame that does not load.
class LookAhead final : public QObject {
    Q_OBJECT

public:
    /// All outlive this. `played` are the frames of the sequence that steps stop at.
    LookAhead(FrameCache &cache, FrameLoader &loader, const FrameSequence &sequence,
              const std::vector<std::int32_t> &played);

    /// What is on show, and how.
    struct Place {
        std::int32_t frame = 1;
        std::int32_t step = 1;
        bool isPlaying = false;
        std::uint64_t frameBytes = 0; ///< of a frame in memory; 0 where that is not known
        std::set<std::string> layers; ///< those of the file that are read
        LoadRequest request; ///< how frames are loaded; of no path
    };
    /// Goes on from there. What is being read and is no longer needed is cancelled.
    void goOn(const Place &place);
    /// Cancels everything: the frames, or how they are shown, are others.
    void end();

    void setOn(bool on) { m_isOn = on; }
    bool isOn() const { return m_isOn; }
    /// Of several that read ahead at once the higher one comes first.
    void setPriority(int priority) { m_priority = priority; }

    /// True where the file is being read; then waitedFor() comes when it may no longer be.
    bool waitFor(const std::string &path);
    bool isReading() const { return m_isOn && m_ahead.count() > 0; }
    /// Frames that are there from the one on show on, without it and without a gap.
    std::size_t framesThere() const { return m_framesThere; }
    /// Whether a file is on show or among the next ones, for which others make room.
    bool keeps(const std::string &path);

Q_SIGNALS:
    /// A frame has come into the cache.
    void arrived();
    void waitedFor();

private:
    void look();
    bool follow();
    void tellWaiting();
    std::uint64_t room() const;
    std::vector<std::int32_t> loopFrames(std::size_t most) const;
    std::vector<std::int32_t> framesAround(std::size_t most) const;

    FrameCache &m_cache;
    FrameLoader &m_loader;
    const FrameSequence &m_sequence;
    const std::vector<std::int32_t> &m_played;
    ReadAhead m_ahead;
    QTimer m_timer; // only while something is to come
    Place m_place;
    std::vector<std::int32_t>
        m_order; // of need, from m_place on; where others make room, as many as there is room for
    std::string m_awaited; // a file that is coming
    std::set<std::string> m_kept; // made when it is first asked for
    std::size_t m_framesThere = 0;
    std::uint64_t m_settledVersion = 0; // of the cache, when every frame was there
    bool m_isSettled = false;
    bool m_isOn = false;
    int m_priority = 0;
};
