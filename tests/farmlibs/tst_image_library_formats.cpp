#include "imagefiles.h"
#include "table.h"

#include <QtGui/QTransform>
#include <QtTest/QTest>

#include <cmath>

#include <sys/stat.h>

using namespace TImageLibrary;
using OIIO::TypeDesc;

namespace {

constexpr int kWidth = 23;
constexpr int kHeight = 17;
constexpr double k8Bits = 0.5 / 255;
constexpr double k16Bits = 1e-4;

/// A lossless WebP of red 200, green 100, blue 60 and alpha 128, 2048 pixels wide and high: no other format shrinks a plain
/// picture so much.
const QByteArray kStraightWebp =
    "524946461e000000574542505650384c110000002fffc7ff110750b22297a7808188e87f0000";

OIIO::ImageSpec picture(int channels, const TypeDesc &type)
{
    return OIIO::ImageSpec(kWidth, kHeight, channels, type);
}

double fullScale(const CTImageChannel &channel)
{
    if (channel.GetChannelBitType() == 1)
        return 1.0;
    return channel.GetChannelBitDepth() == 1 ? 255.0 : 65535.0;
}

} // namespace

class ImageLibraryFormatsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void formats_data()
    {
        // The format, then samples, bytes a sample, and whether floats; the tolerance is of full scale.
        addTable<QByteArray, int, int, QByteArray, double>(
            {"file", "channels", "type", "found", "tolerance"},
            {{"png, 1 of uint8", "a.png", 1, TypeDesc::UINT8, "png 1 1 0", k8Bits},
             {"png, 3 of uint8", "a.png", 3, TypeDesc::UINT8, "png 3 1 0", k8Bits},
             {"png, 1 of uint16", "a.png", 1, TypeDesc::UINT16, "png 1 4 1", k16Bits},
             {"png, 3 of uint16", "a.png", 3, TypeDesc::UINT16, "png 4 2 0", k16Bits},
             {"tif, 4 of uint16", "a.tif", 4, TypeDesc::UINT16, "tiff 4 2 0", k16Bits},
             {"tif, 3 of half", "a.tif", 3, TypeDesc::HALF, "tiff 3 2 1", 1e-3},
             {"tif, 1 of float", "a.tif", 1, TypeDesc::FLOAT, "tiff 1 4 1", k16Bits},
             {"tif, 3 of uint32", "a.tif", 3, TypeDesc::UINT32, "tiff 3 4 1", k16Bits},
             {"sgi, 3 of uint16", "a.sgi", 3, TypeDesc::UINT16, "sgi 4 2 0", k16Bits},
             {"rla, 3 of uint16", "a.rla", 3, TypeDesc::UINT16, "rla 4 2 0", k16Bits},
             {"dpx, 3 of uint16", "a.dpx", 3, TypeDesc::UINT16, "dpx 4 2 0", k16Bits},
             {"hdr, 3 of float", "a.hdr", 3, TypeDesc::FLOAT, "hdr 3 4 1", 0.01},
             {"ppm, 3 of uint8", "a.ppm", 3, TypeDesc::UINT8, "pnm 3 1 0", k8Bits},
             {"jpg, 3 of uint8", "a.jpg", 3, TypeDesc::UINT8, "jpeg 3 1 0", 0.15},
             {"gif, 3 of uint8", "a.gif", 3, TypeDesc::UINT8, "gif 4 1 0", 0.15},
             {"webp, 3 of uint8", "a.webp", 3, TypeDesc::UINT8, "webp 3 1 0", 0.15}});
    }

    void formats()
    {
        QFETCH(const QByteArray, file);
        QFETCH(const int, channels);
        QFETCH(const int, type);
        QFETCH(const double, tolerance);
        const ImageFolder folder;
        const std::string path = folder(file.constData());
        OIIO::ImageSpec spec = picture(channels, TypeDesc(TypeDesc::BASETYPE(type)));
        spec.attribute("oiio:UnassociatedAlpha", 1);
        QVERIFY(writeImage(path, spec));

        QCOMPARE(layersOf(path), "\"\"");
        const Image image = loadImage(path);
        QVERIFY(image && image->GetIsYFlipped());
        QCOMPARE(QSize(image->GetWidth(), image->GetHeight()), QSize(kWidth, kHeight));
        const CTImageChannel &channel = *image->GetDefaultLayer()->GetDefaultChannel();
        QCOMPARE(QSize(channel.GetChannelWidth(), channel.GetChannelHeight()), QSize(kWidth, kHeight));
        const int samples = channel.GetChannelBitSamples();
        const QByteArrayList found{IImageCore::Probe(path.c_str()), QByteArray::number(samples),
                                   QByteArray::number(channel.GetChannelBitDepth()),
                                   QByteArray::number(channel.GetChannelBitType())};
        QTEST(found.join(' '), "found");
        for (int i = 0; i < kWidth * kHeight * samples; ++i) {
            const int x = i / samples % kWidth;
            const int y = i / samples / kWidth;
            const int sample = i % samples;
            // What is padded is opaque.
            const double expected = sample < channels ? double(testValue(x, y, sample)) / 1024.0 : 1.0;
            const double value = sampleAt(channel, x, y, sample) / fullScale(channel);
            QVERIFY2(std::abs(value - expected) <= tolerance + 1e-6,
                     qPrintable(QStringLiteral("%1 as sample %2, not %3").arg(value).arg(i).arg(expected)));
        }
    }

    void tiffOfTheOtherByteOrder()
    {
        const ImageFolder folder;
        const std::string path = folder("a.tif");
        QVERIFY(writeBytes(path,
                           QByteArray::fromHex("4d4d002a00000008000901000003000000010001000001010003000000010"
                                               "00100000102000300000001000800000103"
                                               "0003000000010001000001060003000000010001000001110003000000010"
                                               "07a00000115000300000001000100000116"
                                               "0003000000010001000001170003000000010001000000000000c8")));
        const Image image = loadImage(path, {""});
        QVERIFY(image);
        QCOMPARE(sampleAt(*image->GetDefaultLayer()->GetDefaultChannel(), 0, 0, 0), 200.0);
    }

    void straightAlpha_data()
    {
        addTable<QByteArray, int, bool>({"file", "type", "multiplied"},
                                        {{"PNG", "a.png", TypeDesc::UINT8, false},
                                         {"Targa", "a.tga", TypeDesc::UINT8, false},
                                         {"BMP", "a.bmp", TypeDesc::UINT8, false},
                                         {"WebP", "a.webp", TypeDesc::UINT8, false},
                                         {"TIFF, straight", "a.tif", TypeDesc::UINT8, false},
                                         {"TIFF, multiplied", "a.tif", TypeDesc::UINT8, true},
                                         {"TIFF of 16 bits, straight", "a.tif", TypeDesc::UINT16, false},
                                         {"TIFF of 16 bits, multiplied", "a.tif", TypeDesc::UINT16, true},
                                         {"TIFF of halves, multiplied", "a.tif", TypeDesc::HALF, true},
                                         {"TIFF of floats, multiplied", "a.tif", TypeDesc::FLOAT, true},
                                         {"SGI", "a.sgi", TypeDesc::UINT16, true}});
    }

    /// Interleaved colours come straight whatever the file says, to the nearest value.
    void straightAlpha()
    {
        QFETCH(const QByteArray, file);
        QFETCH(const bool, multiplied);
        QFETCH(const int, type);
        const ImageFolder folder;
        const std::string path = folder(file.constData());
        OIIO::ImageSpec spec(2, 1, 4, TypeDesc(TypeDesc::BASETYPE(type)));
        spec.attribute("oiio:UnassociatedAlpha", multiplied ? 0 : 1);
        spec.attribute("tiff:half", 1);
        // Light without alpha beside a colour
        std::vector<float> pixels{200, 100, 60, 128, 100, 50, 30, 0};
        for (std::size_t i = 0; i < pixels.size(); ++i)
            pixels[i] /= multiplied && i < 3 ? 2 * 255.0F : 255.0F;
        if (file.endsWith("webp")) {
            // OpenImageIO writes no lossless ones.
            QVERIFY(writeBytes(path, QByteArray::fromHex(kStraightWebp)));
            pixels.resize(4);
        } else {
            const auto output = OIIO::ImageOutput::create(path);
            QVERIFY(output && output->open(path, spec) && output->write_image(TypeDesc::FLOAT, pixels.data())
                    && output->close());
        }
        const Image image = loadImage(path);
        QVERIFY(image && !image->GetIsPremultiplied());
        const double scale = fullScale(*image->GetDefaultLayer()->GetDefaultChannel());
        const double exact = type == TypeDesc::HALF ? 1e-3
            : scale > 1.0                           ? (file.endsWith("webp") ? 2.0 : 0.51) / scale
                                                    : 1e-6;
        for (int i = 0; i < int(pixels.size()); ++i) {
            const double stored = double(pixels[std::size_t(i)]);
            const double straight = multiplied && i < 3 ? stored / (128.0 / 255.0) : stored;
            const double value = sampleAt(image, "", i / 4, 0, i % 4) / scale;
            QVERIFY2(std::abs(value - straight) <= exact,
                     qPrintable(QStringLiteral("%1 as sample %2, not %3").arg(value).arg(i).arg(straight)));
        }
    }

    void manyChannelsAreLayers()
    {
        const ImageFolder folder;
        for (const auto &[type, depth] :
             {std::pair(TypeDesc::UINT8, 1), {TypeDesc::UINT16, 4}, {TypeDesc::HALF, 2}}) {
            QVERIFY(writeImage(folder("a.tif"), picture(6, type)));
            QCOMPARE(layersOf(folder("a.tif")), R"("A" "B" "G" "R" "channel4" "channel5")");
            const Image image = loadImage(folder("a.tif"), {"G", "channel5"});
            QVERIFY(image && image->GetLayers().size() == 2U);
            for (const CTImageLayer &layer : image->GetLayers()) {
                const CTImageChannel &channel = *layer.GetDefaultChannel();
                QCOMPARE(channel.GetChannelName(), layer.GetLayerName());
                QCOMPARE(channel.GetChannelBitSamples(), 1);
                QCOMPARE(channel.GetChannelBitDepth(), depth);
                const double expected = double(testValue(9, 4, layer.GetLayerName() == "G" ? 1 : 5)) / 1024.0;
                QVERIFY(std::abs(sampleAt(channel, 9, 4) / fullScale(channel) - expected) < 0.003);
            }
        }
    }

    void orientations()
    {
        const ImageFolder folder;
        const int right = kWidth - 1;
        const int bottom = kHeight - 1;
        // From a pixel of the upright picture to the stored one.
        const QTransform toStored[] = {
            {},
            {-1, 0, 0, 1, qreal(right), 0},
            {-1, 0, 0, -1, qreal(right), qreal(bottom)},
            {1, 0, 0, -1, 0, qreal(bottom)},
            {0, 1, 1, 0, 0, 0},
            {0, -1, 1, 0, 0, qreal(bottom)},
            {0, -1, -1, 0, qreal(right), qreal(bottom)},
            {0, 1, -1, 0, qreal(right), 0},
        };
        for (int orientation = 1; orientation <= 8; ++orientation) {
            OIIO::ImageSpec spec = picture(3, TypeDesc::FLOAT);
            spec.attribute("Orientation", orientation);
            QVERIFY(writeImage(folder("a.tif"), spec));
            const Image image = loadImage(folder("a.tif"));
            QVERIFY(image);
            const QSize size = orientation < 5 ? QSize(kWidth, kHeight) : QSize(kHeight, kWidth);
            QCOMPARE(QSize(image->GetWidth(), image->GetHeight()), size);
            const CTImageChannel &channel = *image->GetDefaultLayer()->GetDefaultChannel();
            QCOMPARE(QSize(channel.GetChannelWidth(), channel.GetChannelHeight()), size);
            for (int i = 0; i < kWidth * kHeight; ++i) {
                const QPoint pixel(i % size.width(), i / size.width());
                const QPoint stored = toStored[orientation - 1].map(pixel);
                QCOMPARE(sampleAt(channel, pixel.x(), pixel.y(), 2),
                         double(testValue(stored.x(), stored.y(), 2)) / 1024.0);
            }
        }
    }

    void probeLooksAtBytes()
    {
        const ImageFolder folder;
        QVERIFY(writeImage(folder("a.png"), picture(3, TypeDesc::UINT8)));
        QVERIFY(writeBytes(folder("b.exr"), readBytes(folder("a.png"))));
        QCOMPARE(IImageCore::Probe(folder("b.exr").c_str()), "png");
        QVERIFY(loadImage(folder("b.exr")));
        // A name that the system's coding has no letters for
        writeExr(folder("größe ✓.png"), ExrSpec());
        QVERIFY(loadImage(folder("größe ✓.png"), {"R"}));
        // Another format's name does not make a file load.
        for (const char *format : {"exr", "jpeg", "no such", static_cast<const char *>(nullptr)})
            QVERIFY(!Image(IImageCore::Load(folder("a.png").c_str(), format, {""}, nullptr, nullptr)));
    }

    void probeRefuses()
    {
        const ImageFolder folder;
        QVERIFY(writeBytes(folder("zeros.tga"), QByteArray(1000, '\0')));
        QVERIFY(writeBytes(folder("empty.png"), QByteArray()));
        QCOMPARE(mkfifo(folder("pipe.exr").c_str(), 0600), 0);
        for (const char *name : {"zeros.tga", "empty.png", "pipe.exr", "missing.exr", ""}) {
            QVERIFY2(!IImageCore::Probe(folder(name).c_str()), name);
            QVERIFY2(!Image(IImageCore::Load(folder(name).c_str(), "exr", {"R"}, nullptr, nullptr)), name);
        }
        QVERIFY(!IImageCore::Probe(nullptr));
    }

    void resize()
    {
        const ImageFolder folder;
        ExrSpec spec;
        spec.channels = {{"RY", Imf::HALF, {2, 2}}, {"Y"}};
        writeExr(folder("a.exr"), spec);
        const Image image = loadImage(folder("a.exr"), {"RY", "Y"});
        CTImage *made = nullptr;
        QVERIFY(image->Resize(20, 15, made));
        const Image half(made);
        QCOMPARE(QSize(half->GetWidth(), half->GetHeight()), QSize(20, 15));
        QCOMPARE(half->GetIsPremultiplied(), image->GetIsPremultiplied());
        const CTImageChannel &luma = *half->GetLayer("Y")->GetDefaultChannel();
        QCOMPARE(luma.GetChannelBitDepth(), 2);
        QCOMPARE(QSize(luma.GetChannelWidth(), luma.GetChannelHeight()), QSize(20, 15));
        for (int i = 0; i < 20 * 15; ++i) {
            const int x = i % 20;
            const int y = i / 20;
            const float sum = testValue(2 * x, 2 * y, 1) + testValue(2 * x + 1, 2 * y, 1)
                + testValue(2 * x, 2 * y + 1, 1) + testValue(2 * x + 1, 2 * y + 1, 1);
            QVERIFY(std::abs(sampleAt(luma, x, y) - double(sum) / 4.0) < 0.3);
        }
        const CTImageChannel &chroma = *half->GetLayer("RY")->GetDefaultChannel();
        QCOMPARE(QSize(chroma.GetChannelWidth(), chroma.GetChannelHeight()), QSize(10, 8));

        QVERIFY(image->Resize(2, 1, made));
        const Image tiny(made);
        QCOMPARE(tiny->GetLayer("RY")->GetDefaultChannel()->GetChannelHeight(), 1);

        for (const QSize size : {QSize(0, 5), QSize(5, 0), QSize(-1, 5), QSize(0x7fffffff, 0x7fffffff)}) {
            made = image.get();
            QVERIFY(!image->Resize(size.width(), size.height(), made) && !made);
        }
    }
};

QTEST_GUILESS_MAIN(ImageLibraryFormatsTest)
#include "tst_image_library_formats.moc"
