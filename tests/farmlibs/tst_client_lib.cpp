#include <client_lib/recordtext.h>
#include <client_lib/tchunk.h>
#include <client_lib/tframesrange.h>
#include <client_lib/tjob.h>
#include <framework/stringhelper.h>

#include <QtTest/QTest>

#include <array>
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
    void escapes()
    {
        const std::tuple<std::string, std::string, bool> texts[] = {
            {"a\\nb", "a\nb", true},
            {"a\\\\nb", "a\\nb", true},
            {"\\\\\\n", "\\\n", true},
            {"a\\\\", "a\\", true},
            // The writer gives other values for these.
            {"a\\", "a\\", false},
            {"a\\tb", "a\\tb", false},
            {std::string("a\\\\\0b", 5), std::string("a\\\0b", 4), true},
            {"", "", true}};
        for (const auto &[value, text, written] : texts) {
            const Values values{value};
            QCOMPARE(TRecordReader(values).text(), text);
            TRecordWriter writer;
            writer.add(text);
            QCOMPARE(writer.text() == value, written);
        }
    }

    void numbers()
    {
        const Values values = valuesOf("-9223372036854775808\n9223372036854775808\n2147483648\n-2147483648\n"
                                       "4294967295\n-1\n\n12 \n0x10\n+1");
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

    void jobRoundTrip()
    {
        const std::string record = sampleJob().Marshall();
        Values values = valuesOf(record);
        values.emplace_back("surplus");
        TJob job;
        job.attributeSetString("left over", "from an earlier record");
        QVERIFY(job.Unmarshall(values, nullptr));
        QCOMPARE(job.Marshall(), record);
        QCOMPARE(job.getName(), sampleJob().getName());
        QCOMPARE(job.attributeGetString("output_folder"), std::string("/out\\n"));
        QCOMPARE(job.attributeGetString("left over"), std::string());

        // The order of the values is what other programs of the farm rely on.
        const Values laidOut{"1", "7", "n", "o", "2", "3", "4", "1", "10", "20", "5", "1", "k", "v"};
        QVERIFY(job.Unmarshall(laidOut, nullptr));
        QCOMPARE(valuesOf(job.Marshall()), laidOut);
        QVERIFY(job.getJobId() == 7 && job.getOwner() == "o" && job.getStatus() == 2
                && job.getPacketType() == 3);
        QCOMPARE(job.GetFrameRanges().front().end, 20);
        QCOMPARE(job.attributeGetString("k"), std::string("v"));
    }

    void jobPaths()
    {
        TJob job;
        QVERIFY(job.Unmarshall(valuesOf(sampleJob().Marshall()), std::make_unique<PrefixTranslator>().get()));
        QCOMPARE(job.attributeGetString("output_folder"), std::string("/mnt/out\\n"));
        QCOMPARE(job.attributeGetString("frames_mask"),
                 std::string("/mnt/out/a.####.exr;/mnt/out/b.####.exr"));
        QCOMPARE(job.attributeGetString("note"), std::string("/not/a/path"));
    }

    void chunk()
    {
        const Values values{"1", "11", "12", "-13", "14", "15", "-16", "17"};
        TChunk chunk;
        for (std::size_t cut = 1; cut <= values.size(); ++cut) {
            Values expected(values.size(), "0");
            std::copy_n(values.begin(), cut, expected.begin());
            chunk = {};
            QVERIFY(chunk.Unmarshall(Values(values.begin(), values.begin() + std::ptrdiff_t(cut))));
            QCOMPARE(valuesOf(chunk.Marshall()), expected);
        }
        QVERIFY(!chunk.Unmarshall({"3", "11"}) && !chunk.Unmarshall({}));
        QVERIFY(chunk.getJobId() == 12 && chunk.getStatus() == -13 && chunk.getStart() == 14);
        QVERIFY(chunk.getEnd() == 15 && chunk.getStep() == -16 && chunk.getState() == 17);
    }

    void frameRange()
    {
        constexpr std::int64_t kTooMany = TFramesRange::kMaxFrames + 1;
        // Start, end, step, count and, where there are frames, the first
        const std::array<std::int64_t, 5> rows[] = {{1, 10, 4, 3, 1},
                                                    {1, 10, 0, 10, 1},
                                                    {10, 1, -4, 3, 2},
                                                    {1, 10, -1, 0},
                                                    {1, 1'000'000, 1, 1'000'000, 1},
                                                    {999'999, 0, -1, 1'000'000, 0},
                                                    {kLowest, kHighest, 1, kTooMany},
                                                    {kLowest, kHighest, kHighest, 3, kLowest},
                                                    {kHighest, kLowest, kLowest, 2, -1}};
        for (const auto &[start, end, step, frameCount, first] : rows) {
            const TFramesRange range{start, end, step};
            const auto count = std::uint64_t(frameCount);
            const bool usable = count > 0 && count <= TFramesRange::kMaxFrames;
            QCOMPARE(range.FrameCount(), count);
            std::int64_t lowest = 0;
            QCOMPARE(range.FirstFrame(lowest), usable);
            std::int64_t by = 0;
            const std::set<long> frames = TFramesRange::NumberedFrames({range}, by);
            QCOMPARE(frames.size(), usable ? count : 0U);
            QVERIFY(by > 0 && (!usable || (lowest == first && *frames.begin() == first)));
        }
    }

    void numberedFrames()
    {
        std::int64_t step = 0;
        QVERIFY(TFramesRange::NumberedFrames({}, step).empty());
        QCOMPARE(step, 1);
        QCOMPARE(TFramesRange::NumberedFrames({{20, 10, -5}, {9, 11, 1}, {3, 1, 1}}, step),
                 (std::set<long>{9, 10, 11, 15, 20}));
        QCOMPARE(step, 5);
        // Limits of the sum
        QCOMPARE(TFramesRange::NumberedFrames({{1, 500'000, 1}, {500'001, 1'000'000, 1}}, step).size(),
                 1'000'000U);
        QVERIFY(TFramesRange::NumberedFrames({{1, 500'000, 1}, {1, 500'001, 1}}, step).empty());
    }
};

QTEST_APPLESS_MAIN(ClientLibTest)
#include "tst_client_lib.moc"
