#include <viewer/widgets/imagetimeline.h>

#include <QtGui/QPainter>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <limits>
#include <utility>

using Frames = std::set<long>;

namespace {

constexpr long kHuge = std::numeric_limits<int>::max();

/// The timeline frame by frame.
QImage reference(imageTimeline &timeline, const Frames &frames, int start, int end, int current)
{
    const QSize size = timeline.size();
    QImage image(size, QImage::Format_RGB32);
    image.fill(timeline.palette().window().color());
    QPainter painter(&image);
    painter.setFont(QFont(QStringLiteral("Lato"), 7));
    const int numberWidth = painter.fontMetrics().horizontalAdvance(QStringLiteral("999.99"));
    const int bottom = size.height() - 2;
    const float step = float(size.width()) / float(end - start + 1);
    const auto x = [&](int frame) { return int(float(frame - start) * step); };
    painter.fillRect(1, 1, size.width() - 2, bottom, Qt::black);
    painter.setPen(QColor(200, 200, 200));
    for (int frame = start, last = 0; frame <= end; ++frame) {
        if (frames.contains(frame) && x(frame) - last >= 4) {
            last = x(frame);
            painter.drawLine(last, bottom - 10, last, bottom);
        }
    }
    painter.setPen(QPen(QColor(150, 150, 150), 2));
    for (int frame = start, last = 0; frame <= end; ++frame) {
        if (!frames.contains(frame)) {
            const QRect column(QPoint(x(frame), 0), QSize(int(step), bottom));
            painter.fillRect(column, QBrush(QColor(100, 100, 100), Qt::Dense3Pattern));
        } else if (x(frame) == 0 || x(frame) - last >= numberWidth) {
            last = x(frame);
            painter.drawLine(last, 15, last, bottom);
            painter.drawText(QPointF(last, 10), QString::number(frame));
        }
    }
    painter.setPen(QPen(QColor(255, 10, 10), 2));
    if (start <= current && current <= end)
        painter.drawLine(x(current), 15, x(current), bottom);
    return image;
}

Frames numbers(int first, int last, int step = 1)
{
    Frames frames;
    for (int frame = first; frame <= last; frame += step)
        frames.insert(frame);
    return frames;
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
        const std::tuple<QSize, Frames, int, int, int> cases[] = {
            {{300, 60}, {7}, 7, 7, 7},
            {{643, 60}, numbers(1001, 1011, 2), 1001, 1011, 1004},
            {{777, 60}, numbers(1, 500, 3), 1, 500, 333},
            {{400, 80}, {-7, 0, 1, 2, 3, 100, 300}, -49, 350, 0}, // a pixel each
            {{200, 60}, numbers(1, 100), 40, 60, 20}};
        for (const auto &[size, frames, start, end, current] : cases) {
            imageTimeline timeline;
            timeline.resize(size);
            timeline.setFrames(frames);
            timeline.setRange(start, end);
            timeline.setPosition(current);
            QCOMPARE(timeline.grab().toImage(), reference(timeline, frames, start, end, current));
        }
    }

    void crowdedFrames()
    {
        imageTimeline timeline;
        timeline.resize(100, 60);
        timeline.setRange(1, 10'000);
        timeline.setPosition(-1);
        timeline.setFrames(numbers(1, 10'000));
        const QImage whole = timeline.grab().toImage();
        Frames holed = numbers(1, 10'000);
        holed.erase(5'023);
        timeline.setFrames(holed);
        for (int x = 0; x < 100; ++x) {
            const QRect column(x, 16, 1, 28); // between the numbers and the short ticks
            QCOMPARE(timeline.grab().toImage().copy(column) != whole.copy(column), x == 50);
        }
        // A pixel gives the frame that it can.
        timeline.setFrames({57, 9'999});
        QSignalSpy changed(&timeline, &imageTimeline::frameChanged);
        for (const int x : {0, 50, 99})
            QTest::mouseClick(&timeline, Qt::LeftButton, {}, {x, 5});
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed[0][0].toInt(), 57);
        QCOMPARE(changed[1][0].toInt(), 9'999);
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
