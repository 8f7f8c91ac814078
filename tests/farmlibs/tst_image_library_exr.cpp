#include "imagefiles.h"
#include "table.h"

#include <QtTest/QTest>

#include <cmath>

using namespace TImageLibrary;

class ImageLibraryExrTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void compressions_data()
    {
        addTable<int, double>({"compression", "tolerance"},
                              {{"none", Imf::NO_COMPRESSION, 0.0},
                               {"RLE", Imf::RLE_COMPRESSION, 0.0},
                               {"ZIPS", Imf::ZIPS_COMPRESSION, 0.0},
                               {"ZIP", Imf::ZIP_COMPRESSION, 0.0},
                               {"PIZ", Imf::PIZ_COMPRESSION, 0.0},
                               {"PXR24", Imf::PXR24_COMPRESSION, 0.0},
                               {"B44", Imf::B44_COMPRESSION, 0.1},
                               {"B44A", Imf::B44A_COMPRESSION, 0.1},
                               {"DWAA", Imf::DWAA_COMPRESSION, 0.1},
                               {"DWAB", Imf::DWAB_COMPRESSION, 0.1}});
    }

    void compressions()
    {
        QFETCH(const int, compression);
        QFETCH(const double, tolerance);
        const ImageFolder folder;
        ExrSpec spec;
        // Several bands and a last chunk that is not full in every compression.
        spec.data = spec.display = {{0, 0}, {45, 699}};
        spec.compression = Imf::Compression(compression);
        for (const bool tiled : {false, true}) {
            spec.tiled = tiled;
            writeExr(folder("a.exr"), spec);
            QCOMPARE(layersOf(folder("a.exr")), "\"A\" \"B\" \"G\" \"R\"");
            const Image image = loadImage(folder("a.exr"), {"R", "B"});
            QVERIFY(image && image->GetIsYFlipped() && image->GetIsPremultiplied());
            QCOMPARE(QSize(image->GetWidth(), image->GetHeight()), QSize(46, 700));
            QCOMPARE(image->GetLayers().size(), 2U);
            QCOMPARE(image->GetDefaultLayer()->GetLayerName(), "R");
            for (const CTImageLayer &layer : image->GetLayers()) {
                const CTImageChannel &channel = *layer.GetDefaultChannel();
                QCOMPARE(channel.GetChannelBitDepth(), 2);
                QCOMPARE(channel.GetChannelBitType(), 1);
                for (int i = 0; i < 46 * 700; ++i) {
                    const double expected =
                        double(testValue(i % 46, i / 46, layer.GetLayerName() == "R" ? 3 : 1));
                    const double allowed = tolerance > 0 ? tolerance * expected + 30.0 : 0.0;
                    QVERIFY(std::abs(sampleAt(channel, i % 46, i / 46) - expected) <= allowed);
                }
            }
        }
    }

    void dataWindows_data()
    {
        // The display window is 40 x 30 from (10, -5).
        addTable<QRect>({"data"},
                        {{"the same", {10, -5, 40, 30}},
                         {"smaller", {20, 3, 7, 11}},
                         {"larger", {-30, -40, 90, 90}},
                         {"wider", {-7, 0, 100, 5}},
                         {"across", {40, 15, 40, 40}},
                         {"beside", {60, -5, 12, 30}}});
    }

    void dataWindows()
    {
        QFETCH(const QRect, data);
        const ImageFolder folder;
        ExrSpec spec;
        spec.display = {{10, -5}, {49, 24}};
        spec.data = {{data.left(), data.top()}, {data.right(), data.bottom()}};
        // Of another size than the halves before it in a line.
        spec.channels = {{"A"}, {"Z", Imf::FLOAT}};
        for (const auto compression :
             {Imf::NO_COMPRESSION, Imf::ZIP_COMPRESSION, Imf::ZIPS_COMPRESSION, Imf::PIZ_COMPRESSION}) {
            spec.compression = compression;
            spec.tiled = compression == Imf::PIZ_COMPRESSION;
            spec.order = compression == Imf::ZIPS_COMPRESSION ? Imf::DECREASING_Y : Imf::INCREASING_Y;
            writeExr(folder("a.exr"), spec);
            for (const char *name : {"A", "Z"}) {
                const Image image = loadImage(folder("a.exr"), {name});
                QVERIFY(image);
                QCOMPARE(QSize(image->GetWidth(), image->GetHeight()), QSize(40, 30));
                for (int i = 0; i < 40 * 30; ++i) {
                    const QPoint pixel(i % 40 + 10, i / 40 - 5);
                    const float value = testValue(pixel.x(), pixel.y(), *name == 'Z' ? 1 : 0);
                    QCOMPARE(sampleAt(image, name, i % 40, i / 40),
                             data.contains(pixel) ? double(value) : 0.0);
                }
            }
        }
    }

    void lumaChroma()
    {
        const ImageFolder folder;
        ExrSpec spec;
        spec.channels = {
            {"BY", Imf::HALF, {2, 2}}, {"RY", Imf::HALF, {2, 2}}, {"Y"}, {"rows", Imf::HALF, {1, 2}}};
        // The last column and row of the display window, and its first, have no chroma of their own.
        spec.display = {{-3, 1}, {37, 28}};
        for (const auto &[data, compression] :
             {std::pair(Imath::Box2i({-4, 0}, {39, 29}), Imf::NO_COMPRESSION),
              {{{-4, 0}, {39, 29}}, Imf::ZIP_COMPRESSION},
              {{{2, 4}, {21, 15}}, Imf::NO_COMPRESSION},
              {{{2, 4}, {21, 15}}, Imf::PIZ_COMPRESSION}}) {
            spec.data = data;
            spec.compression = compression;
            writeExr(folder("a.exr"), spec);
            const Image image = loadImage(folder("a.exr"), {"Y", "RY", "BY", "rows"});
            QVERIFY(image);
            QCOMPARE(image->GetDefaultLayer()->GetLayerName(), "Y");
            const CTImageChannel &luma = *image->GetLayer("Y")->GetDefaultChannel();
            QCOMPARE(QSize(luma.GetChannelWidth(), luma.GetChannelHeight()), QSize(41, 28));
            // The first samples in sight are at x = -2, or -3 where every column has one, and at y = 2.
            for (const auto &[name, left, step, index] :
                 {std::tuple("BY", -2, 2, 0), {"RY", -2, 2, 1}, {"rows", -3, 1, 3}}) {
                const CTImageChannel &chroma = *image->GetLayer(name)->GetDefaultChannel();
                const int columns = step == 2 ? 20 : 41;
                QCOMPARE(QSize(chroma.GetChannelWidth(), chroma.GetChannelHeight()), QSize(columns, 14));
                for (int i = 0; i < columns * 14; ++i) {
                    const Imath::V2i pixel(i % columns * step + left, i / columns * 2 + 2);
                    const float value = testValue(pixel.x, pixel.y, index);
                    QCOMPARE(sampleAt(chroma, i % columns, i / columns),
                             data.intersects(pixel) ? double(value) : 0.0);
                }
            }
        }
    }

    void layerNames_data()
    {
        // A part's name, then its channels; a layer whose pixels are looked at, the first of its part.
        addTable<QList<QByteArrayList>, QByteArray, QByteArray, int>(
            {"parts", "layers", "probe", "part"},
            {{"one part", {{"", ".R", "R", "a.R"}}, R"(".R" "R" "a.R")", ".R", 0},
             {"no name shared", {{"beauty", "R", "G"}, {"depth", "Z"}}, R"("G" "R" "Z")", "Z", 1},
             // clang-format off
             {"a name shared", {{"left", "A", "R"}, {"depth", "Z"}, {"right", "R"}},
              R"("Z" "left.A" "left.R" "right.R")", "right.R", 2},
             {"a name with its part's", {{"diffuse", "R", "diffuse.R"}, {"spec", "R"}},
              R"("diffuse.R" "spec.R")", "spec.R", 1}});
        // clang-format on
    }

    void layerNames()
    {
        QFETCH(const QList<QByteArrayList>, parts);
        QFETCH(const QByteArray, layers);
        QFETCH(const QByteArray, probe);
        QFETCH(const int, part);
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
        QCOMPARE(sampleAt(image, probe.constData(), part * 4, 3), double(testValue(part * 4, 3)));
        QCOMPARE(sampleAt(image, probe.constData(), part * 4 - 1, 3),
                 part > 0 ? 0.0 : double(testValue(39, 2))); // the pixel before it in memory
    }

    void deepPartsAreLeftOut()
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

    void progress()
    {
        const ImageFolder folder;
        const auto note = [](float fraction, void *user) {
            static_cast<std::vector<float> *>(user)->push_back(fraction);
        };
        std::vector<float> told;
        for (const auto &[compression, tiled, rowsWritten] : {std::tuple(Imf::ZIPS_COMPRESSION, false, -1),
                                                              {Imf::NO_COMPRESSION, false, -1},
                                                              {Imf::PIZ_COMPRESSION, true, -1},
                                                              {Imf::ZIPS_COMPRESSION, false, 500}}) {
            ExrSpec spec;
            spec.data = spec.display = {{0, 0}, {39, 1199}};
            spec.tiled = tiled;
            spec.compression = compression;
            spec.rowsWritten = rowsWritten;
            writeExr(folder("a.exr"), spec);
            told.clear();
            const bool loads = rowsWritten < 0; // else its writer was stopped
            const Image image(IImageCore::Load(folder("a.exr").c_str(), "exr", {"R", "G"}, note, &told));
            QCOMPARE(bool(image), loads);
            QVERIFY(std::is_sorted(told.begin(), told.end()) && told.size() > (loads ? 4U : 0U));
            QCOMPARE(std::count(told.begin(), told.end(), 1.0F), 1);
            QCOMPARE(told.back(), 1.0F);
        }
    }
};

QTEST_GUILESS_MAIN(ImageLibraryExrTest)
#include "tst_image_library_exr.moc"
