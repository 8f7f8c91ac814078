#include "fakedisplay.h"

#include <viewer/frames/framecache.h>
#include <viewer/widgets/imagesallocationwidget.h>
#include <viewer/widgets/imagesmarkerwidget.h>
#include <viewer/widgets/imagetimeline.h>

#include <QtGui/QImage>
#include <QtTest/QTest>

#include <algorithm>
#include <memory>

namespace {

constexpr int kHatchTop = 3;

/// A word for every frame of 10 pixels: the colour of its column near its right end, in capitals with the hatched band.
QString columns(FrameStrip &strip, int frames)
{
    strip.resize(frames * 10, 20);
    const QImage image = strip.grab().toImage();
    const QHash<QRgb, QString> names{{qRgb(0, 0, 0), u"black"_qs},
                                     {qRgb(100, 100, 100), u"grey"_qs},
                                     {qRgb(255, 125, 0), u"orange"_qs},
                                     {qRgb(200, 200, 0), u"yellow"_qs},
                                     {qRgb(0, 200, 0), u"green"_qs}};
    QStringList result;
    for (int frame = 0; frame < frames; ++frame) {
        const QRgb color = image.pixel(frame * 10 + 8, kHatchTop - 1);
        const QImage band = image.copy(frame * 10, kHatchTop, 10, 14);
        QImage plain(band.size(), band.format());
        plain.fill(color);
        const QString name = names.value(color);
        result += band == plain ? name : name.toUpper();
    }
    return result.join(u' ');
}

} // namespace

class StripsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void marks()
    {
        imagesMarkerWidget strip;
        strip.setFrames({2, 3, 4, 5, 7, 8, 9, 10});
        strip.setRange(1, 12);
        QCOMPARE(columns(strip, 12),
                 u"BLACK black black black black BLACK black black black black BLACK BLACK"_qs);
        // 1 to 2 marked, 3 to 5 and 7 to 8 shown for their states, 9 in no chunk, 10 to 11 marked by name only.
        strip.setChunks({{2, {70, 1, 1}}, {5, {71, 3, 1}}, {8, {72, 7, 2}}, {11, {73, 10, 0}}});
        strip.setMarkedChunks({{2, 70}, {11, 99}});
        strip.setMarkedFrames({2, 7, 12});
        QCOMPARE(columns(strip, 12),
                 u"ORANGE yellow grey grey grey BLACK yellow black black black BLACK BLACK"_qs);
    }

    /// Whoever sees no colours tells the frames apart by their hatches, on the strips as on the timeline.
    void states()
    {
        FrameStates known;
        known.set(2, FrameState::InTheMaking);
        known.set(3, FrameState::Missing);
        known.set(4, FrameState::Broken);
        imagesMarkerWidget strip;
        imageTimeline timeline;
        const auto look = [&known](auto &widget) {
            widget.setFrames({1, 2, 3, 4});
            widget.setRange(1, 4);
            widget.setStates(known);
            widget.resize(160, 60);
            return widget.grab().toImage();
        };
        for (const QImage &image : {look(strip), look(timeline)}) {
            QList<QImage> hatches;
            for (int frame = 0; frame < 4; ++frame) {
                // Without the frame's tick and number; black stays black, all else is the same.
                QImage hatch =
                    image.copy(frame * 40 + 16, 46, 16, 8).convertToFormat(QImage::Format_Grayscale8);
                for (int y = 0; y < hatch.height(); ++y)
                    std::transform(hatch.scanLine(y), hatch.scanLine(y) + hatch.width(), hatch.scanLine(y),
                                   [](uchar grey) { return grey > 0 ? 255 : 0; });
                QVERIFY2(!hatches.contains(hatch), qPrintable(QString::number(frame)));
                hatches += hatch;
            }
        }
    }

    void cachedFrames()
    {
        CacheTotals totals;
        totals.videoMemoryBudget = 1;
        FakeDisplay display;
        FrameCache cache(totals, display);
        for (const char *path : {"/f.0003.exr", "/f.0004.exr", "/f.0006.exr"}) {
            auto frame = std::make_unique<ImageFrame>();
            frame->byteSize = 1;
            cache.insert(std::move(frame), path);
        }
        imagesAllocationWidget strip;
        strip.setFrames({2, 3, 4});
        strip.setRange(2, 6);
        strip.setFileMask("/f.####.exr");
        QCOMPARE(columns(strip, 5), u"black black black BLACK BLACK"_qs);
        strip.setCache(&cache);
        QCOMPARE(columns(strip, 5), u"black green yellow BLACK YELLOW"_qs);
    }
};

QTEST_MAIN(StripsTest)
#include "tst_strips.moc"
