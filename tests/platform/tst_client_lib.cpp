#include "recordtext.h"
#include "tchunk.h"
#include "tframesrange.h"
#include "tjob.h"

#include "stringhelper.h"

#include <QtTest/QTest>

#include <limits>

using namespace TClientLib;
using Values = std::vector<std::string>;

namespace {

constexpr auto kLowest = std::numeric_limits<std::int64_t>::min();
constexpr auto kHighest = std::numeric_limits<std::int64_t>::max();

Values valuesOf(const std::string &record)
{
    return TFramework::TStringHelper::TokenizeString(record, "\n");
}

TJob sampleJob()
{
    TJob job;
    job.setJobId(kLowest);
    job.setName("two\nlines, C:\\new\\");
    job.setOwner("\xc3\xa4nn");
    job.setStatus(-3);
    job.setPacketType(4);
    job.setTasksMask(0xFFFFFFFEU);
    job.setFrameRanges({{1, 10, 2}, {kHighest, -5, -1}});
    job.attributeSetString("output_folder", "/out\\n");
    job.attributeSetString("frames_mask", " /out/a.####.exr ; /out/b.####.exr");
    job.attributeSetString("", "");
    job.attributeSetString("note", "/not/a/path");
    return job;
}

struct PrefixTranslator : TJobPathTranslator {
    std::string Translate(const std::string &path) const override { return "/mnt" + path; }
};

} // namespace

class ClientLibTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void escapes_data();
    void escapes();
    void numbers();
    void counts_data();
    void counts();
    void jobRoundTrip();
    void jobTruncated();
    void jobHostile();
    void jobPaths();
    void chunk();
    void frameRange_data();
    void frameRange();
    void numberedFrames();
    void tooManyFrames();
};

void ClientLibTest::escapes_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("written"); // whether the writer gives this value for the text

    QTest::newRow("line feed") << QByteArray("a\\nb") << QByteArray("a\nb") << true;
    QTest::newRow("backslash, n") << QByteArray("a\\\\nb") << QByteArray("a\\nb") << true;
    QTest::newRow("backslash, line feed") << QByteArray("\\\\\\n") << QByteArray("\\\n") << true;
    QTest::newRow("ends in backslash") << QByteArray("a\\\\") << QByteArray("a\\") << true;
    QTest::newRow("lone backslash at the end") << QByteArray("a\\") << QByteArray("a\\") << false;
    QTest::newRow("other escape") << QByteArray("a\\tb") << QByteArray("a\\tb") << false;
    QTest::newRow("zero byte") << QByteArray("a\\\\\0b", 5) << QByteArray("a\\\0b", 4) << true;
    QTest::newRow("empty") << QByteArray("") << QByteArray("") << true;
}

void ClientLibTest::escapes()
{
    QFETCH(const QByteArray, value);
    QFETCH(const QByteArray, text);
    QFETCH(const bool, written);

    const Values values{value.toStdString()};
    QCOMPARE(QByteArray::fromStdString(TRecordReader(values).text()), text);
    TRecordWriter writer;
    writer.add(text.toStdString());
    QCOMPARE(QByteArray::fromStdString(writer.text()) == value, written);
}

void ClientLibTest::numbers()
{
    const Values values{"-9223372036854775808",
                        "9223372036854775808",
                        "2147483648",
                        "-2147483648",
                        "4294967295",
                        "-1",
                        "",
                        "12 ",
                        "0x10",
                        "+1"};
    TRecordReader reader(values);
    QCOMPARE(reader.integer(), kLowest);
    QCOMPARE(reader.integer(), 0);
    QCOMPARE(reader.integer32(), 0);
    QCOMPARE(reader.integer32(), std::numeric_limits<std::int32_t>::min());
    QCOMPARE(reader.unsigned32(), 0xFFFFFFFFU);
    QCOMPARE(reader.unsigned32(), 0U);
    while (reader.remaining() > 0)
        QCOMPARE(reader.integer(), 0);
    QCOMPARE(reader.integer(), 0); // nothing left
    QCOMPARE(reader.text(), std::string());
}

void ClientLibTest::counts_data()
{
    QTest::addColumn<QByteArray>("announced");
    QTest::addColumn<int>("count");
    QTest::newRow("fewer") << QByteArray("1") << 1;
    QTest::newRow("all") << QByteArray("2") << 2;
    QTest::newRow("one too many") << QByteArray("3") << 2;
    QTest::newRow("largest") << QByteArray("9223372036854775807") << 2;
    QTest::newRow("too large") << QByteArray("18446744073709551615") << 0;
    QTest::newRow("negative") << QByteArray("-1") << 0;
}

void ClientLibTest::counts()
{
    QFETCH(const QByteArray, announced);
    QFETCH(const int, count);
    const Values values{announced.toStdString(), "1", "2", "3", "4", "5", "6", "7", "8"};
    QCOMPARE(TRecordReader(values).count(3), static_cast<std::size_t>(count));
}

void ClientLibTest::jobRoundTrip()
{
    const std::string record = sampleJob().Marshall();
    Values values = valuesOf(record);
    values.emplace_back("surplus");
    TJob job;
    job.attributeSetString("left over", "from an earlier record");
    QVERIFY(job.Unmarshall(values, nullptr));
    QCOMPARE(job.Marshall(), record);
    QCOMPARE(job.getName(), sampleJob().getName());
    QCOMPARE(job.getTasksMask(), 0xFFFFFFFEU);
    QCOMPARE(job.attributeGetString("output_folder"), std::string("/out\\n"));
    QCOMPARE(job.attributeGetString("left over"), std::string());

    // The order of the values is what other programs of the farm rely on.
    const Values laidOut{"1", "7", "n", "o", "2", "3", "4", "1", "10", "20", "5", "1", "k", "v"};
    QVERIFY(job.Unmarshall(laidOut, nullptr));
    QCOMPARE(valuesOf(job.Marshall()), laidOut);
    QCOMPARE(job.getJobId(), 7);
    QCOMPARE(job.getOwner(), std::string("o"));
    QCOMPARE(job.getStatus(), 2);
    QCOMPARE(job.getPacketType(), 3);
    QCOMPARE(job.GetFrameRanges().front().end, 20);
    QCOMPARE(job.attributeGetString("k"), std::string("v"));
}

void ClientLibTest::jobTruncated()
{
    const TJob whole = sampleJob();
    const Values values = valuesOf(whole.Marshall());
    const std::size_t attributesFrom = 8 + 3 * whole.GetFrameRanges().size() + 1;
    for (std::size_t cut = 1; cut <= values.size(); ++cut) {
        TJob job;
        QVERIFY(job.Unmarshall(Values(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(cut)),
                               nullptr));
        QCOMPARE(job.getJobId(), cut > 1 ? whole.getJobId() : 0);
        QCOMPARE(job.getTasksMask(), cut > 6 ? whole.getTasksMask() : 0U);
        QCOMPARE(job.GetFrameRanges().size(), std::min<std::size_t>(2, cut < 8 ? 0 : (cut - 8) / 3));
        const std::size_t attributes = cut < attributesFrom ? 0 : (cut - attributesFrom) / 2;
        QCOMPARE(valuesOf(job.Marshall()).size(), 9 + 3 * job.GetFrameRanges().size() + 2 * attributes);
    }
}

void ClientLibTest::jobHostile()
{
    TJob job = sampleJob();
    for (const Values &values : {Values{}, Values{""}, Values{"0", "7"}, Values{"2", "7"}, Values{"x"}}) {
        QVERIFY(!job.Unmarshall(values, nullptr));
        QCOMPARE(job.Marshall(), sampleJob().Marshall());
    }
    QVERIFY(job.Unmarshall({"1", "7", "", "", "", "", "-1", "9999999999", "1", "2", "3", "4"}, nullptr));
    QCOMPARE(job.getTasksMask(), 0U);
    QCOMPARE(job.GetFrameRanges().size(), 1U);
}

void ClientLibTest::jobPaths()
{
    TJob job;
    QVERIFY(job.Unmarshall(valuesOf(sampleJob().Marshall()), std::make_unique<PrefixTranslator>().get()));
    QCOMPARE(job.attributeGetString("output_folder"), std::string("/mnt/out\\n"));
    QCOMPARE(job.attributeGetString("frames_mask"), std::string("/mnt/out/a.####.exr;/mnt/out/b.####.exr"));
    QCOMPARE(job.attributeGetString("note"), std::string("/not/a/path"));
}

void ClientLibTest::chunk()
{
    const Values values{"1", "11", "12", "-13", "14", "15", "-16", "17"};
    for (std::size_t cut = 1; cut <= values.size(); ++cut) {
        TChunk chunk;
        QVERIFY(chunk.Unmarshall(Values(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(cut))));
        Values expected(values.size(), "0");
        std::copy_n(values.begin(), cut, expected.begin());
        QCOMPARE(valuesOf(chunk.Marshall()), expected);
    }
    TChunk chunk;
    chunk.setFrames(1, 2, 3);
    QVERIFY(!chunk.Unmarshall({"3", "11"}));
    QVERIFY(!chunk.Unmarshall({}));
    QCOMPARE(chunk.getEnd(), 2);
    QVERIFY(chunk.Unmarshall(values));
    QCOMPARE(chunk.getJobId(), 12);
    QCOMPARE(chunk.getStatus(), -13);
    QCOMPARE(chunk.getStart(), 14);
    QCOMPARE(chunk.getStep(), -16);
    QCOMPARE(chunk.getState(), 17);
}

void ClientLibTest::frameRange_data()
{
    QTest::addColumn<qint64>("start");
    QTest::addColumn<qint64>("end");
    QTest::addColumn<qint64>("step");
    QTest::addColumn<quint64>("count");
    QTest::addColumn<qint64>("first");

    const auto row = [](qint64 start, qint64 end, qint64 step, quint64 count, qint64 first = 0) {
        QTest::addRow("%lld-%lld/%lld", start, end, step) << start << end << step << count << first;
    };
    constexpr quint64 kTooMany = TFramesRange::kMaxFrames + 1;
    row(1, 10, 1, 10, 1);
    row(1, 10, 4, 3, 1);
    row(1, 10, 0, 10, 1);
    row(10, 1, -4, 3, 2);
    row(5, 5, -1, 1, 5);
    row(10, 1, 1, 0);
    row(10, 1, 0, 0);
    row(1, 10, -1, 0);
    row(1, 1'000'000, 1, 1'000'000, 1);
    row(0, 1'000'000, 1, kTooMany);
    row(999'999, 0, -1, 1'000'000, 0);
    row(kLowest, kHighest, 1, kTooMany);
    row(kHighest, kLowest, -1, kTooMany);
    row(kLowest, kHighest, kHighest, 3, kLowest);
    row(kHighest, kLowest, kLowest, 2, -1);
    row(kHighest, kHighest, kHighest, 1, kHighest);
    row(kLowest, kLowest, kLowest, 1, kLowest);
}

void ClientLibTest::frameRange()
{
    QFETCH(const qint64, start);
    QFETCH(const qint64, end);
    QFETCH(const qint64, step);
    QFETCH(const quint64, count);
    QFETCH(const qint64, first);

    const TFramesRange range{start, end, step};
    const bool usable = count > 0 && count <= TFramesRange::kMaxFrames;
    QCOMPARE(range.FrameCount(), count);
    std::int64_t lowest = 0;
    QCOMPARE(range.FirstFrame(lowest), usable);
    std::int64_t by = 0;
    const std::set<long> frames = TFramesRange::NumberedFrames({range}, by);
    QCOMPARE(frames.size(), usable ? count : 0U);
    QVERIFY(by > 0);
    if (usable) {
        QCOMPARE(lowest, first);
        QCOMPARE(*frames.begin(), static_cast<long>(first));
    }
}

void ClientLibTest::numberedFrames()
{
    std::int64_t step = 0;
    QVERIFY(TFramesRange::NumberedFrames({}, step).empty());
    QCOMPARE(step, 1);
    QCOMPARE(TFramesRange::NumberedFrames({{20, 10, -5}, {9, 11, 1}, {3, 1, 1}}, step),
             (std::set<long>{9, 10, 11, 15, 20}));
    QCOMPARE(step, 5);
    TFramesRange::NumberedFrames({{1, 2, kLowest}}, step);
    QCOMPARE(step, kHighest);
}

void ClientLibTest::tooManyFrames()
{
    std::int64_t step = 0;
    QCOMPARE(TFramesRange::NumberedFrames({{1, 500'000, 1}, {500'001, 1'000'000, 1}}, step).size(),
             1'000'000U);
    QVERIFY(TFramesRange::NumberedFrames({{1, 500'000, 1}, {1, 500'001, 1}}, step).empty());
    QVERIFY(TFramesRange::NumberedFrames(std::vector<TFramesRange>(100'000, {kLowest, kHighest, 1}), step)
                .empty());
}

QTEST_APPLESS_MAIN(ClientLibTest)
#include "tst_client_lib.moc"
