#pragma once

#include "framewatch.h"
#include "jobframes.h"
#include "lookahead.h"
#include "marking.h"
#include "playback.h"
#include "playbackrange.h"

#include <viewer/frames/framestates.h>
#include <viewer/frames/loadprogress.h>

#include <QtCore/QObject>

#include <cstdint>
#include <memory>
#include <string>

/// What one viewer window shows, without the window: the sequence, the frame of it on show, the range that plays, the layer,
/// the marks. It loads frames onto a display, from its cache or from their files, and again when one that was missing,
/// broken or in the making may have become whole. Nothing of it fails: what a load came to is in lastLoad().
class ViewerSession final : public QObject {
    Q_OBJECT

public:
    /// Both outlive the session, which takes its frames off the display when it ends.
    ViewerSession(CacheTotals &totals, FrameDisplay &display, QObject *parent = nullptr);

    const JobFrames &job() const { return m_job; }
    const FrameSequence &sequence() const { return m_sequence; }
    /// True where there is more than one frame to step through.
    bool canPlay() const { return m_sequence.frames.size() > 1; }
    int frame() const { return m_frame; }
    /// File of the frame; empty until something was opened.
    std::string file() const { return m_sequence.fileOf(m_frame); }
    /// Lies within the sequence.
    const PlaybackRange &range() const { return m_range; }
    /// Frames of the sequence within the range, in order: what steps and playback stop at.
    const std::vector<std::int32_t> &playedFrames() const { return m_played; }
    /// Of the frame on show, or the one shown last.
    const LayerList &layers() const { return *m_layers; }
    /// Entry of layers() that is shown.
    const std::string &layer() const { return m_layer; }
    /// Entry that was chosen. It stays while frames that lack it are shown, which show their default.
    const std::string &chosenLayer() const { return m_chosenLayer; }
    const LoadResult &lastLoad() const { return m_lastLoad; }
    const FrameCache &cache() const { return m_cache; }
    const LookAhead &lookAhead() const { return m_lookAhead; }
    /// What is known of the frames that were looked at.
    const FrameStates &states() const { return m_states; }
    const Marking &marking() const { return m_marking; }
    Playback &playback() { return m_playback; }
    const Playback &playback() const { return m_playback; }
    /// True where the frame on show can be marked: there is a job.
    bool canMark() const { return m_job.isSet() && !m_sequence.framesPath.empty(); }

    /// Says what frames are opened for; comes before open(). Without a job there are no marks.
    void setJob(JobFrames job);
    /// Shows the first frame of a path. Does nothing for the path that is shown, unless forced.
    void open(const FramesRequest &request);
    /// Reads the frames from disk again: those that are known stay, those that there are now come in, and frame, range
    /// and layer stay.
    void reload();
    /// Brings the number within the sequence and loads the frame when it is another.
    void setFrame(long frame);
    /// Steps on within the range; false at its end.
    bool step();
    /// Brings the frame into the range.
    void setRange(const PlaybackRange &range);
    /// False when the file does not have the layer.
    bool setLayer(const std::string &entry);
    /// Off: colours count as straight, whatever the file says.
    void setPremultiplied(bool on);
    /// Shows what there is of frames that are being written or damaged; else they count as broken.
    void setShowIncomplete(bool on);
    /// Reads frames before they are due; off at first.
    void setReadAhead(bool on);
    LookAhead &lookAhead() { return m_lookAhead; }
    /// Forgets every frame that was loaded, and loads the one on show.
    void loadAnew();
    /// Halvings of width and height.
    void setDownsampling(std::int32_t halvings);
    /// The budgets have changed: what exceeds them goes, but for the frame on show.
    void applyBudgets();

    void togglePlaying();
    /// Keeps playback at its frame while the user holds the timeline.
    void setHeld(bool held) { m_held = held; }
    bool isHeld() const { return m_held; }

    void mark(int frame, const MarkRequest &request);
    /// Of the frame on show.
    void toggleFrameMark();
    void toggleChunkMark();
    void clearMarks();

Q_SIGNALS:
    /// Another sequence, or the same read from disk again; its frame is about to be loaded.
    void opened(bool another);
    /// Sent before the frame is loaded.
    void frameChanged(int frame);
    void rangeChanged();
    void loadProgressed(const LoadProgress::Step &step);
    /// The first frame of another sequence is on the display; comes before loaded().
    void firstFrameShown();
    /// A load has ended, as lastLoad() says.
    void loaded();
    void marksChanged();
    // Frames have left the cache, or one was read ahead into it, without a load.
    void cacheTrimmed();
    void readAhead();

private:
    FramesOrigin origin() const;
    void show(OpenedFrames found, bool another);
    void lookAgain();
    void moveTo(long frame);
    void listPlayed();
    /// `fresh` for the first frame of a path: a layer that it lacks is chosen no longer.
    void load(bool fresh);
    void playStep();
    LoadRequest loadRequest();
    void lookOn();
    static void progressed(float fraction, void *session);

    FrameDisplay &m_display;
    FrameCache m_cache;
    FrameLoader m_loader;
    Playback m_playback;
    FrameWatch m_watch;
    LoadProgress m_progress;
    Marking m_marking;
    JobFrames m_job;
    FrameSequence m_sequence;
    FrameStates m_states;
    std::vector<std::int32_t> m_played;
    PlaybackRange m_range;
    LoadResult m_lastLoad;
    std::shared_ptr<const LayerList> m_layers = std::make_shared<const LayerList>(); // never null
    std::string m_layer;
    std::string m_chosenLayer;
    std::int32_t m_frame = 1;
    std::int32_t m_downsampling = 0;
    bool m_premultiplied = true;
    bool m_showIncomplete = true;
    bool m_anyShown = false; // of the sequence
    bool m_held = false;
    std::uint64_t m_frameBytes = 0; // in memory, of the frame shown last
    LookAhead m_lookAhead{m_cache, m_loader, m_sequence, m_played};
};
