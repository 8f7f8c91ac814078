#include <farmoptions.h>
#include <garbage.h>
#include <scenario.h>

#include <framereader.h>
#include <packets.h>
#include <stringhelper.h>
#include <tchunk.h>
#include <tjob.h>

#include <QtTest/QTest>

#include <algorithm>
#include <map>
#include <set>

using TClientLib::TChunk;
using TClientLib::TJob;

namespace {

template <typename Record>
std::optional<Record> unmarshalled(const QByteArray &base64, auto... translator)
{
    const std::string text = TFramework::TStringHelper::FromBase64(base64.toStdString());
    Record record;
    if (!record.Unmarshall(TFramework::TStringHelper::TokenizeString(text, "\n"), translator...))
        return std::nullopt;
    return record;
}

std::vector<FarmEvent> play(const ScenarioSettings &settings)
{
    Scenario scenario(settings);
    std::vector<FarmEvent> events;
    while (std::optional<FarmEvent> event = scenario.next())
        events.push_back(*event);
    return events;
}

/// What a client can know of a job from the events so far.
struct JobStory {
    std::set<std::int64_t> running;
    int chunksDone = 0;
    int worstChunk = 0;
    bool completed = false;
};

} // namespace

class TestDemoFarm : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sameSeedPlaysTheSameNight();
    void everyEventIsReadByTheClientsDecoders();
    void everyJobRunsItsCourse_data();
    void everyJobRunsItsCourse();
    void nightHasEveryKindOfEvent();
    void paceIsTheOneAskedFor();
    void garbageIsWhatItSays();
    void commandLine_data();
    void commandLine();

private:
    static void tellChunk(JobStory &story, qint64 type, const TChunk &chunk);
};

void TestDemoFarm::sameSeedPlaysTheSameNight()
{
    const auto packets = [](quint32 seed) {
        QList<QByteArray> result;
        for (const FarmEvent &event : play({.jobs = 5, .seed = seed}))
            result.append(QByteArray::number(qint64(event.pause.count())) + encodeNotification(event.packet));
        return result;
    };
    QVERIFY(!packets(3).isEmpty());
    QCOMPARE(packets(3), packets(3));
    QVERIFY(packets(3) != packets(4));
}

void TestDemoFarm::everyEventIsReadByTheClientsDecoders()
{
    for (const FarmEvent &event : play({.jobs = 20})) {
        const std::optional<NotificationPacket> packet = decodeNotification(encodeNotification(event.packet));
        QVERIFY(packet);
        QCOMPARE(*packet, event.packet);
        QVERIFY(!packet->message.isEmpty());
        if (packet->eventType >= ServiceActivity) {
            QVERIFY(packet->job.isEmpty() && packet->chunk.isEmpty() && packet->user.isEmpty());
            continue;
        }
        const auto job = unmarshalled<TJob>(packet->job, nullptr);
        QVERIFY(job);
        QCOMPARE(packet->user, QString::fromStdString(job->getOwner()));
        QVERIFY(packet->message.contains(QString::fromStdString(job->getName())));
        QCOMPARE(job->GetFrameRanges().size(), std::size_t(1));
        const bool hasFinalFile = job->getTasksMask() & 2U;
        QVERIFY(!job->attributeGetString(hasFinalFile ? "final_filename" : "frames_mask").empty());
    }
}

void TestDemoFarm::tellChunk(JobStory &story, qint64 type, const TChunk &chunk)
{
    if (type == ChunkStarted) {
        QCOMPARE(chunk.getStatus(), kRunningStatus);
        QVERIFY(story.running.insert(chunk.getChunkId()).second);
        return;
    }
    QCOMPARE(type, qint64(ChunkCompleted));
    QVERIFY(chunk.getStatus() == 4 || chunk.getStatus() == 8 || chunk.getStatus() == 16);
    QCOMPARE(story.running.erase(chunk.getChunkId()), std::size_t(1));
    ++story.chunksDone;
    story.worstChunk = std::max(story.worstChunk, chunk.getStatus());
}

void TestDemoFarm::everyJobRunsItsCourse_data()
{
    QTest::addColumn<int>("jobs");
    QTest::addColumn<quint32>("seed");
    QTest::newRow("one job") << 1 << 1U;
    QTest::newRow("a night") << 12 << 1U;
    QTest::newRow("a busy farm") << 200 << 99U;
}

void TestDemoFarm::everyJobRunsItsCourse()
{
    QFETCH(const int, jobs);
    QFETCH(const quint32, seed);
    std::map<std::int64_t, JobStory> stories;
    for (const FarmEvent &event : play({.jobs = jobs, .seed = seed})) {
        if (event.packet.job.isEmpty())
            continue;
        const auto job = unmarshalled<TJob>(event.packet.job, nullptr);
        QVERIFY(job);
        const bool isNew = !stories.contains(job->getJobId());
        QCOMPARE(isNew, event.packet.eventType == JobStarted);
        JobStory &story = stories[job->getJobId()];
        QVERIFY(!story.completed);
        if (!event.packet.chunk.isEmpty()) {
            const auto chunk = unmarshalled<TChunk>(event.packet.chunk);
            QVERIFY(chunk);
            QCOMPARE(chunk->getJobId(), job->getJobId());
            tellChunk(story, event.packet.eventType, *chunk);
            if (QTest::currentTestFailed())
                return;
        } else if (event.packet.eventType == JobCompleted) {
            story.completed = true;
            QVERIFY(story.running.empty() && story.chunksDone > 0);
            QCOMPARE(job->getStatus(), story.worstChunk * 256);
        }
    }
    QCOMPARE(int(stories.size()), jobs);
    QVERIFY(std::all_of(stories.begin(), stories.end(),
                        [](const auto &story) { return story.second.completed; }));
}

void TestDemoFarm::nightHasEveryKindOfEvent()
{
    std::set<qint64> types;
    std::set<int> jobStatuses;
    bool hasDirectoryUser = false;
    for (const FarmEvent &event : play({.jobs = 60})) {
        types.insert(event.packet.eventType);
        hasDirectoryUser = hasDirectoryUser || event.packet.user.contains(QLatin1String("@directory@"));
        if (event.packet.eventType == JobCompleted)
            jobStatuses.insert(unmarshalled<TJob>(event.packet.job, nullptr)->getStatus());
    }
    QCOMPARE(types, (std::set<qint64>{1, 2, 4, 8, 512, 1024, 2048, 4096}));
    QCOMPARE(jobStatuses, (std::set<int>{1024, 2048, 4096}));
    QVERIFY(hasDirectoryUser);
}

void TestDemoFarm::paceIsTheOneAskedFor()
{
    const std::vector<FarmEvent> events = play({.jobs = 100, .eventsPerSecond = 50});
    std::chrono::microseconds whole{0};
    for (const FarmEvent &event : events) {
        QVERIFY(event.pause > std::chrono::microseconds(0));
        whole += event.pause;
    }
    const double rate = double(events.size()) / std::chrono::duration<double>(whole).count();
    QVERIFY2(rate > 45 && rate < 55, qPrintable(QString::number(rate)));
}

void TestDemoFarm::garbageIsWhatItSays()
{
    for (int turn = 0; turn < garbageKinds(); ++turn) {
        const Garbage piece = garbage(turn);
        FrameReader reader;
        reader.append(piece.bytes);
        RawFrame frame;
        // What is to be passed over must be a whole frame, or the events behind it would be lost with it.
        if (piece.effect != Garbage::Effect::BreaksLink) {
            QCOMPARE(reader.take(frame), FrameReader::Next::Frame);
            QCOMPARE(reader.size(), 0);
        }
    }
}

void TestDemoFarm::commandLine_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("exitCode"); // -1: the farm runs
    QTest::newRow("nothing") << QString() << -1;
    QTest::newRow("everything") << QStringLiteral(
        "--port 0 --jobs 3 --rate 0.5 --seed 9 --compress --fragment 1 "
        "--deny-login --drop-after 1.5 --garbage --once --frames-in . "
        "--keep-frames --half-frames --no-frames")
                                << -1;
    QTest::newRow("highest port") << QStringLiteral("--port 65535") << -1;
    QTest::newRow("port too high") << QStringLiteral("--port 65536") << 2;
    QTest::newRow("no number") << QStringLiteral("--jobs many") << 2;
    QTest::newRow("half a job") << QStringLiteral("--jobs 1.5") << 2;
    QTest::newRow("infinite burst") << QStringLiteral("--burst inf") << 2;
    QTest::newRow("no rate") << QStringLiteral("--rate 0") << 2;
    QTest::newRow("rate nan") << QStringLiteral("--rate nan") << 2;
    QTest::newRow("value missing") << QStringLiteral("--fragment") << 2;
    QTest::newRow("no such folder") << QStringLiteral("--frames-in /no/such/folder") << 2;
    QTest::newRow("unknown option") << QStringLiteral("--nights 3") << 2;
    QTest::newRow("stray word") << QStringLiteral("9883") << 2;
    QTest::newRow("help") << QStringLiteral("--help") << 0;
}

void TestDemoFarm::commandLine()
{
    QFETCH(const QString, arguments);
    QFETCH(const int, exitCode);
    const FarmCommandLine line = parseFarmCommandLine(
        QStringList{QStringLiteral("farm")} + arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QCOMPARE(line.options.has_value(), exitCode < 0);
    if (!line.options) {
        QCOMPARE(line.exitCode, exitCode);
        QVERIFY(!line.text.isEmpty());
    }
}

QTEST_GUILESS_MAIN(TestDemoFarm)
#include "tst_demofarm.moc"
