#include "aheadpool.h"

#include "ctimage.h"
#include "sourcefile.h"

#include <system/machine.h>

#include <algorithm>
#include <system_error>
#include <utility>

namespace TImageLibrary {

namespace {

/// Ends a decode from within; the pool alone throws and catches it.
struct Ended { };

} // namespace

/// A request on its way. The pool's mutex guards all of it but the request and, while it is decoded, the result.
class AheadPool::Job final : public AheadControl {
public:
    enum class State { Queued, Running, Done };

    Job(AheadPool &pool, const TAheadRequest &request)
        : m_pool(pool)
        , m_request(request)
    { }
    ~Job() override { delete m_result.image; }

    const TAheadRequest &request() const { return m_request; }
    TAheadResult &result() { return m_result; }
    TAheadResult handOver() { return std::exchange(m_result, {}); }

    void goOn(double fraction) override
    {
        std::unique_lock lock(m_pool.m_mutex);
        m_fraction = fraction;
        m_pool.m_wake.wait(
            lock, [this] { return m_pool.m_waiting == 0 || isPromoted || isCancelled || m_pool.m_ends; });
        if (isCancelled || m_pool.m_ends)
            throw Ended();
    }
    bool isAlone() override
    {
        const std::lock_guard lock(m_pool.m_mutex);
        m_canShare = true;
        return !isPromoted;
    }

    bool canShare() const { return m_canShare; }
    /// Whether all threads together would do the whole sooner than this one does the rest.
    bool isSlowerThan(int threads) const { return !m_canShare && (1.0 - m_fraction) * threads > 1.0; }

    State state = State::Queued;
    bool isPromoted = false;
    bool isCancelled = false;

private:
    AheadPool &m_pool;
    const TAheadRequest m_request;
    TAheadResult m_result;
    double m_fraction = 0.0;
    bool m_canShare = false;
};

AheadPool::AheadPool(int threads, Decode decode)
    : m_threadCount(std::max(threads, 1))
    , m_decode(std::move(decode))
{ }

AheadPool::~AheadPool()
{
    stop();
}

void AheadPool::start()
{
    try {
        while (!m_ends && int(m_threads.size()) < m_threadCount)
            m_threads.emplace_back([this] { work(); });
    } catch (const std::system_error &) {
        // The system gives no more of them: those that there are do all, and what waits is loaded by who needs it.
    }
}

AheadPool::Id AheadPool::begin(const TAheadRequest &request)
{
    const auto job = std::make_shared<Job>(*this, request);
    const std::lock_guard lock(m_mutex);
    start();
    const Id id = ++m_lastId;
    m_jobs.emplace(id, job);
    const auto place = std::find_if(m_queue.begin(), m_queue.end(), [&request](const JobPointer &other) {
        return other->request().priority < request.priority;
    });
    m_queue.insert(place, job);
    m_wake.notify_all();
    return id;
}

bool AheadPool::poll(Id id, TAheadResult &result)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_jobs.find(id);
    if (found == m_jobs.end() || found->second->state != Job::State::Done)
        return false;
    result = found->second->handOver();
    m_jobs.erase(found);
    return true;
}

bool AheadPool::take(Id id, TAheadResult &result)
{
    std::unique_lock lock(m_mutex);
    const auto found = m_jobs.find(id);
    if (found == m_jobs.end())
        return false;
    const JobPointer job = found->second;
    const bool isRunning = job->state == Job::State::Running;
    if (job->state == Job::State::Queued || (isRunning && job->isSlowerThan(m_threadCount))) {
        lock.unlock();
        cancel(id);
        return false;
    }
    // What others can join in gets all cores; beside what keeps to its thread they would lie idle.
    const int held = isRunning && job->canShare() ? 1 : 0;
    m_waiting += held;
    job->isPromoted = true;
    m_wake.notify_all();
    m_done.wait(lock, [&] { return job->state == Job::State::Done || m_ends; });
    m_waiting -= held;
    m_wake.notify_all();
    const bool isDone = job->state == Job::State::Done && m_jobs.erase(id) > 0;
    if (isDone)
        result = job->handOver();
    return isDone;
}

void AheadPool::cancel(Id id)
{
    JobPointer job; // its image goes when the lock has been given back
    const std::lock_guard lock(m_mutex);
    const auto found = m_jobs.find(id);
    if (found == m_jobs.end())
        return;
    job = std::move(found->second);
    m_jobs.erase(found);
    job->isCancelled = true;
    std::erase(m_queue, job);
    m_wake.notify_all();
}

void AheadPool::stop()
{
    std::vector<std::thread> threads;
    {
        const std::lock_guard lock(m_mutex);
        m_ends = true;
        m_wake.notify_all();
        m_done.notify_all();
        threads.swap(m_threads);
    }
    for (std::thread &thread : threads)
        thread.join();
}

AheadPool::Counts AheadPool::counts() const
{
    const std::lock_guard lock(m_mutex);
    Counts counts = m_counts;
    counts.kept = int(m_jobs.size());
    return counts;
}

void AheadPool::work()
{
    Machine::giveWay(); // what is looked at is painted in time
    std::unique_lock lock(m_mutex);
    while (JobPointer job = nextJob(lock)) {
        const std::string following = m_queue.empty() ? std::string() : m_queue.front()->request().path;
        lock.unlock();
        if (!following.empty())
            SourceFile::announce(following);
        run(*job);
        lock.lock();
        job->state = Job::State::Done;
        --m_counts.running;
        m_done.notify_all();
        lock.unlock();
        job.reset(); // with its image, where it was cancelled
        lock.lock();
    }
}

AheadPool::JobPointer AheadPool::nextJob(std::unique_lock<std::mutex> &lock)
{
    m_wake.wait(lock, [this] { return m_ends || (m_waiting == 0 && !m_queue.empty()); });
    if (m_ends)
        return nullptr;
    JobPointer job = std::move(m_queue.front());
    m_queue.erase(m_queue.begin());
    job->state = Job::State::Running;
    m_counts.mostRunning = std::max(m_counts.mostRunning, ++m_counts.running);
    return job;
}

void AheadPool::run(Job &job)
{
    try {
        m_decode(job.request(), job, job.result());
    } catch (...) {
        job.result().failure.kind = TLoadFailure::Damaged;
    }
}

AheadPool::RightOfWay::RightOfWay(AheadPool &pool)
    : m_pool(pool)
{
    const std::lock_guard lock(m_pool.m_mutex);
    ++m_pool.m_waiting;
}

AheadPool::RightOfWay::~RightOfWay()
{
    const std::lock_guard lock(m_pool.m_mutex);
    --m_pool.m_waiting;
    m_pool.m_wake.notify_all();
}

} // namespace TImageLibrary
