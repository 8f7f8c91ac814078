#include "farmpackets.h"
#include "table.h"

#include <notify/events/eventbuilder.h>
#include <notify/events/eventkind.h>
#include <notify/events/eventslist.h>
#include <notify/events/notifyevent.h>
#include <notify/eventsmodel.h>

#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<NotifyEvent> makeEvent(quint64 id, qint64 type, std::optional<int> jobStatus = {},
                                       std::optional<int> chunkStatus = {})
{
    const TClientLib::TJob job = farm::job(jobStatus.value_or(0));
    const TClientLib::TChunk chunk = farm::chunk(chunkStatus.value_or(0));
    return buildEvent(farm::notification(type, jobStatus ? &job : nullptr, chunkStatus ? &chunk : nullptr),
                      id);
}

} // namespace

class TestEvents final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void framesOfAJob_data()
    {
        // Attributes are name=value, separated by blanks; a range starts at -1 where there is none.
        addTable<QByteArray, uint, int, QString, QString, QString>(
            {"attributes", "tasksMask", "rangeStart", "path", "mask", "file"},
            {{"output folder", "output_folder=/out job_project=/project", 0, -1, u"/out"_s, {}, {}},
             {"project folder", "job_project=/project", 0, -1, u"/project"_s, {}, {}},
             {"mask wins over the folder", "output_folder=/out frames_mask=/f/a.####.exr;/g/b.##.exr", 1, 12,
              u"/f"_s, u"/f/a.####.exr"_s, u"/f/a.0012.exr"_s},
             {"mask without ranges", "frames_mask=/f/a.####.exr", 0, -1, u"/f"_s, u"/f/a.####.exr"_s, {}},
             {"film", "final_filename=/m/a.mov frames_mask=/f/a.#.exr", 3, 12, u"/m"_s, u"/m/a.mov"_s, {}},
             {"nothing known", "x=y", 0, 5, {}, {}, {}}});
    }

    void framesOfAJob()
    {
        QFETCH(const QByteArray, attributes);
        QFETCH(const uint, tasksMask);
        QFETCH(const int, rangeStart);
        TClientLib::TJob job = farm::job();
        job.setTasksMask(tasksMask);
        job.setPacketType(2);
        if (rangeStart >= 0)
            job.setFrameRanges({{rangeStart, rangeStart + 8, 2}, {0, 1, 1}});
        for (const QByteArray &attribute : attributes.split(' '))
            job.attributeSetString(attribute.split('=')[0].toStdString(),
                                   attribute.split('=')[1].toStdString());
        const auto event = buildEvent(farm::notification(1, &job), 9);
        QTEST(event->text(EventKey::kFramesPath), "path");
        QTEST(event->text(EventKey::kFramesMask), "mask");
        QTEST(event->text(EventKey::kFramesFilePath), "file");
        QCOMPARE(event->text(EventKey::kSubmitter), u"ann"_s);
        QCOMPARE(event->text(EventKey::kPacketType), u"2"_s);
        QCOMPARE(event->text(EventKey::kTasksMask), QString::number(tasksMask));
        QCOMPARE(event->eventId, 9U);
    }

    void missingAndHostileRecords()
    {
        const auto plain = buildEvent(farm::notification(512), 1);
        QCOMPARE(plain->properties.keys(), QStringList({EventKey::kMessage, EventKey::kUser}));
        QVERIFY(!plain->job && !plain->chunk);
        NotificationPacket packet = farm::notification(1);
        packet.job = farm::base64(
            "1\n1\nname\nowner\n1024\n0\n0\n999999999\n-9223372036854775808\n9223372036854775807\n0");
        packet.chunk = "not base64 at all!";
        const auto event = buildEvent(packet, 1);
        QVERIFY(event->job && event->chunk);
        QCOMPARE(lookOf(*event).typeText, u"Success"_s);
        QVERIFY(event->text(EventKey::kFramesFilePath).isEmpty());
    }

    void kinds_data()
    {
        using S = Settings;
        constexpr auto service = &S::filterServiceActivities;
        using Filter = bool S::*;
        using Sound = QString S::*;
        using Status = std::optional<int>;
        addTable<qint64, Status, Status, Filter, Sound, QByteArray, int>(
            {"type", "job", "chunk", "filter", "sound", "text", "level"},
            {{"success", 1, 1024, {}, &S::filterJobCompletedWithSuccess, &S::successSound, "Success", 3},
             {"warnings", 1, 2048, {}, &S::filterJobCompletedWithWarnings, &S::warningSound, "Warning", 4},
             {"errors", 1, 4096, {}, &S::filterJobCompletedWithErrors, &S::errorSound, "Error", 5},
             {"job other status", 1, 1, {}, nullptr, nullptr, "", 0},
             {"job completed without job", 1, {}, {}, service, &S::serviceSound, "", 0},
             {"chunk warning", 2, 0, 8, &S::filterChunkCompletedWithWarnings, &S::warningSound, "Warning", 4},
             {"chunk errors", 2, 0, 16, &S::filterChunkCompletedWithErrors, &S::errorSound, "Error", 5},
             {"chunk without its job", 2, {}, 16, &S::filterChunkCompletedWithErrors, &S::errorSound, "", 5},
             {"chunk completed without chunk", 2, 1024, {}, service, &S::serviceSound, "", 0},
             {"job start", 4, 0, {}, &S::filterJobStart, &S::startSound, "Start", 0},
             {"chunk start", 8, 0, 4, &S::filterChunkStart, &S::startSound, "Start", 0},
             {"start without job", 4, {}, {}, service, &S::serviceSound, "Start", 0},
             {"service", 512, {}, {}, service, &S::serviceSound, "Service", 1},
             {"alert", 1024, {}, {}, service, &S::serviceSound, "Alert", 1},
             {"unknown with job", 77, 1024, {}, service, &S::serviceSound, "", 0},
             {"unknown without job", -3, {}, {}, service, &S::serviceSound, "", 0}});
    }

    void kinds()
    {
        QFETCH(const qint64, type);
        QFETCH(const std::optional<int>, job);
        QFETCH(const std::optional<int>, chunk);
        QFETCH(const QByteArray, text);
        const auto event = makeEvent(1, type, job, chunk);
        const EventHandling handling = handlingOf(*event);
        QTEST(handling.filter, "filter");
        QTEST(handling.sound, "sound");
        QCOMPARE(lookOf(*event).typeText.toLatin1(), text);
        static const QHash<QByteArray, QString> icons{
            {"Success", u"itemCompleted"_s}, {"Warning", u"itemWarning"_s}, {"Error", u"itemError"_s},
            {"Start", u"itemStart"_s},       {"Service", u"service"_s},     {"Alert", u"service"_s}};
        QCOMPARE(lookOf(*event).iconPath, text.isEmpty() ? QString() : u":/icons/"_s + icons.value(text));
        QTEST(int(pendingLevelOf(*event)), "level");
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
        QCOMPARE(changed[0][0].toModelIndex(), model.index(1, 0)); // the whole row looks otherwise
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
        directory.user = u"a@directory@nn"_s;
        NotificationPacket service = farm::notification(512);
        service.user.clear();
        events.append(buildEvent(directory, 1));
        events.append(buildEvent(service, 2));
        events.append(buildEvent(farm::notification(2, nullptr, &chunk), 3));
        const auto row = [&model](int number) {
            QStringList cells;
            for (int column = 0; column < EventsModel::ColumnCount; ++column)
                cells += model.index(number, column).data().toString();
            return cells.join(u'|');
        };
        const auto time = QDateTime::fromSecsSinceEpoch(1'700'000'000);
        const QString shown = QLocale::system().toString(time, QLocale::ShortFormat);
        QCOMPARE(row(0), u"Success||%1|event of type 2|ann(D)|Shot010(1234)|7|"_s.arg(shown));
        QCOMPARE(row(1), u"Service||%1|event of type 512|Service|||"_s.arg(shown));
        QCOMPARE(row(2), u"||%1|event of type 2|ann|||"_s.arg(shown)); // its job is not known
        QVERIFY(model.index(0, EventsModel::Acknowledged).data(Qt::DecorationRole).isNull());
        QCOMPARE(model.index(0, EventsModel::Acknowledged).data(Qt::AccessibleTextRole).toString(),
                 u"Pending"_s);
        events.ackEvent(1);
        QVERIFY(!model.index(0, EventsModel::Acknowledged).data(Qt::DecorationRole).isNull());
        QCOMPARE(model.headerData(7, Qt::Horizontal).toString(), u"Output path"_s);
        QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QString());
    }
};

QTEST_MAIN(TestEvents)
#include "tst_events.moc"
