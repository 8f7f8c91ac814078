#include "fakedisplay.h"

#include <viewer/frames/framecache.h>

#include <QtGui/qopengl.h>
#include <QtTest/QTest>

#include <memory>

namespace {

constexpr std::uint64_t kFrameBytes = 12;

struct Window {
    explicit Window(CacheTotals &totals)
        : cache(totals, display)
    { }

    /// A frame of two planes, 4 and 8 bytes, whose image goes after the load.
    ImageFrame &insert(char path, int scale = 1)
    {
        auto frame = std::make_unique<ImageFrame>();
        frame->planeSizes = {{2, scale}, {2, 2 * scale}};
        frame->planes = {pixels.constData(), pixels.constData() + 4 * scale};
        frame->components = 1;
        frame->pixelType = GL_HALF_FLOAT;
        frame->byteSize = kFrameBytes * std::uint64_t(scale);
        frame->display = &display;
        display.uploadTextures(*frame);
        ImageFrame &inserted = cache.insert(std::move(frame), std::string(1, path));
        inserted.planes.clear();
        return inserted;
    }
    /// "aV bM": which of the frames a to z are where.
    QByteArray state() const
    {
        QByteArray places;
        for (char name = 'a'; name <= 'z'; ++name) {
            if (const ImageFrame *frame = cache.find(std::string(1, name)))
                places.append(name).append(frame->inVideoMemory ? "V " : "M ");
        }
        return places.trimmed();
    }

    QByteArray pixels = QByteArray("0123456789ab").repeated(50);
    FakeDisplay display;
    FrameCache cache;
};

} // namespace

class FrameCacheTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void placement()
    {
        const std::tuple<std::uint64_t, std::uint64_t, QByteArray, QByteArray> cases[] = {
            {24, 24, "abcd", "aV bV cM dM"}, // video memory first
            {24, 24, "abcde", "bV dM eV"}, // full: one leaves each
            {13, 1, "abc", "aV bV cM"}, // budgets are soft
            {0, 0, "abc", "cV"},
            {24, 0, "abac", "aV cV"}, // replaced is youngest
            {12, 24, "abcab", "aV bM cM"}, // changes memory
        };
        for (const auto &[videoBudget, mainBudget, inserted, state] : cases) {
            CacheTotals totals{0, 0, videoBudget, mainBudget};
            Window window(totals);
            for (const char path : inserted) {
                window.insert(path);
                window.cache.find("a"); // does not make a younger
            }
            QCOMPARE(window.state(), state);
            QCOMPARE(totals.videoMemoryUsed, std::uint64_t(state.count('V')) * kFrameBytes);
            QCOMPARE(totals.mainMemoryUsed, std::uint64_t(state.count('M')) * kFrameBytes);
            QVERIFY(!window.cache.remove("z"));
            window.cache.clear();
            QCOMPARE(window.display.textures, 0);
            QCOMPARE(totals.videoMemoryUsed + totals.mainMemoryUsed, std::uint64_t(0));
        }
    }

    /// Large frames after small ones: the small ones leave until less than the budget is in use.
    void framesOfAnySize()
    {
        CacheTotals totals{0, 0, 60, 60};
        Window window(totals);
        for (char path = 'a'; path <= 'j'; ++path)
            window.insert(path);
        QCOMPARE(totals.videoMemoryUsed + totals.mainMemoryUsed, 120U);
        for (char path = 'k'; path <= 'z'; ++path) {
            window.insert(path, 50);
            QVERIFY(totals.videoMemoryUsed < 60 + 50 * kFrameBytes);
            QVERIFY(totals.mainMemoryUsed < 60 + 50 * kFrameBytes);
        }
    }
};

QTEST_APPLESS_MAIN(FrameCacheTest)
#include "tst_framecache.moc"
