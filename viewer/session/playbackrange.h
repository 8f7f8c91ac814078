#pragma once

#include <QtCore/QString>

struct FrameSequence;

/// The frames that are played, each `step` from the next.
struct PlaybackRange {
    long start = 1;
    long end = 1;
    long step = 1;

    bool operator==(const PlaybackRange &other) const = default;
};

PlaybackRange wholeRange(const FrameSequence &sequence);

/// Brings a range of a sequence over to the same sequence read anew: ends and step that nobody had changed follow it.
PlaybackRange keptRange(const PlaybackRange &range, const FrameSequence &before, const FrameSequence &now);

/// What an edit of the range comes to, and which field has to be written anew with what.
struct RangeEdit {
    PlaybackRange range;
    QString start; ///< null where the field stands as it is
    QString end;
    QString step;
};

/// Brings the typed range within the sequence, whose own step stands in for one that is none. What is no number counts
/// as 0.
RangeEdit correctedRange(const FrameSequence &sequence, const QString &start, const QString &end,
                         const QString &step);
