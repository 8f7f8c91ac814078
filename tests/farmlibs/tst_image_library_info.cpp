#include "imagefiles.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtTest/QTest>

#include <unistd.h>

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

} // namespace

/// The program tarrow-imageinfo as users and scripts call it.
class ImageInfoTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        ExrSpec spec;
        // More layers than are decoded at once, with one float and one integer among the halves.
        spec.channels = {
            {"A"},   {"B"},   {"BY", Imf::HALF, {2, 2}}, {"G"}, {"R"}, {"Z", Imf::FLOAT}, {"a.R"},
            {"b.R"}, {"c.R"}, {"id", Imf::UINT}};
        writeExr(m_folder("a.exr"), spec);
        QVERIFY(writeImage(m_folder("a.png"), OIIO::ImageSpec(40, 30, 3, OIIO::TypeDesc::UINT8)));
        QVERIFY(writeBytes(m_folder("bad.exr"), readBytes(m_folder("a.exr")).left(2000)));
    }

    void text()
    {
        const Result result = run({file("a.exr"), file("a.png")});
        QCOMPARE(result.errors, QByteArray());
        QCOMPARE(result.status, 0);
        const QByteArrayList lines = result.output.split('\n');
        QCOMPARE(lines.size(), 1 + 10 + 1 + 1 + 1);
        QCOMPARE(lines[0], file("a.exr").toUtf8() + ": exr, 40x30, layers: 10");
        QCOMPARE(lines[1], "  A  40x30  1 x half  min 1  mean 200.5  max 400");
        // Channel 5 is 25 above channel 0.
        QCOMPARE(lines[6], "  Z  40x30  1 x float  min 26  mean 225.5  max 425");
        QVERIFY2(lines[12].startsWith("  Default  40x30  3 x uint8  min 0 "), lines[12].constData());
    }

    void json()
    {
        const Result result = run({QStringLiteral("--json"), file("a.exr"), file("bad.exr")});
        QCOMPARE(result.status, 1);
        const QJsonArray reports = QJsonDocument::fromJson(result.output).array();
        QCOMPARE(reports.size(), 2);
        QCOMPARE(reports[0][u"format"].toString(), QStringLiteral("exr"));
        QVERIFY(!reports[1][u"error"].toString().isEmpty());
        QVERIFY(!reports[1][u"error"].toString().contains(file("bad.exr")));
        const QJsonValue chroma = reports[0][u"layers"][2];
        QCOMPARE(chroma[u"name"].toString() + chroma[u"channels"][0][u"type"].toString(),
                 QStringLiteral("BYhalf"));
        QCOMPARE(chroma[u"channels"][0][u"width"].toInt(), 20);
        QCOMPARE(chroma[u"channels"][0][u"height"].toInt(), 15);
    }

    void reasons()
    {
        QVERIFY(writeBytes(m_folder("empty.png"), {}) && writeBytes(m_folder("text.txt"), "no picture"));
        QVERIFY(writeBytes(m_folder("locked.exr"), readBytes(m_folder("a.exr"))));
        QVERIFY(QFile::setPermissions(file("locked.exr"), {}));
        QByteArray newer = readBytes(m_folder("a.exr"));
        const QByteArray attribute("compression\0compression\0\1\0\0\0", 28);
        newer[newer.indexOf(attribute) + attribute.size()] = 10;
        QVERIFY(writeBytes(m_folder("newer.exr"), newer));
        ExrSpec deep;
        deep.deep = true;
        deep.compression = Imf::NO_COMPRESSION;
        deep.channels = {{"Z"}};
        writeExr(m_folder("deep.exr"), deep);
        const std::pair<const char *, QByteArray> reasons[] = {
            {"missing.exr", "no such file"},
            {"empty.png", "the file is empty"},
            {"text.txt", "not an image of a known format"},
            {"newer.exr", "compressed with HTJ2K, which this OpenEXR does not read"},
            {"deep.exr", "deep pixels without the channels Z and A, which no picture can be made of"},
            {"locked.exr", geteuid() == 0 ? "" : "permission denied"}};
        QVERIFY(run({file("bad.exr")}).errors.contains(", in its last lines"));
        ExrSpec lines;
        lines.compression = Imf::ZIPS_COMPRESSION;
        lines.rowsWritten = 17;
        writeExr(m_folder("written.exr"), lines);
        QVERIFY(run({file("written.exr")}).errors.endsWith(" (17 of 30 chunks are sound)\n"));
        for (const auto &[name, reason] : reasons) {
            const QByteArray line = file(name).toUtf8() + ": cannot be read: " + reason + '\n';
            QCOMPARE(run({file(name)}).errors, reason.isEmpty() ? QByteArray() : line);
        }
    }

    void exitStatus()
    {
        const QString png = file("a.png");
        const std::pair<QStringList, int> runs[] = {{{QStringLiteral("--help")}, 0},
                                                    {{}, 2},
                                                    {{QStringLiteral("--no-such"), png}, 2},
                                                    {{file("missing.exr"), png}, 1},
                                                    {{png, file("bad.exr")}, 1},
                                                    {{QStringLiteral("--"), QStringLiteral("-x")}, 1}};
        for (const auto &[arguments, status] : runs) {
            const Result result = run(arguments);
            QCOMPARE(result.status, status);
            QCOMPARE(result.errors.isEmpty(), status == 0);
            // The files that load are still told of.
            QCOMPARE(result.output.contains(": png, 40x30"), status == 1 && arguments.contains(png));
        }
    }

private:
    QString file(const char *name) const { return QString::fromStdString(m_folder(name)); }

    ImageFolder m_folder;
};

QTEST_GUILESS_MAIN(ImageInfoTest)
#include "tst_image_library_info.moc"
