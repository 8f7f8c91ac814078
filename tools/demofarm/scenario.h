#pragma once

#include "farmevent.h"
#include "farmjob.h"
#include "farmrandom.h"
#include "jobbook.h"

#include <QtCore/QString>

#include <cstddef>
#include <deque>
#include <optional>

struct ScenarioSettings {
    int jobs = 12; ///< jobs of the night; 0: the night has no end
    double eventsPerSecond = 2; ///< on average; above 0
    quint32 seed = 1; ///< the same seed gives the same night
    QString folder = QStringLiteral("/mnt/farm"); ///< where the jobs say that they write
};

/// A night on the farm, event by event, without a clock and without a socket. A few jobs run side by side; every
/// chunk that starts completes, and a job completes behind its chunks.
class Scenario {
public:
    explicit Scenario(const ScenarioSettings &settings);
    // The book of jobs holds on to the random numbers.
    Scenario(const Scenario &) = delete;
    Scenario &operator=(const Scenario &) = delete;

    /// Null when the night is over.
    std::optional<FarmEvent> next();

private:
    bool hasJobToSubmit() const { return m_settings.jobs == 0 || m_submitted < m_settings.jobs; }
    FarmEvent nextEvent();
    FarmEvent submitJob();
    FarmEvent serviceEvent();
    FarmEvent completeJob(std::size_t index);
    FarmEvent advance(FarmJob &job);
    FarmEvent completeChunk(FarmJob &job);
    Outcome drawOutcome();

    ScenarioSettings m_settings;
    FarmRandom m_random;
    JobBook m_book;
    std::deque<FarmJob> m_running;
    int m_submitted = 0;
};
