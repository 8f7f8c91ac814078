#pragma once

#include "progress.h"
#include "taheadload.h"

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace TImageLibrary {

/// Decodes images ahead of need, each on one thread of its own, and stands back while somebody waits for a load. Any thread
/// may call it. Its threads start with the first job.
class AheadPool final {
public:
    using Id = std::uint64_t;
    /// Fills the result; what it throws is lost.
    using Decode = std::function<void(const TAheadRequest &, AheadControl &, TAheadResult &)>;

    AheadPool(int threads, Decode decode);
    ~AheadPool();
    AheadPool(const AheadPool &) = delete;
    AheadPool &operator=(const AheadPool &) = delete;

    int threads() const { return m_threadCount; }

    // As in IImageCore.
    Id begin(const TAheadRequest &request);
    bool poll(Id id, TAheadResult &result);
    bool take(Id id, TAheadResult &result);
    void cancel(Id id);

    /// Ends every job and the threads; jobs that are begun later wait for ever.
    void stop();

    /// Holds the jobs back, at their next steps, while it lives.
    class RightOfWay final {
    public:
        explicit RightOfWay(AheadPool &pool);
        ~RightOfWay();
        RightOfWay(const RightOfWay &) = delete;
        RightOfWay &operator=(const RightOfWay &) = delete;

    private:
        AheadPool &m_pool;
    };

    struct Counts {
        int running = 0; ///< also jobs that are held back, or cancelled and not yet at their next step
        int mostRunning = 0; ///< at once, so far
        int kept = 0; ///< begun and neither handed over nor cancelled
    };
    Counts counts() const;

private:
    class Job;
    using JobPointer = std::shared_ptr<Job>;

    void start();
    void work();
    JobPointer nextJob(std::unique_lock<std::mutex> &lock);
    void run(Job &job);

    const int m_threadCount;
    const Decode m_decode;
    mutable std::mutex m_mutex;
    std::condition_variable m_wake; // for the threads
    std::condition_variable m_done; // for who takes
    std::vector<std::thread> m_threads;
    std::vector<JobPointer> m_queue;
    std::map<Id, JobPointer> m_jobs;
    Id m_lastId = 0;
    Counts m_counts;
    int m_waiting = 0; // loads that have the right of way
    bool m_ends = false;
};

} // namespace TImageLibrary
