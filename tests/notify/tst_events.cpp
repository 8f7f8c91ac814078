#include "farmpackets.h"

#include <eventbuilder.h>
#include <eventkind.h>
#include <eventslist.h>
#include <eventsmodel.h>
#include <notifyevent.h>

#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <optional>

namespace {

std::unique_ptr<NotifyEvent> makeEvent(quint64 id, qint64 type, std::optional<int> jobStatus = {},
                                       std::optional<int> chunkStatus = {})
{
    const TClientLib::TJob job = farm::job(jobStatus.value_or(0));
    const TClientLib::TChunk chunk = farm::chunk(chunkStatus.value_or(0));
    return buildEvent(farm::notification(type, jobStatus ? &job : nullptr, chunkStatus ? &chunk : nullptr),
                      id);
}

constexpr int kNone = -1; // no record attached

std::optional<int> statusOf(int column)
{
    return column == kNone ? std::nullopt : std::optional(column);
}

} // namespace

class TestEvents final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void framesOfAJob_data()
    {
        QTest::addColumn<QByteArray>("attributes"); // name=value, separated by blanks
        QTest::addColumn<uint>("tasksMask");
        QTest::addColumn<int>("rangeStart"); // -1: no range
        QTest::addColumn<QString>("framesPath");
        QTest::addColumn<QString>("framesMask");
        QTest::addColumn<QString>("framesFilePath");
        const QString none;
        QTest::newRow("output folder") << QByteArray("output_folder=/out job_project=/project") << 0U << -1
                                       << QStringLiteral("/out") << none << none;
        QTest::newRow("project folder")
            << QByteArray("job_project=/project") << 0U << -1 << QStringLiteral("/project") << none << none;
        QTest::newRow("mask wins over the folder")
            << QByteArray("output_folder=/out frames_mask=/f/a.####.exr;/g/b.##.exr") << 1U << 12
            << QStringLiteral("/f") << QStringLiteral("/f/a.####.exr") << QStringLiteral("/f/a.0012.exr");
        QTest::newRow("mask without ranges")
            << QByteArray("frames_mask=/f/a.####.exr") << 0U << -1 << QStringLiteral("/f")
            << QStringLiteral("/f/a.####.exr") << none;
        QTest::newRow("final file") << QByteArray("final_filename=/m/film.mov frames_mask=/f/a.####.exr")
                                    << 3U << 12 << QStringLiteral("/m") << QStringLiteral("/m/film.mov")
                                    << none;
        QTest::newRow("nothing known") << QByteArray() << 0U << 5 << none << none << none;
    }

    void framesOfAJob()
    {
        QFETCH(const QByteArray, attributes);
        QFETCH(const uint, tasksMask);
        QFETCH(const int, rangeStart);
        QFETCH(const QString, framesPath);
        QFETCH(const QString, framesMask);
        QFETCH(const QString, framesFilePath);
        TClientLib::TJob job = farm::job();
        job.setTasksMask(tasksMask);
        job.setPacketType(2);
        if (rangeStart >= 0)
            job.setFrameRanges({{rangeStart, rangeStart + 8, 2}, {0, 1, 1}});
        for (const QByteArray &attribute : attributes.isEmpty() ? QByteArrayList() : attributes.split(' '))
            job.attributeSetString(attribute.split('=')[0].toStdString(),
                                   attribute.split('=')[1].toStdString());
        const auto event = buildEvent(farm::notification(1, &job), 9);
        QCOMPARE(event->text(EventKey::kFramesPath), framesPath);
        QCOMPARE(event->text(EventKey::kFramesMask), framesMask);
        QCOMPARE(event->text(EventKey::kFramesFilePath), framesFilePath);
        QCOMPARE(event->text(EventKey::kSubmitter), QStringLiteral("ann"));
        QCOMPARE(event->text(EventKey::kPacketType), QStringLiteral("2"));
        QCOMPARE(event->text(EventKey::kTasksMask), QString::number(tasksMask));
        QCOMPARE(event->eventId, 9U);
    }

    void anEventWithoutRecords()
    {
        const auto event = buildEvent(farm::notification(512), 1);
        QCOMPARE(event->properties.keys(), QStringList({EventKey::kMessage, EventKey::kUser}));
        QVERIFY(!event->job && !event->chunk);
    }

    void hostileRecordsGiveAnEventAllTheSame()
    {
        NotificationPacket packet = farm::notification(1);
        packet.job = farm::base64(
            "1\n1\nname\nowner\n1024\n0\n0\n999999999\n-9223372036854775808\n9223372036854775807\n0");
        packet.chunk = "not base64 at all!";
        const auto event = buildEvent(packet, 1);
        QVERIFY(event->job && event->chunk);
        QCOMPARE(lookOf(*event).typeText, QStringLiteral("Success"));
        QVERIFY(event->text(EventKey::kFramesFilePath).isEmpty());
    }

    void kinds_data()
    {
        QTest::addColumn<qint64>("type");
        QTest::addColumn<int>("jobStatus");
        QTest::addColumn<int>("chunkStatus");
        QTest::addColumn<QString>("filter"); // name of the filter that drops it; empty: none does
        QTest::addColumn<QString>("sound");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("level");
        const auto row = [](const char *name, qint64 type, int job, int chunk, const char *filter,
                            const char *sound, const char *text, int level) {
            QTest::newRow(name) << type << job << chunk << QString::fromLatin1(filter)
                                << QString::fromLatin1(sound) << QString::fromLatin1(text) << level;
        };
        row("job success", 1, 1024, kNone, "jobSuccess", "success", "Success", 3);
        row("job warnings", 1, 2048, kNone, "jobWarnings", "warning", "Warning", 4);
        row("job errors", 1, 4096, kNone, "jobErrors", "error", "Error", 5);
        row("job other status", 1, 1, kNone, "", "", "", 0);
        row("job completed without job", 1, kNone, kNone, "service", "service", "", 0);
        row("chunk success", 2, 0, 4, "chunkSuccess", "success", "Success", 3);
        row("chunk warnings", 2, 0, 8, "chunkWarnings", "warning", "Warning", 4);
        row("chunk errors", 2, 0, 16, "chunkErrors", "error", "Error", 5);
        row("chunk other status", 2, 1024, 1, "", "", "", 0);
        row("chunk without its job", 2, kNone, 16, "chunkErrors", "error", "", 5);
        row("chunk completed without chunk", 2, 1024, kNone, "service", "service", "", 0);
        row("job start", 4, 0, kNone, "jobStart", "start", "Start", 0);
        row("chunk start", 8, 0, 4, "chunkStart", "start", "Start", 0);
        row("start without job", 4, kNone, kNone, "service", "service", "Start", 0);
        row("service", 512, kNone, kNone, "service", "service", "Service", 1);
        row("alert", 1024, kNone, kNone, "service", "service", "Alert", 1);
        row("second service", 2048, 0, kNone, "service", "service", "Service", 1);
        row("second alert", 4096, kNone, kNone, "service", "service", "Alert", 1);
        row("unknown with job", 77, 1024, kNone, "service", "service", "", 0);
        row("unknown without job", -3, kNone, kNone, "service", "service", "", 0);
    }

    void kinds()
    {
        const QHash<QString, bool Settings::*> filters{
            {QStringLiteral("jobSuccess"), &Settings::filterJobCompletedWithSuccess},
            {QStringLiteral("jobWarnings"), &Settings::filterJobCompletedWithWarnings},
            {QStringLiteral("jobErrors"), &Settings::filterJobCompletedWithErrors},
            {QStringLiteral("chunkSuccess"), &Settings::filterChunkCompletedWithSuccess},
            {QStringLiteral("chunkWarnings"), &Settings::filterChunkCompletedWithWarnings},
            {QStringLiteral("chunkErrors"), &Settings::filterChunkCompletedWithErrors},
            {QStringLiteral("jobStart"), &Settings::filterJobStart},
            {QStringLiteral("chunkStart"), &Settings::filterChunkStart},
            {QStringLiteral("service"), &Settings::filterServiceActivities},
        };
        const QHash<QString, QString Settings::*> sounds{
            {QStringLiteral("success"), &Settings::successSound},
            {QStringLiteral("warning"), &Settings::warningSound},
            {QStringLiteral("error"), &Settings::errorSound},
            {QStringLiteral("start"), &Settings::startSound},
            {QStringLiteral("service"), &Settings::serviceSound},
        };
        QFETCH(const qint64, type);
        QFETCH(const int, jobStatus);
        QFETCH(const int, chunkStatus);
        QFETCH(const QString, filter);
        QFETCH(const QString, sound);
        QFETCH(const QString, text);
        QFETCH(const int, level);
        const auto event = makeEvent(1, type, statusOf(jobStatus), statusOf(chunkStatus));
        const EventHandling handling = handlingOf(*event);
        QVERIFY(handling.filter == filters.value(filter, nullptr));
        QVERIFY(handling.sound == sounds.value(sound, nullptr));
        QCOMPARE(handling.jobCompletion, type == 1 && !text.isEmpty());
        QCOMPARE(lookOf(*event).typeText, text);
        QCOMPARE(lookOf(*event).iconPath.isEmpty(), text.isEmpty());
        QCOMPARE(int(pendingLevelOf(*event)), level);
    }

    void pendingLevelFollowsTheList()
    {
        EventsList events;
        QVERIFY(events.append(makeEvent(1, 4, 0)));
        QCOMPARE(events.pendingLevel(), NothingPending);
        QVERIFY(events.anyUnacknowledged());
        QVERIFY(events.append(makeEvent(2, 512)));
        QVERIFY(events.append(makeEvent(3, 1, 4096)));
        QVERIFY(events.append(makeEvent(4, 1, 1024)));
        QCOMPARE(events.pendingLevel(), ErrorPending);
        events.ackEvent(3);
        events.ackEvent(3); // counts once
        events.ackEvent(99);
        QCOMPARE(events.pendingLevel(), SuccessPending);
        events.removeEvents({4, 3, 99});
        QCOMPARE(events.pendingLevel(), OtherPending);
        events.ackAll();
        QCOMPARE(events.pendingLevel(), NothingPending);
        QVERIFY(!events.anyUnacknowledged());
        QVERIFY(events.append(makeEvent(5, 1, 2048)));
        events.removeAll();
        QCOMPARE(events.pendingLevel(), NothingPending);
        QCOMPARE(events.size(), 0);
    }

    void idsAreUnique()
    {
        EventsList events;
        QVERIFY(events.append(makeEvent(5, 512)));
        QVERIFY(!events.append(makeEvent(5, 512)));
        QVERIFY(!events.append(makeEvent(4, 512)));
        QVERIFY(events.append(makeEvent(8, 512)));
        QCOMPARE(events.size(), 2);
        QCOMPARE(events.find(8)->eventId, 8U);
        QVERIFY(!events.find(6));
        events.removeEvent(5);
        QCOMPARE(events.rowFrom(0), 0);
        QCOMPARE(events.at(0).eventId, 8U);
    }

    void theModelKeepsItsContract()
    {
        EventsList events;
        EventsModel model(events);
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        for (quint64 id = 1; id <= 5; ++id)
            events.append(makeEvent(id, 1, 1024));
        QCOMPARE(model.rowCount(), 5);
        events.ackEvent(2);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed[0][0].toModelIndex(), model.index(1, EventsModel::Acknowledged));
        events.removeEvents({1, 3});
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.index(0, 0).data(Qt::UserRole).toULongLong(), 2U);
        events.removeAll();
        QCOMPARE(model.rowCount(), 0);
    }

    void cells()
    {
        EventsList events;
        const EventsModel model(events);
        const TClientLib::TJob job = farm::job();
        const TClientLib::TChunk chunk = farm::chunk();
        NotificationPacket directory = farm::notification(2, &job, &chunk);
        directory.user = QStringLiteral("a@directory@nn");
        NotificationPacket service = farm::notification(512);
        service.user.clear();
        events.append(buildEvent(directory, 1));
        events.append(buildEvent(service, 2));
        events.append(buildEvent(farm::notification(2, nullptr, &chunk), 3));
        const auto text = [&model](int row, int column) {
            return model.index(row, column).data().toString();
        };
        QCOMPARE(text(0, EventsModel::Type), QStringLiteral("Success"));
        QCOMPARE(
            text(0, EventsModel::Time),
            QLocale::system().toString(QDateTime::fromSecsSinceEpoch(1'700'000'000), QLocale::ShortFormat));
        QCOMPARE(text(0, EventsModel::User), QStringLiteral("ann(D)"));
        QCOMPARE(text(0, EventsModel::Job), QStringLiteral("Shot010(1234)"));
        QCOMPARE(text(0, EventsModel::Chunk), QStringLiteral("7"));
        QCOMPARE(text(1, EventsModel::User), QStringLiteral("Service"));
        QCOMPARE(text(1, EventsModel::Job), QString());
        QCOMPARE(text(2, EventsModel::Chunk), QString()); // its job is not known
        QVERIFY(model.index(0, EventsModel::Acknowledged).data(Qt::DecorationRole).isNull());
        QCOMPARE(model.index(0, EventsModel::Acknowledged).data(Qt::AccessibleTextRole).toString(),
                 QStringLiteral("Pending"));
        events.ackEvent(1);
        QVERIFY(!model.index(0, EventsModel::Acknowledged).data(Qt::DecorationRole).isNull());
        QCOMPARE(model.headerData(7, Qt::Horizontal).toString(), QStringLiteral("Output path"));
        QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QString());
    }
};

QTEST_MAIN(TestEvents)
#include "tst_events.moc"
