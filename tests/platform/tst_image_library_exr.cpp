#include "imagefiles.h"

#include <QtTest/QTest>

#include <cmath>

using namespace TImageLibrary;

class ImageLibraryExrTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void compressions_data();
    void compressions();
    void dataWindows_data();
    void dataWindows();
    void types_data();
    void types();
    void lumaChroma();
    void layerNames_data();
    void layerNames();
    void deepPartsAreLeftOut();
    void unknownNamesGiveTheDefault();
    void progress_data();
    void progress();
};

void ImageLibraryExrTest::compressions_data()
{
    QTest::addColumn<int>("compression");
    QTest::addColumn<bool>("tiled");
    QTest::addColumn<double>("tolerance");

    const auto row = [](const char *name, Imf::Compression compression, double tolerance) {
        QTest::addRow("%s, lines", name) << int(compression) << false << tolerance;
        QTest::addRow("%s, tiles", name) << int(compression) << true << tolerance;
    };
    row("none", Imf::NO_COMPRESSION, 0.0);
    row("RLE", Imf::RLE_COMPRESSION, 0.0);
    row("ZIPS", Imf::ZIPS_COMPRESSION, 0.0);
    row("ZIP", Imf::ZIP_COMPRESSION, 0.0);
    row("PIZ", Imf::PIZ_COMPRESSION, 0.0);
    row("PXR24", Imf::PXR24_COMPRESSION, 0.0);
    row("B44", Imf::B44_COMPRESSION, 0.1);
    row("B44A", Imf::B44A_COMPRESSION, 0.1);
    row("DWAA", Imf::DWAA_COMPRESSION, 0.1);
    row("DWAB", Imf::DWAB_COMPRESSION, 0.1);
}

void ImageLibraryExrTest::compressions()
{
    QFETCH(const int, compression);
    QFETCH(const bool, tiled);
    QFETCH(const double, tolerance);
    const ImageFolder folder;
    ExrSpec spec;
    // Several bands and a last chunk that is not full in every compression.
    spec.data = spec.display = {{0, 0}, {45, 699}};
    spec.compression = Imf::Compression(compression);
    spec.tiled = tiled;
    writeExr(folder("a.exr"), spec);

    QCOMPARE(IImageCore::Probe(folder("a.exr").c_str()), "exr");
    QCOMPARE(layersOf(folder("a.exr")), "\"A\" \"B\" \"G\" \"R\"");
    const Image image = loadImage(folder("a.exr"), {"R", "B"});
    QVERIFY(image);
    QCOMPARE(image->GetWidth(), 46);
    QCOMPARE(image->GetHeight(), 700);
    QVERIFY(image->GetIsYFlipped());
    QVERIFY(image->GetIsPremultiplied());
    QCOMPARE(image->GetLayers().size(), 2U);
    QCOMPARE(image->GetDefaultLayer()->GetLayerName(), "R");
    for (const CTImageLayer &layer : image->GetLayers()) {
        const CTImageChannel &channel = *layer.GetDefaultChannel();
        QCOMPARE(channel.GetChannelName(), layer.GetLayerName());
        QCOMPARE(layer.GetChannel(layer.GetLayerName().c_str()), &channel);
        QCOMPARE(channel.GetChannelBitDepth(), 2);
        QCOMPARE(channel.GetChannelBitType(), 1);
        QCOMPARE(channel.GetChannelBitSamples(), 1);
        const int index = layer.GetLayerName() == "R" ? 3 : 1;
        for (int y = 0; y < 700; ++y) {
            for (int x = 0; x < 46; ++x) {
                const double expected = double(testValue(x, y, index));
                const double found = sampleAt(channel, x, y);
                QVERIFY2(
                    std::abs(found - expected) <= tolerance * expected + (tolerance > 0 ? 30.0 : 0.0),
                    qPrintable(QStringLiteral("%1 at %2,%3, not %4").arg(found).arg(x).arg(y).arg(expected)));
            }
        }
    }
}

void ImageLibraryExrTest::dataWindows_data()
{
    QTest::addColumn<QRect>("data");
    QTest::addColumn<int>("compression");
    QTest::addColumn<bool>("tiled");
    QTest::addColumn<bool>("decreasing");

    // The display window is 40 x 30 from (10, -5).
    const std::initializer_list<std::pair<const char *, QRect>> windows = {
        {"the same", {10, -5, 40, 30}}, {"smaller", {20, 3, 7, 11}},  {"one pixel", {10, -5, 1, 1}},
        {"larger", {-30, -40, 90, 90}}, {"wider", {-7, 0, 100, 5}},   {"higher", {12, -60, 3, 120}},
        {"across", {40, 15, 40, 40}},   {"beside", {60, -5, 12, 30}}, {"below", {10, 40, 40, 9}},
    };
    for (const auto &[name, window] : windows) {
        QTest::addRow("%s, plain lines", name) << window << int(Imf::NO_COMPRESSION) << false << false;
        QTest::addRow("%s, ZIP lines", name) << window << int(Imf::ZIP_COMPRESSION) << false << false;
        QTest::addRow("%s, ZIPS lines upwards", name)
            << window << int(Imf::ZIPS_COMPRESSION) << false << true;
        QTest::addRow("%s, tiles", name) << window << int(Imf::PIZ_COMPRESSION) << true << false;
    }
}

void ImageLibraryExrTest::dataWindows()
{
    QFETCH(const QRect, data);
    QFETCH(const int, compression);
    QFETCH(const bool, tiled);
    QFETCH(const bool, decreasing);
    const ImageFolder folder;
    ExrSpec spec;
    spec.display = {{10, -5}, {49, 24}};
    spec.data = {{data.left(), data.top()}, {data.right(), data.bottom()}};
    // Of another size than the halves before it in a line.
    spec.channels = {{"A"}, {"Z", Imf::FLOAT}};
    spec.compression = Imf::Compression(compression);
    spec.tiled = tiled;
    spec.order = decreasing ? Imf::DECREASING_Y : Imf::INCREASING_Y;
    writeExr(folder("a.exr"), spec);

    for (const char *name : {"A", "Z"}) {
        const Image image = loadImage(folder("a.exr"), {name});
        QVERIFY(image);
        QCOMPARE(QSize(image->GetWidth(), image->GetHeight()), QSize(40, 30));
        for (int y = 0; y < 30; ++y) {
            for (int x = 0; x < 40; ++x) {
                const QPoint pixel(x + 10, y - 5);
                const double expected = data.contains(pixel)
                    ? double(testValue(pixel.x(), pixel.y(), *name == 'Z' ? 1 : 0))
                    : 0.0;
                QCOMPARE(sampleAt(image, name, x, y), expected);
            }
        }
    }
}

void ImageLibraryExrTest::types_data()
{
    QTest::addColumn<QByteArray>("names");
    QTest::addColumn<int>("depth");

    QTest::newRow("half") << QByteArray("R") << 2;
    QTest::newRow("float") << QByteArray("Z") << 4;
    QTest::newRow("integer") << QByteArray("id") << 4;
    QTest::newRow("half beside float") << QByteArray("R Z") << 4;
    QTest::newRow("half beside integer") << QByteArray("R id") << 4;
}

void ImageLibraryExrTest::types()
{
    QFETCH(const QByteArray, names);
    QFETCH(const int, depth);
    const ImageFolder folder;
    ExrSpec spec;
    spec.channels = {{"R"}, {"Z", Imf::FLOAT}, {"id", Imf::UINT}};
    for (const Imf::Compression compression : {Imf::ZIP_COMPRESSION, Imf::NO_COMPRESSION}) {
        spec.compression = compression;
        writeExr(folder("a.exr"), spec);
        std::set<std::string> wanted;
        for (const QByteArray &name : names.split(' '))
            wanted.insert(name.toStdString());
        const Image image = loadImage(folder("a.exr"), wanted);
        QVERIFY(image);
        QCOMPARE(image->GetLayers().size(), wanted.size());
        for (const CTImageLayer &layer : image->GetLayers()) {
            QCOMPARE(layer.GetDefaultChannel()->GetChannelBitDepth(), depth);
            QCOMPARE(layer.GetDefaultChannel()->GetChannelBitType(), 1);
            const int index = layer.GetLayerName() == "R" ? 0 : layer.GetLayerName() == "Z" ? 1 : 2;
            for (const QPoint pixel : {QPoint(0, 0), QPoint(39, 0), QPoint(7, 13), QPoint(39, 29)})
                QCOMPARE(sampleAt(*layer.GetDefaultChannel(), pixel.x(), pixel.y()),
                         double(testValue(pixel.x(), pixel.y(), index)));
        }
    }
}

void ImageLibraryExrTest::lumaChroma()
{
    const ImageFolder folder;
    ExrSpec spec;
    spec.channels = {{"BY", Imf::HALF, 2}, {"RY", Imf::HALF, 2}, {"Y"}};
    // The last column and row of the display window, and its first, have no chroma of their own.
    spec.display = {{-3, 1}, {37, 28}};
    for (const Imath::Box2i &data : {Imath::Box2i({-4, 0}, {39, 29}), Imath::Box2i({2, 4}, {21, 15})}) {
        for (const Imf::Compression compression :
             {Imf::NO_COMPRESSION, Imf::ZIP_COMPRESSION, Imf::PIZ_COMPRESSION}) {
            spec.data = data;
            spec.compression = compression;
            writeExr(folder("a.exr"), spec);
            const Image image = loadImage(folder("a.exr"), {"Y", "RY", "BY"});
            QVERIFY(image);
            QCOMPARE(image->GetDefaultLayer()->GetLayerName(), "Y");
            const CTImageChannel &luma = *image->GetLayer("Y")->GetDefaultChannel();
            QCOMPARE(QSize(luma.GetChannelWidth(), luma.GetChannelHeight()), QSize(41, 28));
            for (const char *name : {"BY", "RY"}) {
                const CTImageChannel &chroma = *image->GetLayer(name)->GetDefaultChannel();
                // Samples at x = -2, 0, … 36 and y = 2, 4, … 28
                QCOMPARE(QSize(chroma.GetChannelWidth(), chroma.GetChannelHeight()), QSize(20, 14));
                for (int y = 0; y < 14; ++y) {
                    for (int x = 0; x < 20; ++x) {
                        const Imath::V2i pixel(2 * x - 2, 2 * y + 2);
                        const double expected = data.intersects(pixel)
                            ? double(testValue(pixel.x, pixel.y, *name == 'B' ? 0 : 1))
                            : 0.0;
                        QCOMPARE(sampleAt(chroma, x, y), expected);
                    }
                }
            }
        }
    }
}

void ImageLibraryExrTest::layerNames_data()
{
    QTest::addColumn<QList<QByteArrayList>>("parts"); ///< the part's name, then its channels
    QTest::addColumn<QByteArray>("layers");
    QTest::addColumn<QByteArray>("probe"); ///< a layer whose pixels are looked at
    QTest::addColumn<int>("part");
    QTest::addColumn<int>("channel");

    using Parts = QList<QByteArrayList>;
    QTest::newRow("one part") << Parts{{"", ".R", "R", "diffuse.R", "left.diffuse.R"}}
                              << QByteArray(R"(".R" "R" "diffuse.R" "left.diffuse.R")") << QByteArray(".R")
                              << 0 << 0;
    QTest::newRow("parts that share no name") << Parts{{"beauty", "R", "G"}, {"depth", "Z"}}
                                              << QByteArray(R"("G" "R" "Z")") << QByteArray("Z") << 1 << 0;
    QTest::newRow("parts that share a name")
        << Parts{{"left", "A", "R"}, {"depth", "Z"}, {"right", "R"}}
        << QByteArray(R"("Z" "left.A" "left.R" "right.R")") << QByteArray("right.R") << 2 << 0;
    QTest::newRow("names that have their part's")
        << Parts{{"diffuse", "R", "diffuse.R"}, {"spec", "R"}} << QByteArray(R"("diffuse.R" "spec.R")")
        << QByteArray("spec.R") << 1 << 0;
}

void ImageLibraryExrTest::layerNames()
{
    QFETCH(const QList<QByteArrayList>, parts);
    QFETCH(const QByteArray, layers);
    QFETCH(const QByteArray, probe);
    QFETCH(const int, part);
    QFETCH(const int, channel);
    const ImageFolder folder;
    std::vector<ExrSpec> specs;
    for (const QByteArrayList &names : parts) {
        ExrSpec spec;
        spec.part = names.first().toStdString();
        spec.channels.clear();
        // Another window each, so that the parts differ in their pixels.
        spec.data.min.x = int(specs.size()) * 4;
        spec.tiled = specs.size() == 1;
        for (const QByteArray &name : names.mid(1))
            spec.channels.push_back({name.toStdString()});
        specs.push_back(spec);
    }
    writeExr(folder("a.exr"), specs);
    QCOMPARE(layersOf(folder("a.exr")), layers);
    const Image image = loadImage(folder("a.exr"));
    QVERIFY(image);
    QCOMPARE(image->GetLayers().size(), std::size_t(layers.count('"') / 2));
    QCOMPARE(sampleAt(image, probe.constData(), part * 4, 3), double(testValue(part * 4, 3, channel)));
    QCOMPARE(sampleAt(image, probe.constData(), part * 4 - 1, 3),
             part > 0 ? 0.0 : double(testValue(39, 2, channel))); // the pixel before it in memory
}

void ImageLibraryExrTest::deepPartsAreLeftOut()
{
    const ImageFolder folder;
    writeDeepExr(folder("deep.exr"));
    QCOMPARE(layersOf(folder("deep.exr")), "none");
    QVERIFY(!Image(IImageCore::Load(folder("deep.exr").c_str(), "exr", {"Z"}, nullptr, nullptr)));

    ExrSpec flat;
    flat.data = flat.display = {{0, 0}, {3, 3}};
    flat.channels = {{"R"}, {"Z"}};
    flat.part = "flat";
    writeDeepExr(folder("mixed.exr"), &flat);
    QCOMPARE(layersOf(folder("mixed.exr")), R"("R" "Z")");
    const Image image = loadImage(folder("mixed.exr"));
    QVERIFY(image);
    QCOMPARE(sampleAt(image, "Z", 2, 1), double(testValue(2, 1, 1)));
}

void ImageLibraryExrTest::unknownNamesGiveTheDefault()
{
    const ImageFolder folder;
    writeExr(folder("a.exr"), ExrSpec());
    const auto only = [](const Image &image) {
        return image && image->GetLayers().size() == 1 ? image->GetLayers().front().GetLayerName() : "?";
    };
    // Another frame of the sequence had the layer.
    QCOMPARE(only(loadImage(folder("a.exr"), {"diffuse.R"})), "R");
    QCOMPARE(only(loadImage(folder("a.exr"), {"diffuse.R", "G"})), "G");
    QCOMPARE(only(Image(IImageCore::Load(folder("a.exr").c_str(), "exr", {}, nullptr, nullptr))), "R");
    QVERIFY(!loadImage(folder("a.exr"), {"R"})->GetLayer("G"));
    QVERIFY(!loadImage(folder("a.exr"), {"R"})->GetLayer(nullptr));
}

void ImageLibraryExrTest::progress_data()
{
    QTest::addColumn<bool>("tiled");
    QTest::addColumn<int>("compression");
    QTest::addColumn<int>("rowsWritten");
    QTest::addColumn<bool>("loads");

    QTest::newRow("lines") << false << int(Imf::ZIPS_COMPRESSION) << -1 << true;
    QTest::newRow("plain lines") << false << int(Imf::NO_COMPRESSION) << -1 << true;
    QTest::newRow("tiles") << true << int(Imf::PIZ_COMPRESSION) << -1 << true;
    QTest::newRow("a writer that was stopped") << false << int(Imf::ZIPS_COMPRESSION) << 500 << false;
}

void ImageLibraryExrTest::progress()
{
    QFETCH(const bool, tiled);
    QFETCH(const int, compression);
    QFETCH(const int, rowsWritten);
    QFETCH(const bool, loads);
    const ImageFolder folder;
    ExrSpec spec;
    spec.data = spec.display = {{0, 0}, {39, 1199}};
    spec.tiled = tiled;
    spec.compression = Imf::Compression(compression);
    spec.rowsWritten = rowsWritten;
    writeExr(folder("a.exr"), spec);

    std::vector<float> told;
    const auto note = [](float fraction, void *user) {
        static_cast<std::vector<float> *>(user)->push_back(fraction);
    };
    const Image image(IImageCore::Load(folder("a.exr").c_str(), "exr", {"R", "G"}, note, &told));
    QCOMPARE(bool(image), loads);
    QVERIFY(std::is_sorted(told.begin(), told.end()));
    QCOMPARE(std::count(told.begin(), told.end(), 1.0F), 1);
    QCOMPARE(told.back(), 1.0F);
    if (loads)
        QVERIFY(told.size() > 4);

    // Nothing stays on screen when there is not even a file.
    told.clear();
    QVERIFY(!Image(IImageCore::Load(folder("none.exr").c_str(), "exr", {"R"}, note, &told)));
    QCOMPARE(told, std::vector<float>{1.0F});
}

QTEST_GUILESS_MAIN(ImageLibraryExrTest)
#include "tst_image_library_exr.moc"
