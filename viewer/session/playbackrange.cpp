#include "playbackrange.h"

#include <viewer/frames/framesequence.h>

#include <algorithm>

namespace {

/// A number past what an integer holds counts as 0 too.
long number(const QString &text)
{
    return text.trimmed().toInt();
}

} // namespace

PlaybackRange wholeRange(const FrameSequence &sequence)
{
    return {sequence.first(), sequence.last(), sequence.byFrame};
}

PlaybackRange keptRange(const PlaybackRange &range, const FrameSequence &before, const FrameSequence &now)
{
    PlaybackRange kept = wholeRange(now);
    if (range.start != before.first())
        kept.start = std::clamp(range.start, now.first(), now.last());
    if (range.end != before.last())
        kept.end = std::clamp(range.end, kept.start, now.last());
    if (range.step != before.byFrame)
        kept.step = range.step;
    return kept;
}

RangeEdit correctedRange(const FrameSequence &sequence, const QString &start, const QString &end,
                         const QString &step)
{
    const long first = sequence.first();
    const long last = sequence.last();
    RangeEdit edit{{number(start), number(end), number(step)}, {}, {}, {}};
    PlaybackRange &range = edit.range;
    if (range.step < 1 || range.step > last - first + 1) {
        range.step = sequence.byFrame;
        edit.step = QString::number(range.step);
    }
    if (range.start < first || range.start > last) {
        range.start = range.start < first ? first : last;
        edit.start = QString::number(range.start);
    }
    if (range.end < range.start) {
        range.end = range.start;
        // The field shows how far one can go; the range has ended where it starts all the same.
        edit.end = QString::number(last);
    } else if (range.end > last) {
        range.end = last;
        edit.end = QString::number(last);
    }
    return edit;
}
