#include "imagefiles.h"

#include <image_library/aheadpool.h>

#include <QtTest/QTest>

#include <algorithm>
#include <atomic>
#include <future>
#include <mutex>
#include <semaphore>

using namespace Qt::StringLiterals;
using TImageLibrary::AheadControl;
using TImageLibrary::AheadPool;
using TImageLibrary::IImageCore;
using TImageLibrary::TAheadRequest;
using TImageLibrary::TAheadResult;

namespace {

/// A decoder whose jobs take the steps that the test allows; a job's path says what it is.
struct Decoder {
    static constexpr int kSteps = 4;

    void decode(const TAheadRequest &request, AheadControl &control, TAheadResult &result)
    {
        {
            const std::lock_guard lock(mutex);
            order += request.path;
        }
        if (request.path.starts_with("shared"))
            control.isAlone();
        ++begun;
        for (int step = 0; step < kSteps; ++step) {
            allowed.acquire();
            ++steps;
            control.goOn(double(step + 1) / kSteps);
        }
        result.format = request.path;
        result.image = new TImageLibrary::CTImage(1, 1, true, {});
        ++ended;
    }

    std::mutex mutex;
    std::string order;
    std::atomic<int> begun{0};
    std::atomic<int> steps{0};
    std::atomic<int> ended{0};
    std::counting_semaphore<> allowed{0};
};

} // namespace

class ImageLibraryAheadTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void decodesAsManyAsThereAreThreads()
    {
        Decoder decoder;
        AheadPool pool(3, bound(decoder));
        std::vector<AheadPool::Id> ids;
        for (int i = 0; i < 8; ++i)
            ids.push_back(pool.begin({"plain", {}, 0}));
        QTRY_COMPARE(decoder.begun, 3);
        TAheadResult result;
        QVERIFY(!pool.poll(ids[0], result));
        QVERIFY(!pool.take(ids[7], result)); // who needs it is sooner
        decoder.allowed.release(100);
        QTRY_COMPARE(decoder.ended, 7);
        QTRY_COMPARE(pool.counts().running, 0);
        QCOMPARE(pool.counts().mostRunning, 3);
        for (int i = 0; i < 6; ++i) {
            QVERIFY(pool.poll(ids[std::size_t(i)], result));
            const Image image(result.image);
            QCOMPARE(result.format, "plain");
        }
        QCOMPARE(pool.counts().kept, 1); // goes with the pool, as a leak checker sees
    }

    void theMoreUrgentComesFirst()
    {
        Decoder decoder;
        AheadPool pool(1, bound(decoder));
        pool.begin({"a", {}, 0});
        QTRY_COMPARE(decoder.begun, 1);
        pool.begin({"b", {}, 0});
        pool.begin({"c", {}, 1});
        pool.begin({"d", {}, 1});
        decoder.allowed.release(100);
        QTRY_COMPARE(pool.counts().running + decoder.ended, 4);
        QTRY_COMPARE(decoder.ended, 4);
        QCOMPARE(decoder.order, "acdb");
    }

    void whatIsCancelledLeavesNothing()
    {
        Decoder decoder;
        AheadPool pool(2, bound(decoder));
        const AheadPool::Id running = pool.begin({"plain", {}, 0});
        const AheadPool::Id other = pool.begin({"plain", {}, 0});
        const AheadPool::Id queued = pool.begin({"plain", {}, 0});
        QTRY_COMPARE(decoder.begun, 2);
        for (const AheadPool::Id id : {running, queued, other})
            pool.cancel(id);
        QCOMPARE(pool.counts().kept, 0);
        decoder.allowed.release(2); // each to its next step
        QTRY_COMPARE(pool.counts().running, 0);
        QCOMPARE(decoder.ended, 0);
        TAheadResult result;
        QVERIFY(!pool.poll(running, result) && !pool.take(queued, result));
        const AheadPool::Id last = pool.begin({"plain", {}, 0});
        decoder.allowed.release(Decoder::kSteps);
        QTRY_VERIFY(result.image || pool.poll(last, result));
        const Image image(result.image);
    }

    void loadsHaveTheRightOfWay()
    {
        Decoder decoder;
        AheadPool pool(2, bound(decoder));
        const AheadPool::Id held = pool.begin({"shared", {}, 0});
        QTRY_COMPARE(decoder.begun, 1);
        {
            const AheadPool::RightOfWay first(pool);
            decoder.allowed.release(100);
            QTRY_COMPARE(decoder.steps, 1);
            const AheadPool::Id waiting = pool.begin({"plain", {}, 0});
            // What is taken goes on nevertheless, and nothing else begins.
            TAheadResult result;
            QVERIFY(pool.take(held, result));
            const Image image(result.image);
            QCOMPARE(decoder.begun, 1);
            QVERIFY(!pool.take(waiting, result));
        }
        const AheadPool::Id slow = pool.begin({"plain", {}, 0});
        QTRY_VERIFY(decoder.ended == 2);
        TAheadResult result;
        QVERIFY(pool.take(slow, result));
        const Image image(result.image);
    }

    void whatCannotBeSharedIsGivenBackWhereALoadIsSooner()
    {
        for (const std::string name : {"plain", "shared"}) {
            Decoder decoder;
            AheadPool pool(4, bound(decoder));
            const AheadPool::Id id = pool.begin({name, {}, 0});
            const AheadPool::Id beside = pool.begin({"plain", {}, 0});
            QTRY_COMPARE(decoder.begun, 2);
            auto taken = std::async(std::launch::async, [&] {
                TAheadResult result;
                const bool isTaken = pool.take(id, result);
                const Image image(result.image);
                return isTaken;
            });
            if (name == "shared")
                decoder.allowed.release(2 * Decoder::kSteps);
            QCOMPARE(taken.get(), name == "shared");
            decoder.allowed.release(2 * Decoder::kSteps);
            TAheadResult result;
            QTRY_VERIFY(result.image || pool.poll(beside, result));
            const Image image(result.image);
        }
    }

    void givesWhatALoadGives_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("compression");
        QTest::newRow("zip") << u"zip.exr"_s << int(Imf::ZIP_COMPRESSION);
        QTest::newRow("piz") << u"piz.exr"_s << int(Imf::PIZ_COMPRESSION);
        QTest::newRow("png") << u"image.png"_s << -1;
    }
    void givesWhatALoadGives()
    {
        QFETCH(const QString, name);
        QFETCH(const int, compression);
        const std::string path = m_folder(qPrintable(name));
        ExrSpec spec;
        spec.display = spec.data = {{0, 0}, {299, 199}};
        spec.compression = Imf::Compression(std::max(compression, 0));
        if (compression < 0)
            QVERIFY(writeImage(path, OIIO::ImageSpec(300, 200, 4, OIIO::TypeDesc::UINT8)));
        else
            writeExr(path, spec);
        std::set<std::string> names;
        const char *format = IImageCore::Probe(path.c_str());
        QVERIFY(IImageCore::LoadLayers(path.c_str(), format, names));
        const Image expected = loadImage(path);

        TAheadResult result;
        const std::uint64_t id = IImageCore::BeginAhead({path, names, 0});
        QTRY_VERIFY(result.image || IImageCore::PollAhead(id, result));
        const Image image(result.image);
        QVERIFY(image);
        QCOMPARE(result.format, format);
        QCOMPARE(result.layers, names);
        QCOMPARE(image->GetWidth(), 300);
        const std::string layer = compression < 0 ? "" : "G";
        for (int x = 0; x < 300; x += 7)
            QCOMPARE(sampleAt(image, layer.c_str(), x, x / 2), sampleAt(expected, layer.c_str(), x, x / 2));
    }

    void tellsWhatDoesNotLoad()
    {
        TAheadResult result;
        const std::uint64_t id = IImageCore::BeginAhead({m_folder("none.exr"), {}, 0});
        QTRY_VERIFY(!result.failure.reason.empty() || IImageCore::PollAhead(id, result));
        QVERIFY(!result.image);
        QCOMPARE(result.failure.kind, TImageLibrary::TLoadFailure::Missing);
    }

private:
    static AheadPool::Decode bound(Decoder &decoder)
    {
        return [&decoder](const TAheadRequest &request, AheadControl &control, TAheadResult &result) {
            decoder.decode(request, control, result);
        };
    }

    ImageFolder m_folder;
};

QTEST_GUILESS_MAIN(ImageLibraryAheadTest)

#include "tst_image_library_ahead.moc"
