// What one more event costs in a long list against a short one, with the window shown and painted, and what an event
// weighs in memory.

#include "ratio.h"

#include <net/protocol/packets.h>
#include <notify/alertor.h>
#include <notify/events/eventbuilder.h>
#include <notify/events/notifyevent.h>

#include <QtWidgets/QApplication>

#include <benchmark/benchmark.h>

#include <malloc.h>

namespace {

constexpr int kShort = 1'000;
constexpr int kLong = 100'000;
constexpr int kBatch = 200;
constexpr double kPromise = 2.0;
constexpr double kBytesLimit = 4096;

NotificationPacket packet()
{
    TClientLib::TJob job;
    job.setJobId(1234);
    job.setName("Shot010_comp_v003");
    job.setOwner("ann");
    job.setStatus(1024);
    job.setFrameRanges({{1001, 1100, 1}});
    job.attributeSetString("output_folder", "/mnt/projects/film/Shot010/renders/comp/v003");
    job.attributeSetString("frames_mask", "/mnt/projects/film/Shot010/renders/comp/v003/Shot010.####.exr");
    TClientLib::TChunk chunk;
    chunk.setChunkId(12);
    chunk.setJobId(1234);
    chunk.setStatus(4);
    chunk.setFrames(1001, 1010, 1);
    const auto encoded = [](const std::string &record) {
        return QByteArray::fromStdString(record).toBase64();
    };
    NotificationPacket notification;
    notification.message = QStringLiteral("Chunk 12 of job Shot010_comp_v003 completed on node rack3-17");
    notification.eventType = EventType::ChunkCompleted;
    notification.eventTime = 1'700'000'000;
    notification.user = QStringLiteral("ann");
    notification.job = encoded(job.Marshall());
    notification.chunk = encoded(chunk.Marshall());
    return notification;
}

/// The window, shown, with this many events in its list.
class Window {
public:
    explicit Window(int events)
    {
        add(events);
        m_alertor.show();
        QCoreApplication::processEvents();
    }
    void add(int count)
    {
        static const NotificationPacket notification = packet();
        for (int i = 0; i < count; ++i)
            m_alertor.handleNewEvent(buildEvent(notification, ++m_id));
    }
    /// A drain of the socket and the paint that follows it.
    double addAndPaint()
    {
        return threadMilliseconds([this] {
            add(kBatch);
            QCoreApplication::processEvents();
        });
    }

private:
    Alertor m_alertor;
    quint64 m_id = 0;
};

double bytesPerEvent()
{
    const NotificationPacket notification = packet();
    const auto used = [] { return mallinfo2().uordblks + mallinfo2().hblkhd; };
    EventsList events;
    const std::size_t before = used();
    for (quint64 id = 1; id <= kLong; ++id)
        events.append(buildEvent(notification, id));
    return double(used() - before) / kLong;
}

void bench(benchmark::State &state)
{
    Window window(int(state.range(0)));
    for (auto _ : state)
        window.add(1);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    benchmark::RegisterBenchmark("handleNewEvent", &bench)->Arg(kShort)->Arg(kLong)->Iterations(2000);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    {
        Window shortList(kShort);
        Window longList(kLong);
        printRatio(
            "events: ms for 200 and a paint, in a list of 100,000 to one of 1,000",
            [&longList] { return longList.addAndPaint(); }, [&shortList] { return shortList.addAndPaint(); },
            kPromise);
    }
    printPromise("events: bytes for each of 100,000, to a limit", bytesPerEvent(), kBytesLimit, 1.0);
    return 0;
}
