#include "scenario.h"

#include <algorithm>
#include <string>

namespace {

constexpr std::size_t kJobsSideBySide = 4;
constexpr std::size_t kChunksSideBySide = 3;
constexpr int kServicePercent = 5;
constexpr int kSubmitPercent = 30;
constexpr int kCompletePercent = 35;
constexpr int kErrorPercent = 6;
constexpr int kWarningPercent = 10;

struct ServiceText {
    EventType type;
    const char *text;
};

constexpr ServiceText kServiceTexts[] = {
    {ServiceActivity, "Render client blade-%1 joined the farm"},
    {ServiceActivity, "Render client blade-%1 left the farm"},
    {ServiceActivityDetail, "Archiver moved %1 finished jobs"},
    {Alert, "Render client blade-%1 does not answer"},
    {AlertDetail, "Only %1 GB left on the output volume"},
};

QString outcomeText(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Success:
        return QStringLiteral("completed");
    case Outcome::Warnings:
        return QStringLiteral("completed with warnings");
    case Outcome::Errors:
        break;
    }
    return QStringLiteral("failed");
}

QString framesText(const TClientLib::TChunk &chunk)
{
    if (chunk.getStart() == chunk.getEnd())
        return QStringLiteral("Frame %1").arg(chunk.getStart());
    return QStringLiteral("Frames %1-%2").arg(chunk.getStart()).arg(chunk.getEnd());
}

QByteArray base64(const std::string &record)
{
    return QByteArray::fromStdString(record).toBase64();
}

RenderOrder renderOrder(const FarmJob &job, const char *pathAttribute, const TClientLib::TFramesRange &frames,
                        std::optional<Outcome> outcome)
{
    const TClientLib::TJob &record = job.record();
    return {record.getJobId(), record.attributeGetString("output_folder"),
            record.attributeGetString(pathAttribute), frames, outcome};
}

/// The frames of a chunk; a tile of a final file is none of its own.
std::optional<RenderOrder> chunkOrder(const FarmJob &job, const TClientLib::TChunk &chunk,
                                      std::optional<Outcome> outcome)
{
    if (job.hasFinalFile())
        return std::nullopt;
    return renderOrder(job, "frames_mask", {chunk.getStart(), chunk.getEnd(), chunk.getStep()}, outcome);
}

NotificationPacket jobPacket(EventType type, const QString &message, const FarmJob &job)
{
    return {message, type, 0, job.owner(), base64(job.record().Marshall()), {}};
}

NotificationPacket chunkPacket(EventType type, const QString &message, const FarmJob &job,
                               const TClientLib::TChunk &chunk)
{
    NotificationPacket packet = jobPacket(type, message, job);
    packet.chunk = base64(chunk.Marshall());
    return packet;
}

} // namespace

Scenario::Scenario(const ScenarioSettings &settings)
    : m_settings(settings)
    , m_random(settings.seed)
    , m_book(m_random, settings.folder.toStdString())
{ }

std::optional<FarmEvent> Scenario::next()
{
    if (m_running.empty() && !hasJobToSubmit())
        return std::nullopt;
    // Between a quarter and seven quarters of the average pause.
    const double share = 0.25 + 1.5 * m_random.below(1001) / 1000.0;
    const std::chrono::duration<double> pause(share / m_settings.eventsPerSecond);
    FarmEvent event = nextEvent();
    event.pause = std::chrono::duration_cast<std::chrono::microseconds>(pause);
    return event;
}

FarmEvent Scenario::nextEvent()
{
    const bool mustSubmit = m_running.empty();
    const bool maySubmit = hasJobToSubmit() && m_running.size() < kJobsSideBySide;
    if (mustSubmit || (maySubmit && m_random.chance(kSubmitPercent)))
        return submitJob();
    if (m_random.chance(kServicePercent))
        return serviceEvent();

    const std::size_t index = m_random.indexOf(m_running.size());
    FarmJob &job = m_running[index];
    return job.isFinished() ? completeJob(index) : advance(job);
}

FarmEvent Scenario::submitJob()
{
    ++m_submitted;
    m_running.push_back(m_book.nextJob());
    const FarmJob &job = m_running.back();
    return {{}, jobPacket(JobStarted, QStringLiteral("Job %1 started").arg(job.name()), job), {}};
}

FarmEvent Scenario::serviceEvent()
{
    const ServiceText &text = m_random.pick(kServiceTexts);
    const QString message = QString::fromUtf8(text.text).arg(1 + m_random.below(48));
    return {{}, {message, text.type, 0, {}, {}, {}}, {}};
}

FarmEvent Scenario::completeJob(std::size_t index)
{
    FarmJob &job = m_running[index];
    const Outcome outcome = job.complete();
    const QString message = QStringLiteral("Job %1 %2").arg(job.name(), outcomeText(outcome));
    FarmEvent event{{}, jobPacket(JobCompleted, message, job), {}};
    if (job.hasFinalFile())
        event.render = renderOrder(job, "final_filename", job.record().GetFrameRanges().front(), outcome);
    m_running.erase(m_running.begin() + std::ptrdiff_t(index));
    return event;
}

FarmEvent Scenario::advance(FarmJob &job)
{
    const bool canStart = job.hasWaitingChunk() && job.runningChunks() < kChunksSideBySide;
    if (!canStart || (job.runningChunks() > 0 && m_random.chance(kCompletePercent)))
        return completeChunk(job);
    const TClientLib::TChunk chunk = job.startChunk();
    const QString message = QStringLiteral("%1 of %2 started").arg(framesText(chunk), job.name());
    return {{}, chunkPacket(ChunkStarted, message, job, chunk), chunkOrder(job, chunk, std::nullopt)};
}

FarmEvent Scenario::completeChunk(FarmJob &job)
{
    const Outcome outcome = drawOutcome();
    const TClientLib::TChunk chunk = job.finishChunk(m_random.indexOf(job.runningChunks()), outcome);
    const QString message =
        QStringLiteral("%1 of %2 %3").arg(framesText(chunk), job.name(), outcomeText(outcome));
    return {{}, chunkPacket(ChunkCompleted, message, job, chunk), chunkOrder(job, chunk, outcome)};
}

Outcome Scenario::drawOutcome()
{
    const int draw = m_random.below(100);
    if (draw < kErrorPercent)
        return Outcome::Errors;
    return draw < kErrorPercent + kWarningPercent ? Outcome::Warnings : Outcome::Success;
}
