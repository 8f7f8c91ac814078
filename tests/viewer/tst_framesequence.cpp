#include "table.h"

#include <viewer/frames/framesequence.h>
#include <viewer/frames/framesondisk.h>
#include <viewer/frames/framesteps.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <algorithm>
#include <limits>
#include <optional>
#include <tuple>

using namespace TClientLib;
using Numbers = QList<std::int64_t>;

namespace {

constexpr auto kHighest = std::numeric_limits<std::int64_t>::max();

/// "shot.##.exr: 3 4 5 @4", with "file " in front of a single file; more than ten frames as "first..last".
QByteArray text(const OpenedFrames &opened)
{
    const FrameSequence &sequence = opened.sequence;
    QByteArrayList frames;
    for (const long frame : sequence.frames)
        frames << QByteArray::number(qlonglong(frame));
    if (frames.size() > 10)
        frames = {frames.first() + ".." + frames.last()};
    const QByteArray path = QByteArray::fromStdString(sequence.framesPath);
    return (sequence.isSequence ? "" : "file ") + path.mid(path.lastIndexOf('/') + 1) + ": "
        + frames.join(' ') + " @" + QByteArray::number(opened.frame)
        + (sequence.byFrame == 1 ? QByteArray() : " by " + QByteArray::number(sequence.byFrame));
}

} // namespace

class FrameSequenceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *name :
             {"shot.03.exr",        "shot.04.exr", "shot.05.exr",  "shot.07.exr",        "shot.08.exr",
              "lone.0007.exr",      "n.-001.exr",  "n.000.exr",    "end.2147483646.exr", "end.2147483647.exr",
              "end.2147483648.exr", "img.8.exr",   "img.9.exr",    "img.10.exr",         "img.11.exr",
              "img.98.exr",         "img.99.exr",  "img.100.exr",  "img.101.exr",        "pad.09.exr",
              "pad.10.exr",         "pad.11.exr",  "other.10.exr", "other.11.exr",       "other.009.exr"}) {
            QFile file(QString::fromStdString(path(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QVERIFY(QDir(m_folder.path()).mkdir(u"shot.06.exr"_qs)); // a folder is no frame
    }

    void paths()
    {
        // A name, the frame that is preferred, whether a mask stands for its sequence.
        const std::tuple<const char *, std::optional<int>, bool, QByteArray> names[] = {
            {"shot.04.exr", {}, false, "shot.##.exr: 3 4 5 @4"},
            {"shot.08.exr", 3, false, "shot.##.exr: 7 8 @8"},
            {"n.000.exr", {}, false, "n.###.exr: -1 0 @0"},
            {"end.2147483647.exr", {}, false, "end.##########.exr: 2147483646 2147483647 @2147483647"},
            {"lone.0007.exr", {}, true, "file lone.0007.exr: 7 @7"},
            {"logo.png", 5, true, "file logo.png: 1 @1"},
            {"shot.%02d.exr", 4, true, "shot.%02d.exr: 3 4 5 @4"},
            {"n.###.exr", -1, true, "n.###.exr: -1 0 @-1"},
            {"shot.##.exr", 4, false, "file shot.04.exr: 4 @4"},
            {"shot.##.exr", {}, true, "shot.##.exr: 3 4 5 @3"},
            {"none.##.exr", {}, true, "file none.##.exr: 0 @0"},
            {"lone.####.exr", {}, true, "lone.####.exr: 7 @7"},
            {"img.8.exr", {}, false, "img.#.exr: 8 9 10 11 @8"},
            {"img.11.exr", {}, false, "img.#.exr: 8 9 10 11 @11"},
            {"img.98.exr", {}, false, "img.##.exr: 98 99 100 101 @98"},
            {"img.101.exr", {}, false, "img.##.exr: 98 99 100 101 @101"},
            {"pad.11.exr", {}, false, "pad.##.exr: 9 10 11 @11"},
            {"other.11.exr", {}, false, "other.##.exr: 10 11 @11"}};
        for (const auto &[name, preferred, maskIsSequence, expected] : names) {
            const FramesRequest request{
                .path = path(name), .preferredFrame = preferred, .maskIsSequence = maskIsSequence};
            QCOMPARE(text(openFrames(request, {})), expected);
        }
    }

    void filesAndFolders()
    {
        // Of several files those of the first one's sequence count, also behind a hole.
        const FramesRequest several{
            .path = path("shot.04.exr"),
            .others = {path("shot.08.exr"), path("shot.9.exr"), path("lone.0007.exr")}};
        QCOMPARE(text(openFrames(several, {})), "shot.##.exr: 3 4 5 8 @4");
        QCOMPARE(framesOnDisk(path("shot.##.exr")), (std::set<long>{3, 4, 5, 7, 8}));
        QCOMPARE(framesOnDisk(path("n.%03d.exr")), (std::set<long>{-1, 0}));
        QStringList names{u"img.10.exr"_qs, u"img.8.exr"_qs, u"img.08.exr"_qs,
                          u"a9"_qs,         u"img"_qs,       u"img.8"_qs};
        std::sort(names.begin(), names.end(), [](const QString &name, const QString &other) {
            return comesBefore(name.toStdString(), other.toStdString());
        });
        QCOMPARE(names.join(QLatin1Char(' ')), u"a9 img img.8 img.08.exr img.8.exr img.10.exr"_qs);
    }

    void records_data()
    {
        addTable<bool, Numbers, QByteArray, int, QByteArray>(
            {"isChunk", "ranges", "name", "current", "expected"},
            {{"chunk", true, {3, 10, 3}, "o.##.exr", 6, "o.##.exr: 3 6 9 @6 by 3"},
             {"too many", true, {0, 1'000'000, 1}, "o.##.exr", 1, "file o.01.exr: 1 @1"},
             {"beyond 32 bits", true, {kHighest - 1, kHighest, 1}, "o.##.exr", 1, "file o.01.exr: 1 @1"},
             {"job", false, {1, 3, 2, 9, 9, 1}, "o.##.exr", 2, "o.##.exr: 1 3 9 @2 by 2"},
             {"job by a file", false, {5, 6, 1}, "o.06.exr", 7, "o.##.exr: 5 6 @5"},
             {"job of one frame", false, {7, 7, 1}, "o.##.exr", 7, "file o.07.exr: 7 @7"},
             {"no range", false, {}, "o.##.exr", 1, "file o.01.exr: 1 @1"}});
    }

    void records()
    {
        QFETCH(const bool, isChunk);
        QFETCH(const Numbers, ranges);
        QFETCH(const QByteArray, name);
        QFETCH(const int, current);
        std::vector<TFramesRange> all;
        for (qsizetype i = 0; i < ranges.size(); i += 3)
            all.push_back({ranges[i], ranges[i + 1], ranges[i + 2]});
        TJob job;
        job.setFrameRanges(all);
        TChunk chunk;
        if (isChunk)
            chunk.setFrames(all[0].start, all[0].end, all[0].step);
        const FramesRequest request{
            .path = name.toStdString(), .preferredFrame = current, .maskIsSequence = true};
        QTEST(text(openFrames(request, {&job, isChunk ? &chunk : nullptr})), "expected");
    }

    void steps()
    {
        constexpr int kHuge = std::numeric_limits<int>::max();
        // The frames, the step, and where one after the other ends.
        const std::tuple<std::vector<std::int32_t>, long, QList<std::int64_t>> cases[] = {
            {{1, 2, 3, 10}, 3, {1, 10, 10}}, // 4 and 7 are stepped on and passed
            {{1, 2, 3, 10}, -3, {10, 1, 1}},
            {{1, 2, 3, 4, 9}, 2, {1, 3, 9}},
            {{1, 2, 3, 4, 9}, -2, {9, 3, 1}},
            {{-kHuge, kHuge}, kHuge, {-kHuge, kHuge}},
            {{-kHuge, kHuge}, -kHuge, {kHuge, -kHuge}},
            {{5, 6, 7}, 1, {-9, 5, 6}},
            {{5, 6, 7}, -1, {20, 7, 6, 5}},
        };
        for (const auto &[frames, step, ends] : cases) {
            for (qsizetype i = 1; i < ends.size(); ++i)
                QCOMPARE(steppedFrame(frames, ends[i - 1], step).value(), ends[i]);
        }
        QVERIFY(!steppedFrame({}, 3, 1));
    }

private:
    std::string path(const char *name) const { return m_folder.filePath(QLatin1String(name)).toStdString(); }

    QTemporaryDir m_folder;
};

QTEST_APPLESS_MAIN(FrameSequenceTest)
#include "tst_framesequence.moc"
