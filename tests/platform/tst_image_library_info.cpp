#include "imagefiles.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtTest/QTest>

namespace {

struct Result {
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

Result run(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(TARROW_IMAGEINFO), arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

/// The channel of a layer in the first report of a --json run.
QJsonObject channelOf(const Result &result, const QString &layer)
{
    const QJsonArray layers = QJsonDocument::fromJson(result.output)[0][u"layers"].toArray();
    for (const QJsonValue entry : layers) {
        if (entry[u"name"].toString() == layer)
            return entry[u"channels"][0].toObject();
    }
    return {};
}

} // namespace

/// The program tarrow-imageinfo as users and scripts call it.
class ImageInfoTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void text();
    void json();
    void exitStatus_data();
    void exitStatus();

private:
    QString file(const char *name) const { return QString::fromStdString(m_folder(name)); }

    ImageFolder m_folder;
};

void ImageInfoTest::initTestCase()
{
    ExrSpec spec;
    // More layers than are decoded at once, with one float and one integer among the halves.
    spec.channels = {{"A"},   {"B"},   {"BY", Imf::HALF, 2}, {"G"}, {"R"}, {"Z", Imf::FLOAT}, {"a.R"},
                     {"b.R"}, {"c.R"}, {"id", Imf::UINT}};
    writeExr(m_folder("a.exr"), spec);
    QVERIFY(writeImage(m_folder("a.png"), OIIO::ImageSpec(40, 30, 3, OIIO::TypeDesc::UINT8)));
    QVERIFY(writeBytes(m_folder("bad.exr"), readBytes(m_folder("a.exr")).left(2000)));
}

void ImageInfoTest::text()
{
    const Result result = run({file("a.exr"), file("a.png")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors, QByteArray());
    const QByteArrayList lines = result.output.split('\n');
    QCOMPARE(lines.size(), 1 + 10 + 1 + 1 + 1);
    QCOMPARE(lines[0], file("a.exr").toUtf8() + ": exr, 40x30, layers: 10");
    QCOMPARE(lines[1], "  A  40x30  1 x half  min 1  mean 200.5  max 400");
    QCOMPARE(lines[11], file("a.png").toUtf8() + ": png, 40x30, layers: 1");
    QVERIFY2(lines[12].startsWith("  Default  40x30  3 x uint8  min 0 "), lines[12].constData());
}

void ImageInfoTest::json()
{
    const Result result = run({QStringLiteral("--json"), file("a.exr"), file("bad.exr")});
    QCOMPARE(result.status, 1);
    const QJsonArray reports = QJsonDocument::fromJson(result.output).array();
    QCOMPARE(reports.size(), 2);
    QCOMPARE(reports[0][u"format"].toString(), QStringLiteral("exr"));
    QCOMPARE(reports[0][u"layers"].toArray().size(), 10);
    QVERIFY(reports[1].toObject().contains(u"error"));
    for (const char *half : {"A", "B", "G", "R", "BY", "a.R", "b.R", "c.R"})
        QCOMPARE(channelOf(result, QLatin1String(half))[u"type"].toString(), QStringLiteral("half"));
    for (const char *wide : {"Z", "id"})
        QCOMPARE(channelOf(result, QLatin1String(wide))[u"type"].toString(), QStringLiteral("float"));
    const QJsonObject chroma = channelOf(result, QStringLiteral("BY"));
    QCOMPARE(chroma[u"width"].toInt(), 20);
    QCOMPARE(chroma[u"height"].toInt(), 15);
    // Channel 5 is 25 above channel 0.
    const QJsonObject depth = channelOf(result, QStringLiteral("Z"));
    QCOMPARE(depth[u"min"].toDouble(), 26.0);
    QCOMPARE(depth[u"mean"].toDouble(), 225.5);
    QCOMPARE(depth[u"max"].toDouble(), 425.0);
}

void ImageInfoTest::exitStatus_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("complains");

    QTest::newRow("help") << QStringList{QStringLiteral("--help")} << 0 << false;
    QTest::newRow("no file") << QStringList() << 2 << true;
    QTest::newRow("unknown option") << QStringList{QStringLiteral("--no-such"), file("a.png")} << 2 << true;
    QTest::newRow("a missing file") << QStringList{file("missing.exr"), file("a.png")} << 1 << true;
    QTest::newRow("a damaged file") << QStringList{file("a.png"), file("bad.exr")} << 1 << true;
    QTest::newRow("a name like an option")
        << QStringList{QStringLiteral("--"), QStringLiteral("-x")} << 1 << true;
}

void ImageInfoTest::exitStatus()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    QFETCH(const bool, complains);
    const Result result = run(arguments);
    QCOMPARE(result.status, status);
    QCOMPARE(!result.errors.isEmpty(), complains);
    // The files that load are still told of.
    QCOMPARE(result.output.contains(": png, 40x30"), status == 1 && arguments.contains(file("a.png")));
}

QTEST_GUILESS_MAIN(ImageInfoTest)
#include "tst_image_library_info.moc"
