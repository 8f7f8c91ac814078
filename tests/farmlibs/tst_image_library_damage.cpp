#include "imagefiles.h"
#include "table.h"

#include <QtCore/QtEndian>
#include <QtTest/QTest>

#include <map>
#include <random>

#include <sys/resource.h>
#include <zlib.h>

using namespace TImageLibrary;
using OIIO::TypeDesc;

namespace {

constexpr qsizetype kMegabyte = 1 << 20;

/// Loads every layer and reads every plane to its end. False when the file does not load.
bool loadsAndHolds(const std::string &path)
{
    const Image image = loadImage(path);
    if (!image)
        return false;
    unsigned sum = 0;
    for (const CTImageLayer &layer : image->GetLayers()) {
        for (const CTImageChannel &channel : layer.GetChannels()) {
            const auto *data = static_cast<const unsigned char *>(channel.GetChannelData());
            for (std::size_t i = 0; i < channel.format().byteSize(); ++i)
                sum += data[i];
        }
    }
    return sum + 1 > 0 || !image->GetLayers().empty();
}

/// The most memory that this process has held, in bytes.
qsizetype peakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return qsizetype(usage.ru_maxrss) * 1024;
}

QByteArray bytesOf(std::initializer_list<quint32> values, quint32 (*inOrder)(quint32))
{
    QByteArray bytes;
    for (const quint32 value : values) {
        const quint32 ordered = inOrder(value);
        bytes.append(reinterpret_cast<const char *>(&ordered), sizeof ordered);
    }
    return bytes;
}

QByteArray bigEndian(std::initializer_list<quint32> values)
{
    return bytesOf(values, &qToBigEndian<quint32>);
}

QByteArray littleEndian(std::initializer_list<quint32> values)
{
    return bytesOf(values, &qToLittleEndian<quint32>);
}

/// Writes over what stands behind a marker text.
QByteArray patched(QByteArray bytes, const QByteArray &marker, qsizetype offset, const QByteArray &patch)
{
    const qsizetype at = bytes.indexOf(marker);
    return at < 0 ? QByteArray() : bytes.replace(at + marker.size() + offset, patch.size(), patch);
}

/// A file of each format and compression, small enough to be cut everywhere.
const std::vector<std::pair<QByteArray, QByteArray>> &intactFiles()
{
    static const std::vector<std::pair<QByteArray, QByteArray>> files = [] {
        const ImageFolder folder;
        std::vector<std::pair<QByteArray, QByteArray>> list;
        for (int compression = 0; compression < Imf::NUM_COMPRESSION_METHODS; ++compression) {
            ExrSpec spec;
            spec.compression = Imf::Compression(compression);
            spec.tiled = compression % 2 == 1;
            writeExr(folder("a.exr"), spec);
            list.emplace_back("compression" + QByteArray::number(compression) + ".exr",
                              readBytes(folder("a.exr")));
        }
        for (const char *name : {"deep.exr", "deeptiles.exr", "chroma.exr"}) {
            ExrSpec spec;
            spec.deep = name[0] == 'd';
            spec.tiled = spec.deep && name[4] == 't';
            spec.compression = Imf::ZIPS_COMPRESSION;
            spec.channels = {{"A"}, {"B"}, {"Z"}};
            if (!spec.deep)
                spec.channels = {{"BY", Imf::HALF, {2, 2}}, {"RY", Imf::HALF, {2, 2}}, {"Y"}};
            writeExr(folder("a.exr"), spec);
            list.emplace_back(name, readBytes(folder("a.exr")));
        }
        for (const char *name : {"a.png", "a.jpg", "a.tif", "a.tga", "a.bmp", "a.gif", "a.webp", "a.sgi",
                                 "a.dpx", "a.hdr", "a.rla", "a.ppm"}) {
            OIIO::ImageSpec spec(40, 30, 3, TypeDesc::UINT8);
            spec.attribute("compression", "rle");
            if (writeImage(folder(name), spec))
                list.emplace_back(name, readBytes(folder(name)));
        }
        for (const auto &[name, spec] : {std::pair("six.tif", OIIO::ImageSpec(40, 30, 6, TypeDesc::UINT16)),
                                         {"half.tif", OIIO::ImageSpec(40, 90, 3, TypeDesc::HALF)}}) {
            if (writeImage(folder(name), spec))
                list.emplace_back(name, readBytes(folder(name)));
        }
        return list;
    }();
    return files;
}

} // namespace

class ImageLibraryDamageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cutFiles_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("bytes");

        QCOMPARE(intactFiles().size(), std::size_t(Imf::NUM_COMPRESSION_METHODS) + 17);
        for (const auto &[name, bytes] : intactFiles())
            QTest::newRow(name.constData()) << name << bytes;
    }

    void cutFiles()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QByteArray, bytes);
        const ImageFolder folder;
        const std::string path = folder(name.constData());
        QVERIFY(writeBytes(path, bytes) && loadsAndHolds(path));
        // The last bytes may be a footer behind all pixels, but for PNG, which has to end.
        const qsizetype footer = name.endsWith("png") ? 0 : name.endsWith("tga") ? 600 : 16;
        const qsizetype pixelsEnd = bytes.size() - footer;
        const auto isNearAnEnd = [&bytes](qsizetype cut) { return cut < 64 || bytes.size() - cut < 64; };
        for (qsizetype cut = 0; cut < bytes.size(); cut += isNearAnEnd(cut) ? 1 : 1 + bytes.size() / 97) {
            QVERIFY(writeBytes(path, bytes.left(cut)));
            QVERIFY2(!loadsAndHolds(path) || cut > pixelsEnd, qPrintable(QString::number(cut)));
        }
    }

    void flippedBytes_data() { cutFiles_data(); }

    void flippedBytes()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QByteArray, bytes);
        const ImageFolder folder;
        const std::string path = folder(name.constData());
        std::mt19937 random(20);
        const auto below = [&random](qsizetype limit) { return qsizetype(random() % unsigned(limit)); };
        const qsizetype before = peakMemory();
        int refused = 0;
        constexpr int kFiles = 150;
        for (int i = 0; i < kFiles; ++i) {
            QByteArray damaged = bytes;
            for (qsizetype flips = 1 + below(4); flips > 0; --flips) {
                // Half of them in the header, where they do most.
                const qsizetype at = below(flips % 2 ? bytes.size() : std::min<qsizetype>(bytes.size(), 500));
                damaged[at] = flips % 3 ? char(random()) : '\xff';
            }
            QVERIFY(writeBytes(path, damaged));
            refused += loadsAndHolds(path) ? 0 : 1;
        }
        QVERIFY(refused > 0);
        QVERIFY2(peakMemory() - before < 700 * kMegabyte,
                 qPrintable(QString::number((peakMemory() - before) / kMegabyte)));
    }

    void lyingSizes_data()
    {
        constexpr quint32 kSide = 0x3ffffffe;
        const QByteArray text = QByteArray::number(kSide);
        std::map<QByteArray, QByteArray> files(intactFiles().begin(), intactFiles().end());
        const auto window = [&files](const char *file, std::initializer_list<quint32> box) {
            return patched(files[file], QByteArray("dataWindow\0box2i\0\x10\0\0\0", 21), 0,
                           littleEndian(box));
        };
        QByteArray header = "IHDR" + bigEndian({kSide, kSide}) + QByteArray("\x8\2\0\0\0", 5);
        header += bigEndian(
            {quint32(crc32(0, reinterpret_cast<const Bytef *>(header.constData()), uInt(header.size())))});
        addTable<QByteArray, QByteArray>(
            {"name", "bytes"},
            {{"lines", "a.exr", window("compression2.exr", {0, 0, kSide, kSide})},
             {"wide lines", "a.exr", window("compression2.exr", {0, 0, kSide, 29})},
             {"deep lines", "a.exr", window("deep.exr", {0, 0, kSide, kSide})},
             {"deep tiles", "a.exr", window("deeptiles.exr", {0, 0, kSide, kSide})},
             {"chroma", "a.exr", window("chroma.exr", {0, 0, kSide, 29})},
             {"many tiles", "a.exr", window("compression3.exr", {0, 0, 39, kSide})},
             {"large tiles", "a.exr",
              patched(files["compression3.exr"], QByteArray("tiledesc\0\x9\0\0\0", 13), 0,
                      littleEndian({kSide, kSide}))},
             {"PNG", "a.png", patched(files["a.png"], "IHDR", -4, header)},
             {"DPX, user data", "a.dpx", QByteArray(files["a.dpx"]).replace(32, 4, bigEndian({0xfffffffbU}))},
             {"DPX", "a.dpx", QByteArray(files["a.dpx"]).replace(772, 8, bigEndian({30000, 30000}))},
             {"HDR", "a.hdr", QByteArray(files["a.hdr"]).replace("-Y 30 +X 40", "-Y 30000 +X 30000")},
             {"PNM", "a.ppm", QByteArray(files["a.ppm"]).replace("40 30", text + ' ' + text)},
             {"Targa", "a.tga", QByteArray(files["a.tga"]).replace(12, 4, "\xff\xff\xff\xff")}});
    }

    void lyingSizes()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QByteArray, bytes);
        const ImageFolder folder;
        QVERIFY(!bytes.isEmpty() && writeBytes(folder(name.constData()), bytes));
        const qsizetype before = peakMemory();
        QVERIFY(!loadsAndHolds(folder(name.constData())) && peakMemory() - before < 200 * kMegabyte);
    }

    /// Lines that unpack to less than the header says are not filled up with what stood in memory.
    void foreignPixels()
    {
        const ImageFolder folder;
        for (const Imf::Compression compression :
             {Imf::NO_COMPRESSION, Imf::RLE_COMPRESSION, Imf::ZIPS_COMPRESSION, Imf::ZIP_COMPRESSION,
              Imf::PXR24_COMPRESSION, Imf::B44_COMPRESSION, Imf::DWAA_COMPRESSION}) {
            ExrSpec spec;
            spec.compression = compression;
            writeExr(folder("a.exr"), spec);
            const QByteArray wider =
                patched(readBytes(folder("a.exr")), QByteArray("dataWindow\0box2i\0\x10\0\0\0", 21), 0,
                        littleEndian({0, 0, 47, 29}));
            QVERIFY(!wider.isEmpty() && writeBytes(folder("a.exr"), wider));
            QVERIFY2(!loadsAndHolds(folder("a.exr")), qPrintable(QString::number(compression)));
        }
    }
};

QTEST_GUILESS_MAIN(ImageLibraryDamageTest)
#include "tst_image_library_damage.moc"
