#include <viewer/widgets/imagetimeline.h>

#include <QtGui/QImage>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <limits>
#include <utility>

namespace {

constexpr long kHuge = std::numeric_limits<int>::max();

} // namespace

class TimelineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
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

    void paintsFramesGapsAndTheLine()
    {
        imageTimeline timeline;
        timeline.resize(160, 60);
        timeline.setFrames({1, 2, 3, 5, 6, 7, 8});
        timeline.setRange(1, 8); // 20 pixels a frame
        const auto columns = [&timeline] {
            // Between the numbers and the short ticks; the line stands at the left edge.
            const QImage image = timeline.grab().toImage();
            QString text;
            for (int x = 0; x < 160; x += 20)
                text += image.pixel(x, 30) == qRgb(255, 10, 10)      ? u'|'
                    : image.pixel(x + 10, 30) == qRgb(100, 100, 100) ? u'x'
                                                                     : u'.';
            return text;
        };
        timeline.setPosition(2);
        QCOMPARE(columns(), u".|.x...."_qs);
        QTest::mousePress(&timeline, Qt::LeftButton, {}, {30, 30});
        QTest::mouseMove(&timeline, {110, 30});
        QCOMPARE(columns(), u"...x.|.."_qs);
        QTest::mouseMove(&timeline, {-50, 30});
        QCOMPARE(columns(), u"|..x...."_qs);
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
