#include "fakedisplay.h"
#include "jobframes.h"
#include "table.h"

#include <viewer/frames/framebuilder.h>
#include <viewer/frames/framecache.h>
#include <viewer/frames/frameloader.h>
#include <viewer/frames/loadprogress.h>
#include <viewer/frames/sampleformat.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtGui/qopengl.h>
#include <QtTest/QTest>

#include <limits>
#include <vector>

using namespace TImageLibrary;
using Bytes = QByteArray;

namespace {

/// One layer for each channel, named alike.
CTImage makeImage(const std::vector<std::pair<std::string, TPlaneFormat>> &channels)
{
    std::vector<CTImageLayer> layers;
    for (const auto &[name, format] : channels) {
        std::vector<CTImageChannel> own;
        own.emplace_back(name, format);
        layers.emplace_back(name, std::move(own));
    }
    return CTImage(30, 20, true, std::move(layers));
}

/// A file of these channels, the first one all 1.0, the second 2.0, and so on.
void writeExr(const QString &path, const Bytes &names, int side = 2)
{
    ExrChannels channels;
    for (const Bytes &name : names.split(' '))
        channels.emplace_back(name.toStdString(), float(channels.size() + 1));
    writeFrame(path, {side, side}, channels);
}

} // namespace

class FrameLoaderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_cache.reset();
        m_totals = {};
        m_folder = std::make_unique<QTemporaryDir>();
        m_display = std::make_unique<FakeDisplay>();
        m_cache = std::make_unique<FrameCache>(m_totals, *m_display);
    }

    void composite()
    {
        const CTImage image =
            makeImage({{"Y", {.width = 4, .height = 2, .depth = 2, .isFloat = true}},
                       {"BY", {.width = 2, .height = 1, .depth = 2, .isFloat = true}},
                       {"wide", {.width = 2, .height = 1, .depth = 4, .isFloat = true}},
                       {"short", {.width = 2, .height = 1, .depth = 2}},
                       {"many", {.width = 2, .height = 1, .depth = 2, .isFloat = true, .samples = 3}}});
        CompositeLayer composite{"YCbCr", {"BY", "Y"}, "Y,Cb,Cr", true};
        const auto frame = buildFrame(image, composite);
        QCOMPARE(frame->planeSizes, (std::vector<PlaneSize>{{2, 1}, {4, 2}}));
        QCOMPARE(frame->planes.back(), image.GetLayer("Y")->GetDefaultChannel()->GetChannelData());
        QCOMPARE(frame->byteSize, std::uint64_t(2 * (2 + 8)));
        QVERIFY(frame->internalFormat == GL_R16F);
        QVERIFY(frame->isYCbCr && frame->premultiplied && frame->yFlipped);
        // Samples of another kind than the default layer's would be read as if they were of its kind.
        for (const char *other : {"wide", "short", "many", "missing"}) {
            composite.members.back() = other;
            QVERIFY2(!buildFrame(image, composite), other);
        }
    }

    void layers_data()
    {
        const Bytes colour = "A B G R p.B p.G p.R Z";
        // The values: the channel's place in the list, per texture
        addTable<Bytes, Bytes, Bytes, QList<float>>(
            {"channels", "layer", "layout", "values"},
            {{"colour", colour, "", "R,G,B,A", {4, 3, 2, 1}},
             {"a layer that is not there", colour, "deep", "R,G,B,A", {4, 3, 2, 1}},
             {"luma beside colour", "Y BY RY R", "YCbCr", "Y,Cb,Cr", {1, 2, 3}},
             {"grey", "Y Z", "", "Luminance", {1}}});
    }

    void layers()
    {
        QFETCH(const Bytes, channels);
        QFETCH(const Bytes, layer);
        writeExr(path("a.exr"), channels);
        QVERIFY(load("a.exr", layer.toStdString()).shown());
        const ImageFrame &frame = *m_display->shown;
        QTEST(Bytes::fromStdString(frame.channelLayout), "layout");
        QTEST(uploadedValues(), "values");
        QCOMPARE(frame.formatName, std::string("exr"));
        QCOMPARE(m_fraction, 1.0F);
        QVERIFY(frame.planes.empty()); // they went with the image
    }

    /// A failure leaves the cache as it was, and the next try starts anew.
    void failures()
    {
        using Kind = FarmHelpers::LoadFailure::Kind;
        using Row = std::tuple<int, LoadOutcome, Kind, bool>;
        // No file, an empty one, one cut in its header, one cut in its pixels
        for (const auto &[keptBytes, outcome, kind, isCleared] :
             {Row{-1, LoadOutcome::NotFound, Kind::None, false},
              Row{0, LoadOutcome::Corrupted, Kind::Damaged, true},
              Row{40, LoadOutcome::Corrupted, Kind::Damaged, false},
              Row{450, LoadOutcome::Corrupted, Kind::Damaged, false}}) {
            init();
            writeExr(path("a.exr"), "Z", 64);
            QVERIFY(load("a.exr").shown());
            QFile cut(path("b.exr"));
            QVERIFY(keptBytes < 0 || (QFile::copy(path("a.exr"), path("b.exr")) && cut.resize(keptBytes)));
            const LoadResult result = load("b.exr");
            QCOMPARE(result.outcome, outcome);
            QCOMPARE(result.failure.kind, kind);
            QCOMPARE(result.failure.reason.empty(), keptBytes < 0);
            QCOMPARE(m_display->shown == nullptr, isCleared);
            QVERIFY(m_cache->contains(path("a.exr").toStdString())
                    && !m_cache->contains(path("b.exr").toStdString()));
            writeExr(path("b.exr"), "Z");
            QVERIFY(load("b.exr").shown());
        }
        struct Plain { };
        QVERIFY(FarmHelpers::lastFailure<Plain>().reason.empty() && !FarmHelpers::isDeep(Plain()));
    }

    void downsampling()
    {
        QImage image(100, 50, QImage::Format_RGB888);
        image.fill(Qt::red);
        QVERIFY(image.save(path("a.png")) && image.scaled(9, 9).save(path("small.png")));
        QVERIFY(load("a.png", {}, 4).shown());
        QCOMPARE(m_display->shown->planeSizes.front(), (PlaneSize{6, 3}));
        QCOMPARE(m_display->uploaded.front().left(3), QByteArrayLiteral("\xff\0\0"));
        QVERIFY(load("small.png", {}, 4).shown());
        QCOMPARE(m_display->shown->planeSizes.front(), (PlaneSize{1, 1})); // a side never becomes 0
    }

    /// What the display refuses leaves no trace in the cache, and is tried again; what is too large becomes smaller.
    void refusals()
    {
        m_totals.videoMemoryBudget = 0; // a frame in main memory is uploaded whenever it is shown
        writeExr(path("a.exr"), "R G B", 64);
        writeExr(path("b.exr"), "Z");
        QVERIFY(load("a.exr").shown() && load("b.exr").shown());
        const auto used = m_totals.mainMemoryUsed;
        m_display->refusal = Refusal::NoMemory;
        writeExr(path("c.exr"), "Z");
        for (const char *name : {"c.exr", "a.exr"}) {
            const LoadResult refused = load(name);
            QVERIFY(refused.outcome == LoadOutcome::Refused && refused.refusal == Refusal::NoMemory);
            QVERIFY(!refused.failed() && !m_cache->contains(path(name).toStdString()));
        }
        QVERIFY(m_totals.mainMemoryUsed < used);
        m_display->refusal = Refusal::None;
        m_display->longest = 20;
        for (int again = 0; again < 2; ++again) {
            QCOMPARE(load("a.exr", {}, 1).forcedHalvings, 1);
            QCOMPARE(m_display->shown->planeSizes.front().width, 16);
        }
    }

    void progress()
    {
        std::int64_t now = 41;
        LoadProgress progress([&now] { return now; });
        const auto report = [&progress](float fraction) {
            const LoadProgress::Step step = progress.report(fraction);
            return Bytes::number(step.value) + (step.barVisible ? " bar" : "")
                + (step.setWaitCursor ? " wait" : "") + (step.restoreCursor ? " restore" : "");
        };
        for (int load = 0; load < 2; ++load) {
            QCOMPARE(report(0.25009F), Bytes("2500 bar"));
            QCOMPARE(report(0.5F), Bytes("5000 bar"));
            now += 1;
            QCOMPARE(report(0.75F), Bytes("7500 bar wait"));
            QCOMPARE(report(0.99999F), Bytes("9999 bar"));
            QCOMPARE(report(1.0F), Bytes("0 restore"));
        }
        // A cursor that this load did not set is another's.
        QCOMPARE(report(-1e30F), Bytes("0 bar"));
        QCOMPARE(report(std::numeric_limits<float>::quiet_NaN()), Bytes("0"));
    }

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    LoadResult load(const char *name, const std::string &layer = {}, int downsampling = 0)
    {
        m_fraction = 0.0F;
        const auto note = [](float fraction, void *user) { *static_cast<float *>(user) = fraction; };
        return FrameLoader(*m_cache, *m_display)
            .load({path(name).toStdString(), layer, true, downsampling, note, &m_fraction});
    }
    /// First float of each plane of the last upload.
    QList<float> uploadedValues() const
    {
        QList<float> values;
        for (const Bytes &plane : m_display->uploaded)
            values << *reinterpret_cast<const float *>(plane.constData());
        return values;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    CacheTotals m_totals;
    float m_fraction = 0.0F; ///< last one that a load reported
    std::unique_ptr<FakeDisplay> m_display;
    std::unique_ptr<FrameCache> m_cache;
};

QTEST_GUILESS_MAIN(FrameLoaderTest)
#include "tst_frameloader.moc"
