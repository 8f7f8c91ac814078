// What a paint of the timeline and of the strips costs, at up to 100,000 frames in 1000 pixels.

#include "ratio.h"

#include <framework/filesystem.h>
#include <viewer/frames/cachetotals.h>
#include <viewer/frames/framecache.h>
#include <viewer/frames/framedisplay.h>
#include <viewer/widgets/imagesallocationwidget.h>
#include <viewer/widgets/imagesmarkerwidget.h>
#include <viewer/widgets/imagetimeline.h>

#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr int kWidth = 1000;
constexpr int kPaints = 25;
constexpr double kLimit = 5; // milliseconds
const std::string kMask = "/farm/shows/a_show/shot_0010/render/beauty/shot_0010_beauty.######.exr";

class NoDisplay final : public FrameDisplay {
public:
    void uploadTextures(ImageFrame & /*frame*/) override { }
    void deleteTextures(ImageFrame & /*frame*/) override { }
    void showFrame(ImageFrame * /*frame*/) override { }
    void frameDies(const ImageFrame & /*frame*/) override { }
};

void printPaint(const char *name, long frames, long missing, QWidget &widget)
{
    widget.resize(kWidth, widget.sizeHint().height());
    QPixmap pixels(widget.size());
    std::vector<double> measured;
    measured.reserve(kPaints);
    for (int paint = 0; paint < kPaints; ++paint)
        measured.push_back(threadMilliseconds([&] { widget.render(&pixels); }));
    std::nth_element(measured.begin(), measured.begin() + kPaints / 2, measured.end());
    printPromise((std::string(name) + ": ms a paint of " + std::to_string(frames) + " frames, "
                  + std::to_string(missing) + " missing, to a limit")
                     .c_str(),
                 measured[kPaints / 2], kLimit, 1.0);
}

/// Every frame is a chunk of its own, and a few of them are marked.
void setMarks(imagesMarkerWidget &marker, long count)
{
    ChunkMap chunks;
    for (std::int32_t frame = 1; frame <= count; ++frame)
        chunks[frame] = {frame, frame, frame % 3 == 0};
    const auto last = static_cast<std::int32_t>(count);
    marker.setChunks(chunks);
    marker.setMarkedChunks({{last, last}});
    marker.setMarkedFrames({last / 2});
}

/// As many frames as a large cache holds.
void fill(FrameCache &cache, long count)
{
    for (long frame = 1; frame <= std::min(count, 2000L); ++frame) {
        auto cached = std::make_unique<ImageFrame>();
        cached->byteSize = 1;
        cache.insert(std::move(cached), TFramework::TFileSystem::GetFileFromMask(kMask, frame));
    }
}

void run(long count, long everyMissing)
{
    std::set<long> frames;
    for (long frame = 1; frame <= count; ++frame) {
        if (everyMissing == 0 || frame % everyMissing != 0)
            frames.insert(frame);
    }
    const long missing = count - static_cast<long>(frames.size());

    imageTimeline timeline;
    timeline.setFrames(frames);
    timeline.setRange(1, count);
    printPaint("timeline", count, missing, timeline);

    imagesMarkerWidget marker;
    marker.setFrames(frames);
    marker.setRange(1, count);
    setMarks(marker, count);
    printPaint("marker strip", count, missing, marker);

    CacheTotals totals;
    NoDisplay display;
    FrameCache cache(totals, display);
    fill(cache, count);
    imagesAllocationWidget allocation;
    allocation.setFrames(frames);
    allocation.setRange(1, count);
    allocation.setFileMask(kMask);
    allocation.setCache(&cache);
    printPaint("cache strip", count, missing, allocation);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    for (const long count : {1L, 100L, 100000L}) {
        run(count, 0);
        run(count, 2);
    }
    return 0;
}
