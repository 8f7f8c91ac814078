#pragma once

#include <QtCore/QString>

#include <set>

/// The frames that are played, each `step` from the next.
struct PlaybackRange {
    long start = 1;
    long end = 1;
    long step = 1;

    bool operator==(const PlaybackRange &other) const = default;
};

/// What an edit of the range comes to, and which field has to be written anew with what.
struct RangeEdit {
    PlaybackRange range;
    QString start; ///< null where the field stands as it is
    QString end;
    QString step;
};

/// Brings the typed range within the frames of the set (frame 1 when that is empty). `byFrame` is the set's own step,
/// taken for one that is none. What is no number counts as 0.
RangeEdit correctedRange(const std::set<long> &frames, long byFrame, const QString &start, const QString &end,
                         const QString &step);
