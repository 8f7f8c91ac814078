#include <client_lib/tchunk.h>
#include <client_lib/tjob.h>
#include <demofarm/farmoptions.h>
#include <demofarm/scenario.h>
#include <framework/stringhelper.h>
#include <net/protocol/packets.h>

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
    int worstChunk = 0;
    bool completed = false;
};

} // namespace

class TestDemoFarm : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sameSeedPlaysTheSameNight()
    {
        const auto night = [](quint32 seed) {
            QByteArray result;
            for (const FarmEvent &event : play({.jobs = 5, .seed = seed}))
                result += QByteArray::number(qint64(event.pause.count())) + encodeNotification(event.packet);
            return result;
        };
        QCOMPARE(night(3), night(3));
        QVERIFY(night(3) != night(4));
    }

    void everyKindOfEventComes()
    {
        std::set<qint64> types;
        bool hasDirectoryUser = false;
        for (const FarmEvent &event : play({.jobs = 60})) {
            const NotificationPacket &packet = event.packet;
            types.insert(packet.eventType);
            hasDirectoryUser = hasDirectoryUser || packet.user.contains(QLatin1String("@directory@"));
            if (packet.eventType >= ServiceActivity) {
                QVERIFY(packet.job.isEmpty() && packet.chunk.isEmpty() && packet.user.isEmpty());
                continue;
            }
            const auto job = unmarshalled<TJob>(packet.job, nullptr);
            QVERIFY(job && packet.message.contains(QString::fromStdString(job->getName())));
            QCOMPARE(packet.user, QString::fromStdString(job->getOwner()));
        }
        QCOMPARE(types, (std::set<qint64>{1, 2, 4, 8, 512, 1024, 2048, 4096}));
        QVERIFY(hasDirectoryUser);
    }

    void everyJobRunsItsCourse()
    {
        std::map<std::int64_t, JobStory> stories;
        std::set<int> jobStatuses;
        for (const FarmEvent &event : play({.jobs = 200, .seed = 99})) {
            if (event.packet.job.isEmpty())
                continue;
            const auto job = unmarshalled<TJob>(event.packet.job, nullptr);
            QVERIFY(job);
            const bool isNew = !stories.contains(job->getJobId());
            QCOMPARE(isNew, event.packet.eventType == JobStarted);
            JobStory &story = stories[job->getJobId()];
            QVERIFY(!story.completed);
            if (const auto chunk = unmarshalled<TChunk>(event.packet.chunk)) {
                QCOMPARE(chunk->getJobId(), job->getJobId());
                if (event.packet.eventType == ChunkStarted) {
                    QCOMPARE(chunk->getStatus(), kRunningStatus);
                    QVERIFY(story.running.insert(chunk->getChunkId()).second);
                    continue;
                }
                QCOMPARE(event.packet.eventType, qint64(ChunkCompleted));
                QVERIFY(chunk->getStatus() == 4 || chunk->getStatus() == 8 || chunk->getStatus() == 16);
                QCOMPARE(story.running.erase(chunk->getChunkId()), std::size_t(1));
                story.worstChunk = std::max(story.worstChunk, chunk->getStatus());
            } else if (event.packet.eventType == JobCompleted) {
                story.completed = true;
                QVERIFY(story.running.empty());
                QCOMPARE(job->getStatus(), story.worstChunk * 256);
                jobStatuses.insert(job->getStatus());
            }
        }
        QCOMPARE(stories.size(), std::size_t(200));
        QVERIFY(std::all_of(stories.begin(), stories.end(),
                            [](const auto &story) { return story.second.completed; }));
        QCOMPARE(jobStatuses, (std::set<int>{1024, 2048, 4096}));
    }

    void paceIsTheOneAskedFor()
    {
        const std::vector<FarmEvent> events = play({.jobs = 100, .eventsPerSecond = 50});
        std::chrono::microseconds whole{0};
        for (const FarmEvent &event : events)
            whole += event.pause;
        const double rate = double(events.size()) / std::chrono::duration<double>(whole).count();
        QVERIFY2(rate > 45 && rate < 55, qPrintable(QString::number(rate)));
    }

    void commandLine()
    {
        const auto exitCode = [](const char *arguments) {
            const FarmCommandLine line =
                parseFarmCommandLine((QStringLiteral("farm ") + QLatin1String(arguments))
                                         .split(QLatin1Char(' '), Qt::SkipEmptyParts));
            return line.options ? -1 : line.text.isEmpty() ? -2 : line.exitCode;
        };
        for (const char *runs :
             {"", "--port 65535",
              "--port 0 --jobs 3 --rate 0.5 --seed 9 --compress --fragment 1 --deny-login "
              "--drop-after 1.5 --garbage --once --frames-in . --keep-frames --half-frames "
              "--no-frames"})
            QCOMPARE(exitCode(runs), -1);
        for (const char *wrong :
             {"--port 65536", "--jobs many", "--jobs 1.5", "--burst inf", "--rate 0", "--rate nan",
              "--fragment", "--frames-in /no/such/folder", "--nights 3", "9883"})
            QVERIFY2(exitCode(wrong) == 2, wrong);
        QCOMPARE(exitCode("--help"), 0);
    }
};

QTEST_GUILESS_MAIN(TestDemoFarm)
#include "tst_demofarm.moc"
