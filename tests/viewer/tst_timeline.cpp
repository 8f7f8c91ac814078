#include <viewer/widgets/imagetimeline.h>

#include <QtGui/QFontMetrics>
#include <QtGui/QImage>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <algorithm>
#include <limits>
#include <utility>

using Frames = std::set<long>;

namespace {

constexpr long kHuge = std::numeric_limits<int>::max();

/// The brightest thing in each column, between two rows.
QStringList columns(imageTimeline &timeline, int columnWidth, int top, int bottom)
{
    const QImage image = timeline.grab().toImage();
    QStringList result;
    for (int left = 0; left + columnWidth <= image.width(); left += columnWidth) {
        int grey = 0;
        bool red = false;
        for (int x = left; x < left + std::max(columnWidth - 2, 1); ++x) { // lines are two pixels wide
            for (int y = top; y < bottom; ++y) {
                const QRgb colour = image.pixel(x, y);
                red = red || colour == qRgb(255, 10, 10);
                grey = std::max(grey, qGreen(colour));
            }
        }
        result += red     ? u"line"_qs
            : grey == 0   ? u"none"_qs
            : grey == 100 ? u"gap"_qs
            : grey == 200 ? u"tick"_qs
                          : u"number"_qs;
    }
    return result;
}

} // namespace

class TimelineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void moves()
    {
        imageTimeline timeline;
        QSignalSpy changed(&timeline, &imageTimeline::frameChanged);
        QVERIFY(!timeline.moveNext() && !timeline.movePrevious());
        timeline.moveFirst();
        timeline.setFrames({1, 2, 4, 9});
        QVERIFY(timeline.setByFrame(-4)); // no step is below 1
        QVERIFY(timeline.moveNext() && timeline.moveNext() && timeline.movePrevious());
        timeline.setByFrame(2);
        QVERIFY(timeline.moveNext() && timeline.moveNext() && !timeline.moveNext());
        timeline.moveLast();
        timeline.moveFirst();
        QVERIFY(!timeline.movePrevious());
        QList<int> frames;
        for (const QVariantList &emitted : std::as_const(changed)) {
            frames << emitted[0].toInt();
            QCOMPARE(emitted.mid(1), QVariantList(4, false));
        }
        QCOMPARE(frames, QList<int>({2, 4, 2, 4, 9, 1}));
    }

    void drags()
    {
        QWidget window;
        window.resize(400, 100);
        imageTimeline timeline(&window);
        timeline.resize(200, 60);
        timeline.setFrames({-1, 0, 1, 2, 3, 7, 8});
        timeline.setRange(-1, 8); // 20 pixels a frame
        timeline.setPosition(1);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QSignalSpy scrubbed(&timeline, &imageTimeline::frameScrubbed);
        QSignalSpy changed(&timeline, &imageTimeline::frameChanged);
        const auto at = [](int frame) { return QPoint((frame + 1) * 20 + 10, 30); };
        const auto drag = [&](Qt::KeyboardModifiers keys, int from, int to) {
            QTest::mousePress(window.windowHandle(), Qt::LeftButton, keys, at(from));
            const bool refused = !timeline.moveNext();
            QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, keys, at(to));
            return refused;
        };
        using Keys = Qt::KeyboardModifiers;
        constexpr Keys kChunk = Qt::ShiftModifier | Qt::ControlModifier;
        for (const auto &[keys, flag] :
             {std::pair(Keys(), 0), std::pair(kChunk, 1), std::pair(Keys(Qt::ControlModifier), 2),
              std::pair(kChunk | Qt::AltModifier, 3), std::pair(Qt::ControlModifier | Qt::AltModifier, 4)}) {
            timeline.setPosition(1);
            QVERIFY(drag(keys, 2, 5)); // 5 is missing
            const QVariantList emitted{2, flag == 1, flag == 2, flag == 3, flag == 4};
            QCOMPARE(scrubbed.takeLast(), emitted);
            QCOMPARE(changed.takeLast(), emitted);
            QVERIFY(scrubbed.isEmpty() && changed.isEmpty());
        }
        // Back on the settled frame without a step between: the frame last shown counts.
        QTest::mousePress(&timeline, Qt::LeftButton, {}, at(-1));
        QTest::mouseRelease(&timeline, Qt::LeftButton, {}, at(2));
        QCOMPARE(changed.takeLast()[0].toInt(), -1);

        QTest::mousePress(&timeline, Qt::LeftButton, {}, at(-1));
        QTest::mouseRelease(&timeline, Qt::RightButton, {}, at(8));
        QTest::mouseRelease(&timeline, Qt::LeftButton, {}, at(8));
        QVERIFY(changed.isEmpty() && timeline.moveNext());
    }

    void paints()
    {
        imageTimeline timeline;
        const QFontMetrics metrics(QFont(QStringLiteral("Lato"), 7));
        const int frame = metrics.horizontalAdvance(QStringLiteral("999.99")) - 1; // no room for each number
        timeline.resize(8 * frame, 60);
        timeline.setFrames({10, 11, 12, 13, 14, 17, 18, 19});
        timeline.setRange(11, 18);
        timeline.setPosition(14);
        const auto looks = [&timeline, frame](const QString &numbers, const QString &middle,
                                              const QString &ticks) {
            QCOMPARE(columns(timeline, frame, 1, 13).join(u' '), numbers);
            QCOMPARE(columns(timeline, frame, 16, 45).join(u' '), middle);
            QCOMPARE(columns(timeline, frame, 49, 52).join(u' '), ticks);
        };
        looks(u"number none number none gap gap number none"_qs,
              u"number none number line gap gap number none"_qs,
              u"number tick number line gap gap number tick"_qs);
        timeline.setPosition(19);
        looks(u"number none number none gap gap number none"_qs,
              u"number none number none gap gap number none"_qs,
              u"number tick number tick gap gap number tick"_qs);
        QVERIFY(timeline.grab().toImage().pixel(8 * frame - 1, 30) != qRgb(255, 10, 10));
        timeline.resize(8 * 3, 60); // a tick needs four pixels
        QCOMPARE(columns(timeline, 3, 49, 52).join(u' '), u"number none tick none gap gap tick none"_qs);
    }

    void crowdedFrames()
    {
        imageTimeline timeline;
        timeline.resize(100, 60);
        timeline.setRange(1, 9'990);
        timeline.setPosition(-1);
        Frames frames;
        for (int frame = 1; frame <= 9'990; ++frame)
            frames.insert(frame);
        timeline.setFrames(frames);
        QStringList whole = columns(timeline, 1, 16, 45); // between the numbers and the short ticks
        QVERIFY(!whole.contains(u"gap"_qs));
        const auto column = whole.indexOf(u"none"_qs, 51);
        frames.erase(column * 999 / 10 + 23);
        timeline.setFrames(frames);
        whole[column] = u"gap"_qs;
        QCOMPARE(columns(timeline, 1, 16, 45), whole);
        // A pixel gives the frame that it can.
        timeline.setFrames({57, 9'985});
        QSignalSpy changed(&timeline, &imageTimeline::frameChanged);
        for (const int x : {0, 50, 99})
            QTest::mouseClick(&timeline, Qt::LeftButton, {}, {x, 5});
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed[0][0].toInt(), 57);
        QCOMPARE(changed[1][0].toInt(), 9'985);
    }

    void hostileRecords()
    {
        imageTimeline timeline;
        QCOMPARE(timeline.getLength(), size_t(1));
        timeline.setFrames({-kHuge - 1, 5, kHuge, std::numeric_limits<long>::max()});
        QCOMPARE(timeline.getLength(), size_t(kHuge) * 2 + 2);
        for (const long start : {-kHuge * 2, 0L, kHuge}) {
            timeline.setRange(start, -start * 2);
            for (const int width : {0, 1, 3000}) {
                timeline.resize(width, 60);
                QCOMPARE(timeline.grab().width(), width);
                QTest::mouseClick(&timeline, Qt::LeftButton, {}, {width, 5});
            }
        }
    }
};

QTEST_MAIN(TimelineTest)
#include "tst_timeline.moc"
