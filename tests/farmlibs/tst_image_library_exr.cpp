#include "imagefiles.h"
#include "table.h"

#include <ImfFrameBuffer.h>
#include <ImfRgbaFile.h>
#include <ImfStandardAttributes.h>
#include <OpenImageIO/imagebufalgo.h>

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

    /// Beside a colour, luminance and chroma stay as they are.
    void subsampled()
    {
        const ImageFolder folder;
        ExrSpec spec;
        spec.channels = {
            {"BY", Imf::HALF, {2, 2}}, {"R"}, {"RY", Imf::HALF, {2, 2}}, {"Y"}, {"rows", Imf::HALF, {1, 2}}};
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
            QCOMPARE(luma.GetChannelName(), ""); // a grey like any other
            QCOMPARE(QSize(luma.GetChannelWidth(), luma.GetChannelHeight()), QSize(41, 28));
            // The first samples in sight are at x = -2, or -3 where every column has one, and at y = 2.
            for (const auto &[name, left, step, index] :
                 {std::tuple("BY", -2, 2, 0), {"RY", -2, 2, 2}, {"rows", -3, 1, 4}}) {
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

    /// Luminance and chroma come as the colour that the format's own reader makes of them.
    void lumaChroma_data()
    {
        addTable<Imath::Box2i, int, int>(
            {"data", "compression", "order"},
            {{"as it is", {{0, 0}, {39, 29}}, Imf::PIZ_COMPRESSION, Imf::INCREASING_Y},
             {"from the bottom", {{0, 0}, {39, 29}}, Imf::ZIP_COMPRESSION, Imf::DECREASING_Y},
             {"larger", {{-6, -4}, {53, 47}}, Imf::NO_COMPRESSION, Imf::INCREASING_Y},
             {"smaller", {{4, 2}, {11, 5}}, Imf::ZIPS_COMPRESSION, Imf::INCREASING_Y},
             {"two lines", {{2, 28}, {3, 29}}, Imf::RLE_COMPRESSION, Imf::INCREASING_Y}});
    }

    void lumaChroma()
    {
        QFETCH(const Imath::Box2i, data);
        QFETCH(const int, compression);
        QFETCH(const int, order);
        const ImageFolder folder;
        Imf::Header header({{0, 0}, {39, 29}}, data, 1, {0, 0}, 1, Imf::LineOrder(order),
                           Imf::Compression(compression));
        Imf::addChromaticities(header, {{0.68F, 0.32F}, {0.265F, 0.69F}, {0.15F, 0.06F}, {0.314F, 0.351F}});
        const auto columns = std::size_t(data.max.x - data.min.x) + 1;
        std::vector<Imf::Rgba> pixels(columns * (std::size_t(data.max.y - data.min.y) + 1));
        for (std::size_t i = 0; i < pixels.size(); ++i)
            pixels[i] = {testValue(int(i), 0) / 512, testValue(int(i / columns), 7) / 512, float(i % 9 == 0),
                         testValue(int(i), 3) / 512};
        const auto at = [&](int x, int y) {
            return std::ptrdiff_t(y - data.min.y) * std::ptrdiff_t(columns) + x - data.min.x;
        };
        {
            Imf::RgbaOutputFile file(folder("a.exr").c_str(), header, Imf::WRITE_YCA);
            file.setFrameBuffer(pixels.data() + at(0, 0), 1, columns);
            for (int row = data.min.y; row <= data.max.y; ++row)
                file.writePixels();
        }
        Imf::RgbaInputFile reference(folder("a.exr").c_str());
        reference.setFrameBuffer(pixels.data() + at(0, 0), 1, columns);
        reference.readPixels(data.min.y, data.max.y);

        QCOMPARE(layersOf(folder("a.exr")), R"("A" "B" "G" "R")");
        const Image image = loadImage(folder("a.exr"));
        QVERIFY(image);
        for (int i = 0; i < 40 * 30 * 4; ++i) {
            const Imath::V2i pixel(i / 4 % 40, i / 160);
            const char *names[] = {"R", "G", "B", "A"};
            const half Imf::Rgba::*members[] = {&Imf::Rgba::r, &Imf::Rgba::g, &Imf::Rgba::b, &Imf::Rgba::a};
            const float expected = data.intersects(pixel)
                ? float(pixels[std::size_t(at(pixel.x, pixel.y))].*members[i % 4])
                : 0.0F;
            const double value = sampleAt(image, names[i % 4], pixel.x, pixel.y);
            QVERIFY2(std::abs(value - double(expected)) <= 1.0 / 255,
                     qPrintable(QStringLiteral("%1 as sample %2, not %3").arg(value).arg(i).arg(expected)));
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

    void deep_data()
    {
        addTable<Imath::Box2i, int, bool, QByteArrayList>(
            {"data", "compression", "tiled", "parts"},
            {{"lines", {{0, 0}, {39, 29}}, Imf::ZIPS_COMPRESSION, false, {""}},
             {"lines beyond the picture", {{-8, -70}, {50, 99}}, Imf::RLE_COMPRESSION, false, {""}},
             {"a piece", {{7, 3}, {20, 19}}, Imf::NO_COMPRESSION, true, {""}},
             {"tiles", {{-3, -40}, {39, 99}}, Imf::ZIPS_COMPRESSION, true, {""}},
             {"parts", {{0, 0}, {39, 29}}, Imf::ZIPS_COMPRESSION, false, {"left", "right"}}});
    }

    void deep()
    {
        QFETCH(const Imath::Box2i, data);
        QFETCH(const int, compression);
        QFETCH(const bool, tiled);
        QFETCH(const QByteArrayList, parts);
        const ImageFolder folder;
        std::vector<ExrSpec> specs;
        for (const QByteArray &part : parts) {
            ExrSpec spec;
            spec.data = data;
            spec.compression = Imf::Compression(compression);
            spec.channels = {{"A"}, {"B"}, {"G"}, {"R", Imf::FLOAT}, {"Z", Imf::FLOAT}, {"ZBack"}};
            spec.part = part.toStdString();
            spec.tiled = tiled;
            spec.deep = true;
            specs.push_back(spec);
        }
        writeExr(folder("a.exr"), specs);
        for (int part = 0; part < parts.size(); ++part) {
            const OIIO::ImageBuf flat = OIIO::ImageBufAlgo::flatten(OIIO::ImageBuf(folder("a.exr"), part, 0));
            QVERIFY2(!flat.has_error(), flat.geterror().c_str());
            for (const char *name : {"R", "G", "B", "A"}) {
                const std::string layer =
                    specs.size() > 1 ? specs[std::size_t(part)].part + '.' + name : name;
                const Image image = loadImage(folder("a.exr"), {layer});
                QVERIFY(image && image->GetIsDeep() && image->GetIsPremultiplied());
                QCOMPARE(QSize(image->GetWidth(), image->GetHeight()), QSize(40, 30));
                for (int i = 0; i < 40 * 30; ++i) {
                    const double expected = double(flat.getchannel(
                        i % 40, i / 40, 0, flat.spec().channelindex(name), OIIO::ImageBuf::WrapBlack));
                    QVERIFY(std::abs(sampleAt(image, layer.c_str(), i % 40, i / 40) - expected) <= 1.0 / 255);
                }
            }
        }
    }

    void deepBesideFlat()
    {
        const ImageFolder folder;
        ExrSpec deep;
        deep.deep = true;
        deep.part = "deep";
        deep.compression = Imf::ZIPS_COMPRESSION;
        deep.channels = {{"A"}, {"Z"}, {"id", Imf::UINT}};
        ExrSpec flat;
        flat.part = "flat";
        flat.channels = {{"R"}, {"Z"}};
        writeExr(folder("mixed.exr"), {deep, flat});
        QCOMPARE(layersOf(folder("mixed.exr")), R"("R" "Z" "deep.A" "deep.Z")");
        const Image image = loadImage(folder("mixed.exr"), {"Z"});
        QVERIFY(image && !image->GetIsDeep());
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
            const bool loads = rowsWritten < 0; // else its writer was stopped
            // On a busy machine the other threads may do it all before this one gets to tell.
            for (int times = 0; times == 0 || (loads && told.size() <= 4 && times < 50); ++times) {
                told.clear();
                const Image image(IImageCore::Load(folder("a.exr").c_str(), "exr", {"R", "G"}, note, &told));
                QCOMPARE(bool(image), loads);
            }
            QVERIFY(std::is_sorted(told.begin(), told.end()) && told.size() > (loads ? 4U : 0U));
            QCOMPARE(std::count(told.begin(), told.end(), 1.0F), 1);
            QCOMPARE(told.back(), 1.0F);
        }
    }
};

QTEST_GUILESS_MAIN(ImageLibraryExrTest)
#include "tst_image_library_exr.moc"
