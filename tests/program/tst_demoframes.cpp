#include <client_lib/tchunk.h>
#include <client_lib/tjob.h>
#include <demofarm/framestore.h>
#include <demofarm/scenario.h>
#include <framework/stringhelper.h>
#include <helpers/imagepointer.h>
#include <image_library/iimagecore.h>

#include <table.h>

#include <QtCore/QDir>
#include <QtTest/QTest>

#include <memory>
#include <set>
#include <string>
#include <vector>

using TImageLibrary::IImageCore;

namespace {

const std::set<std::string> kLayers = {
    "R", "G", "B", "A", "diffuse.R", "diffuse.G", "diffuse.B", "specular.R", "specular.G", "specular.B", "Z"};

std::vector<std::string> values(const QByteArray &base64)
{
    const std::string text = TFramework::TStringHelper::FromBase64(base64.toStdString());
    return TFramework::TStringHelper::TokenizeString(text, "\n");
}

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

RenderOrder order(const FrameStore &store, const char *job, std::optional<Outcome> outcome)
{
    const std::string folder = store.folder().toStdString() + "/show/" + job;
    return {4, folder, folder + "/beauty.####.exr", {1001, 1005, 2}, outcome};
}

} // namespace

class TestDemoFrames : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void recordsNameWhatIsRendered()
    {
        Scenario scenario({.jobs = 40, .folder = QStringLiteral("/night")});
        std::set<std::int64_t> starts;
        int finalFiles = 0;
        while (const std::optional<FarmEvent> event = scenario.next()) {
            TClientLib::TJob job;
            TClientLib::TChunk chunk;
            job.Unmarshall(values(event->packet.job), nullptr);
            const bool isChunk = chunk.Unmarshall(values(event->packet.chunk));
            const std::string finalFile = job.attributeGetString("final_filename");
            const bool rendersFinalFile = event->packet.eventType == JobCompleted && !finalFile.empty();
            QCOMPARE(event->render.has_value(), rendersFinalFile || (isChunk && finalFile.empty()));
            if (!event->render)
                continue;
            const RenderOrder &render = *event->render;
            QCOMPARE(render.path, rendersFinalFile ? finalFile : job.attributeGetString("frames_mask"));
            QVERIFY(render.path.starts_with(job.attributeGetString("output_folder") + "/"));
            QVERIFY(render.path.starts_with("/night/"));
            finalFiles += rendersFinalFile;
            if (rendersFinalFile)
                continue;
            QVERIFY(render.frames.start == chunk.getStart() && render.frames.end == chunk.getEnd());
            QCOMPARE(render.outcome ? chunkStatus(*render.outcome) : kRunningStatus, chunk.getStatus());
            starts.insert(job.GetFrameRanges().front().start);
        }
        QCOMPARE(starts, (std::set<std::int64_t>{1, 1001}));
        QVERIFY(finalFiles > 0);
    }

    void framesOfAChunk_data()
    {
        const QString first = QStringLiteral("beauty.1001.exr");
        const QString middle = QStringLiteral("beauty.1003.exr");
        const QString last = QStringLiteral("beauty.1005.exr");
        addTable<std::optional<Outcome>, QStringList, QString>(
            {"outcome", "files", "damaged"},
            {{"at work", {}, {first}, first},
             {"success", Outcome::Success, {first, middle, last}, {}},
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
            QCOMPARE(layers, kLayers);
            const QByteArray alpha = plane(path, "A"); // from 0 to 1
            QVERIFY(alpha.startsWith(QByteArray(2, '\0')) && alpha.endsWith(QByteArray("\0\x3c", 2)));
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
                store.render(order(store, std::to_string(job).c_str(), std::nullopt));
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

QTEST_GUILESS_MAIN(TestDemoFrames)
#include "tst_demoframes.moc"
