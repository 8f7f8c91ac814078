#include <client_lib/tchunk.h>
#include <client_lib/tjob.h>
#include <demofarm/farmoptions.h>
#include <demofarm/framestore.h>
#include <demofarm/scenario.h>
#include <framework/stringhelper.h>
#include <helpers/imagepointer.h>
#include <image_library/iimagecore.h>

#include <table.h>

#include <QtCore/QDir>
#include <QtTest/QTest>

#include <algorithm>
#include <map>
#include <set>

using TImageLibrary::IImageCore;

namespace {

std::vector<std::string> values(const QByteArray &base64)
{
    const std::string text = TFramework::TStringHelper::FromBase64(base64.toStdString());
    return TFramework::TStringHelper::TokenizeString(text, "\n");
}

/// What a client can know of a job from the events so far.
struct JobStory {
    std::set<std::int64_t> running;
    int worstChunk = 0;
    bool started = false;
    bool completed = false;
};

/// What a layer of one channel holds; empty when the file does not load.
QByteArray plane(const QString &file, const char *layer)
{
    const FarmHelpers::ImagePointer image(
        IImageCore::Load(file.toUtf8().constData(), "exr", {layer}, nullptr, nullptr));
    if (!image)
        return {};
    const TImageLibrary::CTImageChannel &channel = *image->GetLayer(layer)->GetDefaultChannel();
    return {static_cast<const char *>(channel.GetChannelData()), qsizetype(channel.format().byteSize())};
}

RenderOrder order(const FrameStore &store, const std::string &job, std::optional<Outcome> outcome)
{
    const std::string folder = store.folder().toStdString() + "/show/" + job;
    return {4, folder, folder + "/beauty.####.exr", {1001, 1005, 2}, outcome};
}

} // namespace

class TestDemoFarm : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sameSeedPlaysTheSameNight()
    {
        const auto night = [](quint32 seed) {
            Scenario scenario({.jobs = 5, .seed = seed});
            QByteArray result;
            while (const std::optional<FarmEvent> event = scenario.next())
                result +=
                    QByteArray::number(qint64(event->pause.count())) + encodeNotification(event->packet);
            return result;
        };
        QCOMPARE(night(3), night(3));
        QVERIFY(night(3) != night(4));
    }

    /// Every job starts, runs its chunks and completes as bad as the worst of them; what is rendered is what the records name.
    void everyJobRunsItsCourse()
    {
        Scenario night({.jobs = 200, .eventsPerSecond = 50, .seed = 99, .folder = QStringLiteral("/night")});
        std::map<std::int64_t, JobStory> stories;
        std::set<qint64> types;
        std::set<int> jobStatuses;
        int finalFiles = 0;
        double events = 0;
        std::chrono::duration<double> whole{0};
        while (const std::optional<FarmEvent> event = night.next()) {
            const NotificationPacket &packet = event->packet;
            types.insert(packet.eventType);
            whole += event->pause;
            events += 1;
            TClientLib::TJob job;
            TClientLib::TChunk chunk;
            if (!job.Unmarshall(values(packet.job), nullptr)) {
                QVERIFY(packet.eventType >= ServiceActivity && packet.user.isEmpty() && !event->render);
                continue;
            }
            QCOMPARE(packet.user, QString::fromStdString(job.getOwner()));
            JobStory &story = stories[job.getJobId()];
            QCOMPARE(!std::exchange(story.started, true), packet.eventType == JobStarted);
            QVERIFY(!story.completed);
            const bool isChunk = chunk.Unmarshall(values(packet.chunk));
            if (isChunk && packet.eventType == ChunkStarted) {
                QVERIFY(story.running.insert(chunk.getChunkId()).second);
            } else if (isChunk) {
                QCOMPARE(story.running.erase(chunk.getChunkId()), std::size_t(1));
                story.worstChunk = std::max(story.worstChunk, chunk.getStatus());
            } else if (packet.eventType == JobCompleted) {
                story.completed = story.running.empty();
                QCOMPARE(job.getStatus(), story.worstChunk * 256);
                jobStatuses.insert(job.getStatus());
            }
            const std::string finalFile = job.attributeGetString("final_filename");
            const bool rendersFinalFile = packet.eventType == JobCompleted && !finalFile.empty();
            QCOMPARE(event->render.has_value(), rendersFinalFile || (isChunk && finalFile.empty()));
            if (!event->render)
                continue;
            const RenderOrder &render = *event->render;
            finalFiles += rendersFinalFile;
            QCOMPARE(render.path, rendersFinalFile ? finalFile : job.attributeGetString("frames_mask"));
            QVERIFY(render.path.starts_with(job.attributeGetString("output_folder") + "/"));
            QVERIFY(rendersFinalFile
                    || (render.frames.start == chunk.getStart() && render.frames.end == chunk.getEnd()
                        && chunk.getStatus()
                            == (render.outcome ? chunkStatus(*render.outcome) : kRunningStatus)));
        }
        QCOMPARE(types, (std::set<qint64>{1, 2, 4, 8, 512, 1024, 2048, 4096}));
        QCOMPARE(stories.size(), std::size_t(200));
        QVERIFY(std::all_of(stories.begin(), stories.end(),
                            [](const auto &story) { return story.second.completed; }));
        QCOMPARE(jobStatuses, (std::set<int>{1024, 2048, 4096}));
        QVERIFY(finalFiles > 0);
        QVERIFY2(qAbs(events / whole.count() - 50) < 5, qPrintable(QString::number(events / whole.count())));
    }

    void commandLine()
    {
        const auto exitCode = [](const char *arguments) {
            const FarmCommandLine line =
                parseFarmCommandLine((QStringLiteral("farm ") + QLatin1String(arguments))
                                         .split(QLatin1Char(' '), Qt::SkipEmptyParts));
            return line.options ? -1 : line.text.isEmpty() ? -2 : line.exitCode;
        };
        QCOMPARE(
            exitCode("--port 0 --jobs 3 --rate 0.5 --seed 9 --fragment 1 --drop-after 1.5 --frames-in ."),
            -1);
        for (const char *wrong : {"--port 65536", "--jobs 1.5", "--rate 0", "--rate nan", "--fragment",
                                  "--frames-in /no/such/folder", "--nights 3", "9883"})
            QVERIFY2(exitCode(wrong) == 2, wrong);
        QCOMPARE(exitCode("--help"), 0);
    }

    void framesOfAChunk_data()
    {
        const QString first = QStringLiteral("beauty.1001.exr");
        const QString middle = QStringLiteral("beauty.1003.exr");
        const QString last = QStringLiteral("beauty.1005.exr");
        addTable<std::optional<Outcome>, QStringList, QString>(
            {"outcome", "files", "damaged"},
            {{"at work", {}, {first}, first},
             {"warnings", Outcome::Warnings, {first, middle, last}, middle},
             {"errors", Outcome::Errors, {first, last}, {}}});
    }

    void framesOfAChunk()
    {
        QFETCH(const std::optional<Outcome>, outcome);
        QFETCH(const QStringList, files);
        QFETCH(const QString, damaged);
        FrameStore store({}, false, true);
        const RenderOrder chunk = order(store, "a job", outcome);
        store.render(chunk);
        const QDir folder(QString::fromStdString(chunk.folder));
        QCOMPARE(folder.entryList(QDir::Files, QDir::Name), files);
        std::set<QByteArray> pictures;
        for (const QString &file : files) {
            const QString path = folder.filePath(file);
            const QByteArray red = plane(path, "R");
            QCOMPARE(red.isEmpty(), file == damaged);
            if (file == damaged)
                continue;
            pictures.insert(red);
            std::set<std::string> layers;
            QVERIFY(IImageCore::LoadLayers(path.toUtf8().constData(), "exr", layers));
            QCOMPARE(layers.size(), 11U);
            QVERIFY(plane(path, "diffuse.R") != plane(path, "specular.R"));
        }
        QCOMPARE(qsizetype(pictures.size()), files.size() - !damaged.isEmpty());
    }

    void onlyTheLastJobsStay()
    {
        QString folder;
        {
            FrameStore store({}, false, true);
            folder = store.folder();
            for (std::size_t job = 0; job <= FrameStore::kJobsKept; ++job)
                store.render(order(store, std::to_string(job), std::nullopt));
            const QStringList jobs =
                QDir(folder + QStringLiteral("/show")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
            QCOMPARE(std::size_t(jobs.size()), FrameStore::kJobsKept);
            QVERIFY(!jobs.contains(QStringLiteral("0")));
        }
        QVERIFY(!QDir(folder).exists());
        folder = FrameStore({}, true, false).folder();
        QVERIFY(QDir(folder).removeRecursively());
    }
};

QTEST_GUILESS_MAIN(TestDemoFarm)
#include "tst_demofarm.moc"
