#include <viewer/frames/framesteps.h>

#include <QtTest/QTest>

#include <limits>
#include <tuple>

class FrameStepsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void steps()
    {
        constexpr long kHuge = std::numeric_limits<int>::max();
        // The frames, the step, and where one after the other ends.
        const std::tuple<std::set<long>, long, QList<std::int64_t>> cases[] = {
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
            const std::vector<std::int32_t> list(frames.begin(), frames.end());
            for (qsizetype i = 1; i < ends.size(); ++i) {
                QCOMPARE(steppedFrame(frames, ends[i - 1], step).value(), ends[i]);
                QCOMPARE(steppedFrame(list, ends[i - 1], step).value(), ends[i]);
            }
        }
        QVERIFY(!steppedFrame(std::set<long>(), 3, 1));
    }
};

QTEST_APPLESS_MAIN(FrameStepsTest)
#include "tst_framesteps.moc"
