#include "imagefiles.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QtEndian>
#include <QtTest/QTest>

#include <algorithm>
#include <map>

using namespace TImageLibrary;

namespace {

/// What the test knows of a file that it has written.
struct Whole {
    std::size_t parts = 1;
    QByteArray bytes;
    Image image;
    qsizetype table = 0; ///< where it begins
    std::vector<qsizetype> places; ///< of the chunks, in the order of the table
    qsizetype levelChunks = 0; ///< of `places`, those of the picture that is shown

    qsizetype endOf(qsizetype place) const
    {
        const auto next = std::min_element(places.begin(), places.end(), [place](qsizetype a, qsizetype b) {
            return (a > place ? a : PTRDIFF_MAX) < (b > place ? b : PTRDIFF_MAX);
        });
        return *next > place ? *next : bytes.size();
    }
};

Image loadPartial(const std::string &path, TPartialLoad &load)
{
    const char *format = IImageCore::Probe(path.c_str());
    std::set<std::string> names;
    if (!IImageCore::LoadLayers(path.c_str(), format, names))
        return nullptr;
    return Image(IImageCore::LoadPartial(path.c_str(), format, names, load));
}

/// A table stands before the chunks, and its lowest entry is where it ends.
void findTable(Whole &whole)
{
    const auto entry = [&whole](qsizetype at) {
        return qsizetype(qFromLittleEndian<quint64>(whole.bytes.constData() + at));
    };
    for (whole.table = 8; whole.table + 8 <= whole.bytes.size(); ++whole.table) {
        whole.places.clear();
        qsizetype lowest = whole.bytes.size();
        for (qsizetype at = whole.table; at < lowest && entry(at) > at && entry(at) < whole.bytes.size();
             at += 8) {
            whole.places.push_back(entry(at));
            lowest = std::min(lowest, whole.places.back());
        }
        if (!whole.places.empty() && lowest == whole.table + 8 * qsizetype(whole.places.size()))
            return;
    }
}

Whole wholeOf(const std::vector<ExrSpec> &parts)
{
    const ImageFolder folder;
    Whole whole;
    whole.parts = parts.size();
    writeExr(folder("a.exr"), parts);
    whole.bytes = readBytes(folder("a.exr"));
    whole.image = loadImage(folder("a.exr"));
    TPartialLoad load;
    const Image same = loadPartial(folder("a.exr"), load);
    if (same && load.isWhole && load.unread.empty())
        whole.levelChunks = load.chunks;
    findTable(whole);
    return whole;
}

/// A file of every kind: small chunks, so that there are several.
const std::map<QByteArray, std::vector<ExrSpec>> &kinds()
{
    static const std::map<QByteArray, std::vector<ExrSpec>> all = [] {
        std::map<QByteArray, std::vector<ExrSpec>> list;
        ExrSpec basic;
        basic.display = basic.data = {{-3, 5}, {20, 53}};
        for (int compression = 0; compression < Imf::NUM_COMPRESSION_METHODS; ++compression) {
            ExrSpec spec = basic;
            spec.compression = Imf::Compression(compression);
            if (spec.compression == Imf::DWAB_COMPRESSION)
                spec.display.max.y = spec.data.max.y = 300;
            list["lines " + QByteArray::number(compression)] = {spec};
            spec.tiled = true;
            spec.data.max.y = 53;
            list["tiles " + QByteArray::number(compression)] = {spec};
        }
        ExrSpec spec = basic;
        spec.order = Imf::DECREASING_Y;
        list["from below"] = {spec};
        spec = basic;
        spec.tiled = true;
        spec.levels = Imf::MIPMAP_LEVELS;
        list["mipmap"] = {spec};
        spec.levels = Imf::RIPMAP_LEVELS;
        spec.compression = Imf::PIZ_COMPRESSION;
        list["ripmap"] = {spec};
        spec = basic;
        spec.display.max = {12, 40}; // data on both sides of the window
        spec.channels = {{"A"}, {"id", Imf::UINT}, {"Z", Imf::FLOAT}, {"half", Imf::HALF, {2, 2}}};
        spec.data = {{-4, 4}, {21, 55}};
        list["subsampled"] = {spec};
        spec = basic;
        spec.display = {{-1, 7}, {12, 30}}; // whole chunks lie outside
        list["overscan"] = {spec};
        spec = basic;
        spec.part = "one";
        ExrSpec other = basic;
        other.part = "two";
        other.tiled = true;
        list["parts"] = {spec, other};
        spec = basic;
        spec.deep = true;
        spec.compression = Imf::ZIPS_COMPRESSION;
        spec.channels = {{"A"}, {"B"}, {"Z"}};
        list["deep lines"] = {spec};
        spec.tiled = true;
        list["deep tiles"] = {spec};
        return list;
    }();
    return all;
}

/// What differs from the whole file outside what is told as unread, or is not clear within; empty where nothing does.
QString difference(const Image &image, const Whole &whole, const TPartialLoad &load)
{
    for (const CTImageLayer &layer : whole.image->GetLayers()) {
        const CTImageChannel &expected = *layer.GetDefaultChannel();
        const CTImageLayer *own = image->GetLayer(layer.GetLayerName().c_str());
        if (!own)
            return QString::fromStdString(layer.GetLayerName());
        const CTImageChannel &seen = *own->GetDefaultChannel();
        const bool isShared = whole.parts > 1 || expected.GetChannelWidth() < image->GetWidth();
        for (int y = 0; y < expected.GetChannelHeight(); ++y) {
            for (int x = 0; x < expected.GetChannelWidth(); ++x) {
                const bool isRead = std::none_of(
                    load.unread.begin(), load.unread.end(), [x, y](const TPartialLoad::Box &box) {
                        return x >= box.x && x < box.x + box.width && y >= box.y && y < box.y + box.height;
                    });
                const double value = sampleAt(seen, x, y);
                const bool isSame = value == sampleAt(expected, x, y);
                const bool isClear = value == 0.0;
                // Planes of several parts and of other sizes have other boxes.
                if (isShared ? !isSame && !isClear : isRead ? !isSame : !isClear)
                    return QStringLiteral("%1 at %2, %3: %4")
                        .arg(QString::fromStdString(layer.GetLayerName()))
                        .arg(x)
                        .arg(y)
                        .arg(value);
            }
        }
    }
    return {};
}

} // namespace

class ImageLibraryPartialTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cutFiles_data()
    {
        QTest::addColumn<QByteArray>("kind");
        for (const auto &[name, parts] : kinds())
            QTest::newRow(name.constData()) << name;
    }

    /// Files that end anywhere, with their tables as they were, all zero, or naming the wrong places.
    void cutFiles()
    {
        QFETCH(const QByteArray, kind);
        const Whole whole = wholeOf(kinds().at(kind));
        QVERIFY(whole.image && whole.levelChunks > 1);
        QVERIFY(qsizetype(whole.places.size()) >= whole.levelChunks);
        std::vector<qsizetype> cuts{whole.bytes.size() / 100, whole.bytes.size() / 10,
                                    whole.bytes.size() * 57 / 100, whole.bytes.size() * 99 / 100,
                                    whole.bytes.size()};
        for (const qsizetype place : whole.places)
            cuts.insert(cuts.end(), {place - 1, place, place + 1});
        for (const qsizetype cut : cuts) {
            for (const char *table : {"true", "zero", "false"})
                lookAtCut(whole, cut, table);
            if (QTest::currentTestFailed())
                return;
        }
    }

    void damagedChunks_data() { cutFiles_data(); }

    /// One chunk after the other is damaged: in its bytes, its length or where it says that it belongs.
    void damagedChunks()
    {
        QFETCH(const QByteArray, kind);
        const Whole whole = wholeOf(kinds().at(kind));
        const ImageFolder folder;
        for (qsizetype i = 0; i < whole.levelChunks; ++i) {
            const qsizetype place = whole.places[std::size_t(i)];
            const qsizetype end = whole.endOf(place);
            for (const qsizetype at :
                 {place, place + 3, place + 4, place + 7, place + 16, (place + end) / 2}) {
                for (const bool hasTable : {true, false}) {
                    QByteArray bytes = whole.bytes;
                    bytes[at] = char(bytes[at] ^ 0x55);
                    if (!hasTable)
                        bytes.replace(whole.table, 8 * qsizetype(whole.places.size()),
                                      QByteArray(8 * qsizetype(whole.places.size()), '\0'));
                    QVERIFY(writeBytes(folder("a.exr"), bytes));
                    TPartialLoad load;
                    const Image image = loadPartial(folder("a.exr"), load);
                    QVERIFY(image);
                    const qint64 lost = load.unwritten + load.damaged;
                    QVERIFY2(
                        lost <= 1 && (hasTable || load.damaged + load.unwritten == lost),
                        qPrintable(
                            QStringLiteral("%1 %2 %3: %4").arg(i).arg(at - place).arg(hasTable).arg(lost)));
                    QVERIFY(!load.isWhole || hasTable);
                    // Not every compression knows that a byte of its own was changed.
                    if (lost == 1)
                        QCOMPARE(difference(image, whole, load), QString());
                }
            }
        }
    }

    /// Without a table, a chunk that says it is another is not shown in the place of that one.
    void misplacedChunks()
    {
        const ImageFolder folder;
        for (const char *kind : {"lines 3", "lines 4", "tiles 2", "from below", "mipmap", "deep lines"}) {
            const Whole whole = wholeOf(kinds().at(kind));
            const qsizetype length = kinds().at(kind).front().tiled ? 16 : 4;
            for (qsizetype i = 0; i < whole.levelChunks * whole.levelChunks; ++i) {
                const qsizetype place = whole.places[std::size_t(i % whole.levelChunks)];
                const qsizetype other = whole.places[std::size_t(i / whole.levelChunks)];
                QByteArray bytes = whole.bytes;
                bytes.replace(place, length, whole.bytes.sliced(other, length));
                bytes.replace(whole.table, 8 * qsizetype(whole.places.size()),
                              QByteArray(8 * qsizetype(whole.places.size()), '\0'));
                QVERIFY(writeBytes(folder("a.exr"), bytes));
                TPartialLoad load;
                const Image image = loadPartial(folder("a.exr"), load);
                QVERIFY(image);
                QCOMPARE(load.unwritten + load.damaged, place == other ? 0 : 1);
                QVERIFY2(difference(image, whole, load).isEmpty(), kind);
            }
        }
    }

private:
    void lookAtCut(const Whole &whole, qsizetype cut, const QByteArray &table)
    {
        const auto count = qsizetype(whole.places.size());
        QByteArray bytes = whole.bytes;
        if (table == "zero")
            bytes.replace(whole.table, 8 * count, QByteArray(8 * count, '\0'));
        else if (table == "false")
            std::rotate(bytes.begin() + whole.table, bytes.begin() + whole.table + 8,
                        bytes.begin() + whole.table + 8 * count);
        const ImageFolder folder;
        QVERIFY(writeBytes(folder("a.exr"), bytes.left(cut)));
        qint64 there = 0;
        for (qsizetype i = 0; i < whole.levelChunks; ++i)
            there += whole.endOf(whole.places[std::size_t(i)]) <= cut ? 1 : 0;
        TPartialLoad load;
        const Image image = loadPartial(folder("a.exr"), load);
        QVERIFY2(bool(image) == (there > 0), (QByteArray::number(cut) + table).constData());
        if (!image)
            return;
        QVERIFY2(load.chunks == whole.levelChunks && load.chunks - load.unwritten - load.damaged == there,
                 qPrintable(QStringLiteral("%1 %2: %3 of %4")
                                .arg(cut)
                                .arg(QLatin1String(table))
                                .arg(load.unwritten)
                                .arg(load.chunks - there)));
        QCOMPARE(load.isWhole, cut == whole.bytes.size() && table == "true");
        QCOMPARE(difference(image, whole, load), QString());
    }
};

QTEST_GUILESS_MAIN(ImageLibraryPartialTest)
#include "tst_image_library_partial.moc"
