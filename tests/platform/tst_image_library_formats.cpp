#include "imagefiles.h"

#include <QtCore/QDir>
#include <QtCore/QtEndian>
#include <QtGui/QTransform>
#include <QtTest/QTest>

#include <algorithm>
#include <array>
#include <cmath>

#include <sys/stat.h>

using namespace TImageLibrary;
using OIIO::TypeDesc;

namespace {

constexpr int kWidth = 23;
constexpr int kHeight = 17;

/// A lossless WebP of red 200, green 100, blue 60 and alpha 128.
const QByteArray kStraightWebp =
    "524946461e000000574542505650384c110000002f160004100750b22297a7808188e87f0000";

OIIO::ImageSpec picture(int channels, TypeDesc type)
{
    return OIIO::ImageSpec(kWidth, kHeight, channels, type);
}

double fullScale(const CTImageChannel &channel)
{
    if (channel.GetChannelBitType() == 1)
        return 1.0;
    return channel.GetChannelBitDepth() == 1 ? 255.0 : 65535.0;
}

/// A PSD of raw 8-bit planes.
QByteArray psdFile()
{
    QByteArray bytes("8BPS\0\1\0\0\0\0\0\0\0\3", 14);
    const quint32 sizes[] = {qToBigEndian(quint32(kHeight)), qToBigEndian(quint32(kWidth))};
    bytes.append(reinterpret_cast<const char *>(sizes), 8);
    bytes.append("\0\x8\0\3", 4).append(QByteArray(4 + 4 + 4 + 2, '\0'));
    for (int channel = 0; channel < 3; ++channel) {
        for (int i = 0; i < kWidth * kHeight; ++i)
            bytes.append(char(std::lround(testValue(i % kWidth, i / kWidth, channel) / 1024.0F * 255.0F)));
    }
    return bytes;
}

/// A PNM of 16-bit grey or colour.
QByteArray pnmFile(int channels)
{
    QByteArray bytes(
        QStringLiteral("P%1\n%2 %3\n65535\n").arg(channels == 1 ? 5 : 6).arg(kWidth).arg(kHeight).toLatin1());
    for (int i = 0; i < kWidth * kHeight; ++i) {
        for (int channel = 0; channel < channels; ++channel) {
            const auto sample =
                quint16(std::lround(testValue(i % kWidth, i / kWidth, channel) / 1024.0F * 65535.0F));
            bytes.append(char(sample >> 8)).append(char(sample & 0xff));
        }
    }
    return bytes;
}

} // namespace

class ImageLibraryFormatsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void formats_data();
    void formats();
    void greyWithAlpha_data();
    void greyWithAlpha();
    void straightAlpha_data();
    void straightAlpha();
    void manyChannelsAreLayers_data();
    void manyChannelsAreLayers();
    void orientations_data();
    void orientations();
    void probeLooksAtBytes();
    void probeRefuses();
    void extensions();
    void resize();
    void resizeRefuses();
};

void ImageLibraryFormatsTest::formats_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("bytes"); ///< empty when OpenImageIO writes it
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<int>("samples");
    QTest::addColumn<int>("depth");
    QTest::addColumn<bool>("isFloat");
    QTest::addColumn<double>("tolerance"); ///< of full scale

    const auto row = [](const char *file, int channels, TypeDesc::BASETYPE type, const char *format,
                        int samples, int depth, bool isFloat, double tolerance = 0.0) {
        QTest::addRow("%s, %d of %s", file, channels, TypeDesc(type).c_str())
            << QByteArray(file) << QByteArray() << channels << int(type) << QByteArray(format) << samples
            << depth << isFloat
            << (tolerance > 0.0  ? tolerance
                    : depth == 1 ? 0.5 / 255
                                 : 1e-4);
    };
    for (const char *file : {"a.png", "a.tif", "a.sgi", "a.rla", "a.tga", "a.dpx"}) {
        const char *format = *(file + 2) == 't' ? (file[3] == 'i' ? "tiff" : "targa") : file + 2;
        row(file, 3, TypeDesc::UINT8, format, 3, 1, false);
        row(file, 4, TypeDesc::UINT8, format, 4, 1, false);
    }
    for (const char *file : {"a.png", "a.tif", "a.sgi", "a.rla", "a.dpx"}) {
        const char *format = *(file + 2) == 't' ? "tiff" : file + 2;
        row(file, 1, TypeDesc::UINT8, format, 1, 1, false);
        row(file, 1, TypeDesc::UINT16, format, 1, 4, true);
        row(file, 3, TypeDesc::UINT16, format, 4, 2, false);
        row(file, 4, TypeDesc::UINT16, format, 4, 2, false);
    }
    row("a.tif", 3, TypeDesc::HALF, "tiff", 3, 2, true, 1e-3);
    row("a.tif", 1, TypeDesc::FLOAT, "tiff", 1, 4, true);
    row("a.tif", 3, TypeDesc::UINT32, "tiff", 3, 4, true);
    row("a.tif", 3, TypeDesc::DOUBLE, "tiff", 3, 4, true);
    row("a.hdr", 3, TypeDesc::FLOAT, "hdr", 3, 4, true, 0.01);
    row("a.bmp", 3, TypeDesc::UINT8, "bmp", 3, 1, false);
    row("a.ppm", 3, TypeDesc::UINT8, "pnm", 3, 1, false);
    row("a.jpg", 3, TypeDesc::UINT8, "jpeg", 3, 1, false, 0.15);
    row("a.gif", 3, TypeDesc::UINT8, "gif", 4, 1, false, 0.15);
    row("a.webp", 3, TypeDesc::UINT8, "webp", 3, 1, false, 0.15);
    QTest::newRow("PSD") << QByteArray("a.psd") << psdFile() << 3 << 0 << QByteArray("psd") << 3 << 1 << false
                         << 0.5 / 255;
    QTest::newRow("16-bit grey PNM") << QByteArray("a.pgm") << pnmFile(1) << 1 << 0 << QByteArray("pnm") << 1
                                     << 4 << true << 1e-4;
    QTest::newRow("16-bit PNM") << QByteArray("a.ppm") << pnmFile(3) << 3 << 0 << QByteArray("pnm") << 4 << 2
                                << false << 1e-4;
}

void ImageLibraryFormatsTest::formats()
{
    QFETCH(const QByteArray, file);
    QFETCH(const QByteArray, bytes);
    QFETCH(const int, channels);
    QFETCH(const int, type);
    QFETCH(const QByteArray, format);
    QFETCH(const int, samples);
    QFETCH(const int, depth);
    QFETCH(const bool, isFloat);
    QFETCH(const double, tolerance);
    const ImageFolder folder;
    const std::string path = folder(file.constData());
    OIIO::ImageSpec spec = picture(channels, TypeDesc(TypeDesc::BASETYPE(type)));
    spec.attribute("oiio:UnassociatedAlpha", 1);
    QVERIFY(bytes.isEmpty() ? writeImage(path, spec) : writeBytes(path, bytes));

    QCOMPARE(IImageCore::Probe(path.c_str()), format.constData());
    QCOMPARE(layersOf(path), "\"\"");
    const Image image = loadImage(path);
    QVERIFY(image);
    QCOMPARE(QSize(image->GetWidth(), image->GetHeight()), QSize(kWidth, kHeight));
    QVERIFY(image->GetIsYFlipped());
    const CTImageChannel &channel = *image->GetDefaultLayer()->GetDefaultChannel();
    QCOMPARE(channel.GetChannelName(), "");
    QCOMPARE(QSize(channel.GetChannelWidth(), channel.GetChannelHeight()), QSize(kWidth, kHeight));
    QCOMPARE(channel.GetChannelBitSamples(), samples);
    QCOMPARE(channel.GetChannelBitDepth(), depth);
    QCOMPARE(channel.GetChannelBitType(), isFloat ? 1 : 0);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            for (int sample = 0; sample < samples; ++sample) {
                // What is padded is opaque.
                const double expected = sample < channels ? double(testValue(x, y, sample)) / 1024.0 : 1.0;
                const double found = sampleAt(channel, x, y, sample) / fullScale(channel);
                QVERIFY2(std::abs(found - expected) <= tolerance + 1e-6,
                         qPrintable(QStringLiteral("%1 at %2,%3,%4, not %5")
                                        .arg(found)
                                        .arg(x)
                                        .arg(y)
                                        .arg(sample)
                                        .arg(expected)));
            }
        }
    }
}

void ImageLibraryFormatsTest::greyWithAlpha_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("scale");

    QTest::newRow("8 bits") << int(TypeDesc::UINT8) << 255.0;
    QTest::newRow("16 bits") << int(TypeDesc::UINT16) << 65535.0;
}

void ImageLibraryFormatsTest::greyWithAlpha()
{
    QFETCH(const int, type);
    QFETCH(const double, scale);
    const ImageFolder folder;
    OIIO::ImageSpec spec = picture(2, TypeDesc(TypeDesc::BASETYPE(type)));
    spec.channelnames = {"Y", "A"};
    spec.alpha_channel = 1;
    spec.attribute("oiio:UnassociatedAlpha", 1);
    QVERIFY(writeImage(folder("a.png"), spec));
    const Image image = loadImage(folder("a.png"));
    QVERIFY(image);
    QCOMPARE(image->GetDefaultLayer()->GetDefaultChannel()->GetChannelBitSamples(), 4);
    for (int y = 0; y < kHeight; ++y) {
        for (int sample = 0; sample < 4; ++sample) {
            const double expected = std::round(double(testValue(y, y, sample == 3 ? 1 : 0)) / 1024.0 * scale);
            QVERIFY(std::abs(sampleAt(image, "", y, y, sample) - expected) <= 1.0);
        }
    }
}

void ImageLibraryFormatsTest::straightAlpha_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<bool>("multiplied"); ///< what is handed to the writer
    QTest::addColumn<bool>("premultiplied");

    QTest::newRow("PNG") << QByteArray("a.png") << false << false;
    QTest::newRow("Targa") << QByteArray("a.tga") << false << false;
    QTest::newRow("BMP") << QByteArray("a.bmp") << false << false;
    QTest::newRow("WebP") << QByteArray("a.webp") << false << false;
    QTest::newRow("TIFF, straight") << QByteArray("a.tif") << false << false;
    QTest::newRow("TIFF, multiplied") << QByteArray("a.tif") << true << true;
}

void ImageLibraryFormatsTest::straightAlpha()
{
    QFETCH(const QByteArray, file);
    QFETCH(const bool, multiplied);
    QFETCH(const bool, premultiplied);
    const ImageFolder folder;
    const std::string path = folder(file.constData());
    OIIO::ImageSpec spec = picture(4, TypeDesc::UINT8);
    spec.attribute("oiio:UnassociatedAlpha", multiplied ? 0 : 1);
    const std::array<quint8, 4> straight = {200, 100, 60, 128};
    const std::array<quint8, 4> product = {100, 50, 30, 128};
    const std::array<quint8, 4> &written = multiplied ? product : straight;
    std::vector<quint8> pixels;
    for (int i = 0; i < kWidth * kHeight; ++i)
        pixels.insert(pixels.end(), written.begin(), written.end());
    if (file.endsWith("webp")) {
        // OpenImageIO writes no lossless ones.
        QVERIFY(writeBytes(path, QByteArray::fromHex(kStraightWebp)));
    } else {
        const auto output = OIIO::ImageOutput::create(path);
        QVERIFY(output && output->open(path, spec) && output->write_image(TypeDesc::UINT8, pixels.data())
                && output->close());
    }

    const Image image = loadImage(path);
    QVERIFY(image);
    QCOMPARE(image->GetIsPremultiplied(), premultiplied);
    for (int sample = 0; sample < 4; ++sample) {
        const double expected = (premultiplied ? product : straight)[std::size_t(sample)];
        const double found = sampleAt(image, "", 5, 5, sample);
        QVERIFY2(std::abs(found - expected) <= 2.0, qPrintable(QString::number(found)));
    }
}

void ImageLibraryFormatsTest::manyChannelsAreLayers_data()
{
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("layers");
    QTest::addColumn<int>("depth");

    const QByteArray six = R"("A" "B" "G" "R" "channel4" "channel5")";
    QTest::newRow("8 bits") << 6 << int(TypeDesc::UINT8) << six << 1;
    QTest::newRow("16 bits") << 6 << int(TypeDesc::UINT16) << six << 4;
    QTest::newRow("halves") << 6 << int(TypeDesc::HALF) << six << 2;
}

void ImageLibraryFormatsTest::manyChannelsAreLayers()
{
    QFETCH(const int, channels);
    QFETCH(const int, type);
    QFETCH(const QByteArray, layers);
    QFETCH(const int, depth);
    const ImageFolder folder;
    QVERIFY(writeImage(folder("a.tif"), picture(channels, TypeDesc(TypeDesc::BASETYPE(type)))));
    QCOMPARE(layersOf(folder("a.tif")), layers);
    const Image image = loadImage(folder("a.tif"), {"G", "channel5"});
    QVERIFY(image);
    QCOMPARE(image->GetLayers().size(), 2U);
    for (const CTImageLayer &layer : image->GetLayers()) {
        const CTImageChannel &channel = *layer.GetDefaultChannel();
        QCOMPARE(channel.GetChannelName(), layer.GetLayerName());
        QCOMPARE(channel.GetChannelBitSamples(), 1);
        QCOMPARE(channel.GetChannelBitDepth(), depth);
        const int index = layer.GetLayerName() == "G" ? 1 : 5;
        for (int y = 0; y < kHeight; ++y)
            QVERIFY(std::abs(sampleAt(channel, y, y) / fullScale(channel)
                             - double(testValue(y, y, index)) / 1024.0)
                    < 0.003);
    }
}

void ImageLibraryFormatsTest::orientations_data()
{
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QTransform>("toStored"); ///< of a pixel of the upright picture

    const int right = kWidth - 1;
    const int bottom = kHeight - 1;
    QTest::newRow("as it is") << 1 << QTransform();
    QTest::newRow("mirrored") << 2 << QTransform(-1, 0, 0, 1, right, 0);
    QTest::newRow("upside down") << 3 << QTransform(-1, 0, 0, -1, right, bottom);
    QTest::newRow("upside down, mirrored") << 4 << QTransform(1, 0, 0, -1, 0, bottom);
    QTest::newRow("rows for columns") << 5 << QTransform(0, 1, 1, 0, 0, 0);
    QTest::newRow("to turn right") << 6 << QTransform(0, -1, 1, 0, 0, bottom);
    QTest::newRow("rows for columns, upside down") << 7 << QTransform(0, -1, -1, 0, right, bottom);
    QTest::newRow("to turn left") << 8 << QTransform(0, 1, -1, 0, right, 0);
}

void ImageLibraryFormatsTest::orientations()
{
    QFETCH(const int, orientation);
    QFETCH(const QTransform, toStored);
    const ImageFolder folder;
    OIIO::ImageSpec spec = picture(3, TypeDesc::FLOAT);
    spec.attribute("Orientation", orientation);
    QVERIFY(writeImage(folder("a.tif"), spec));
    const Image image = loadImage(folder("a.tif"));
    QVERIFY(image);
    const QSize size = orientation < 5 ? QSize(kWidth, kHeight) : QSize(kHeight, kWidth);
    QCOMPARE(QSize(image->GetWidth(), image->GetHeight()), size);
    const CTImageChannel &channel = *image->GetDefaultLayer()->GetDefaultChannel();
    QCOMPARE(QSize(channel.GetChannelWidth(), channel.GetChannelHeight()), size);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QPoint stored = toStored.map(QPoint(x, y));
            QCOMPARE(sampleAt(channel, x, y, 2), double(testValue(stored.x(), stored.y(), 2)) / 1024.0);
        }
    }
}

void ImageLibraryFormatsTest::probeLooksAtBytes()
{
    const ImageFolder folder;
    QVERIFY(writeImage(folder("a.png"), picture(3, TypeDesc::UINT8)));
    QVERIFY(writeBytes(folder("b.exr"), readBytes(folder("a.png"))));
    QCOMPARE(IImageCore::Probe(folder("b.exr").c_str()), "png");
    QVERIFY(loadImage(folder("b.exr")));
    // A name that the system's coding has no letters for
    writeExr(folder("größe ✓.png"), ExrSpec());
    QCOMPARE(IImageCore::Probe(folder("größe ✓.png").c_str()), "exr");
    QVERIFY(loadImage(folder("größe ✓.png"), {"R"}));
    // Another format's name does not make a file load.
    QVERIFY(!Image(IImageCore::Load(folder("a.png").c_str(), "exr", {""}, nullptr, nullptr)));
    QVERIFY(!Image(IImageCore::Load(folder("a.png").c_str(), "jpeg", {""}, nullptr, nullptr)));
    QVERIFY(!Image(IImageCore::Load(folder("a.png").c_str(), "no such", {""}, nullptr, nullptr)));
    QVERIFY(!Image(IImageCore::Load(folder("a.png").c_str(), nullptr, {""}, nullptr, nullptr)));
}

void ImageLibraryFormatsTest::probeRefuses()
{
    const ImageFolder folder;
    QVERIFY(writeBytes(folder("text.exr"), "not a picture\n"));
    QVERIFY(writeBytes(folder("zeros.tga"), QByteArray(1000, '\0')));
    QVERIFY(writeBytes(folder("empty.png"), QByteArray()));
    QVERIFY(QDir().mkdir(QString::fromStdString(folder("folder.exr"))));
    QCOMPARE(mkfifo(folder("pipe.exr").c_str(), 0600), 0);
    for (const char *name : {"text.exr", "zeros.tga", "empty.png", "folder.exr", "pipe.exr", "missing.exr"}) {
        QVERIFY2(!IImageCore::Probe(folder(name).c_str()), name);
        QVERIFY2(!Image(IImageCore::Load(folder(name).c_str(), "exr", {"R"}, nullptr, nullptr)), name);
        std::set<std::string> names = {"left over"};
        QVERIFY2(!IImageCore::LoadLayers(folder(name).c_str(), "png", names) && names.empty(), name);
    }
    QVERIFY(!IImageCore::Probe(""));
    QVERIFY(!IImageCore::Probe(nullptr));
}

void ImageLibraryFormatsTest::extensions()
{
    IImageCore *core = IImageCore::GetUniqueClass();
    QCOMPARE(core, IImageCore::GetUniqueClass());
    std::vector<std::string> all;
    for (CTExtensionsIterator i = core->LoaderExtensionsBegin(); i != core->LoaderExtensionsEnd(); ++i)
        all.push_back(i.extension());
    for (const char *read : {"exr", "png", "jpg", "tif", "dpx", "cin", "tga", "hdr", "sgi", "rla", "psd",
                             "gif", "webp", "ppm", "bmp"})
        QVERIFY2(std::count(all.begin(), all.end(), read) == 1, read);
    // OpenImageIO reads films too; this library does not.
    QVERIFY(std::find(all.begin(), all.end(), "mov") == all.end());
    std::sort(all.begin(), all.end());
    QVERIFY(std::adjacent_find(all.begin(), all.end()) == all.end());
}

void ImageLibraryFormatsTest::resize()
{
    const ImageFolder folder;
    ExrSpec spec;
    spec.channels = {{"RY", Imf::HALF, 2}, {"Y"}};
    writeExr(folder("a.exr"), spec);
    const Image image = loadImage(folder("a.exr"), {"RY", "Y"});
    CTImage *made = nullptr;
    QVERIFY(image->Resize(20, 15, made));
    const Image half(made);
    QCOMPARE(QSize(half->GetWidth(), half->GetHeight()), QSize(20, 15));
    QCOMPARE(half->GetIsPremultiplied(), image->GetIsPremultiplied());
    const CTImageChannel &luma = *half->GetLayer("Y")->GetChannel("Y");
    QCOMPARE(luma.GetChannelBitDepth(), 2);
    QCOMPARE(QSize(luma.GetChannelWidth(), luma.GetChannelHeight()), QSize(20, 15));
    for (int y = 0; y < 15; ++y) {
        for (int x = 0; x < 20; ++x) {
            const float sum = testValue(2 * x, 2 * y, 1) + testValue(2 * x + 1, 2 * y, 1)
                + testValue(2 * x, 2 * y + 1, 1) + testValue(2 * x + 1, 2 * y + 1, 1);
            QVERIFY(std::abs(sampleAt(luma, x, y) - double(sum) / 4.0) < 0.3);
        }
    }
    const CTImageChannel &chroma = *half->GetLayer("RY")->GetDefaultChannel();
    QCOMPARE(QSize(chroma.GetChannelWidth(), chroma.GetChannelHeight()), QSize(10, 8));

    QVERIFY(image->Resize(2, 1, made));
    const Image tiny(made);
    QCOMPARE(tiny->GetLayer("RY")->GetDefaultChannel()->GetChannelWidth(), 1);
    QCOMPARE(tiny->GetLayer("RY")->GetDefaultChannel()->GetChannelHeight(), 1);

    QVERIFY(writeImage(folder("a.png"), picture(3, TypeDesc::UINT16)));
    QVERIFY(loadImage(folder("a.png"))->Resize(7, 5, made));
    const Image padded(made);
    QCOMPARE(padded->GetDefaultLayer()->GetDefaultChannel()->GetChannelBitSamples(), 4);
    QCOMPARE(sampleAt(padded, "", 3, 2, 3), 65535.0);
}

void ImageLibraryFormatsTest::resizeRefuses()
{
    const ImageFolder folder;
    writeExr(folder("a.exr"), ExrSpec());
    const Image image = loadImage(folder("a.exr"), {"R"});
    for (const QSize size : {QSize(0, 5), QSize(5, 0), QSize(-1, 5), QSize(0x7fffffff, 0x7fffffff)}) {
        CTImage *made = image.get();
        QVERIFY(!image->Resize(size.width(), size.height(), made));
        QVERIFY(!made);
    }
}

QTEST_GUILESS_MAIN(ImageLibraryFormatsTest)
#include "tst_image_library_formats.moc"
