#include "sharedwork.h"

#include <IlmThreadPool.h>

#include <algorithm>
#include <atomic>
#include <exception>
#include <memory>
#include <mutex>
#include <utility>

namespace TImageLibrary {

namespace {

class Work final {
public:
    Work(const Steps &steps, const std::function<Step()> &makeStep)
        : m_steps(steps)
        , m_makeStep(makeStep)
    { }

    /// Makes the step at the first call. False when nothing is left to do.
    bool goOn(Step &step)
    {
        const std::size_t begin = m_next.fetch_add(m_steps.atOnce);
        if (begin >= m_steps.count || m_hasFailed)
            return false;
        try {
            if (!step)
                step = m_makeStep();
            const std::size_t end = std::min(m_steps.count, begin + m_steps.atOnce);
            for (std::size_t i = begin; i < end; ++i)
                step(i);
            m_done += end - begin;
        } catch (...) {
            fail(std::current_exception());
        }
        return !m_hasFailed;
    }

    void fail(std::exception_ptr failure)
    {
        const std::lock_guard lock(m_mutex);
        if (!m_failure)
            m_failure = std::move(failure);
        m_hasFailed = true;
    }

    double fractionDone() const { return double(m_done) / double(m_steps.count); }

    void rethrow() const
    {
        if (m_failure)
            std::rethrow_exception(m_failure);
    }

private:
    Steps m_steps;
    const std::function<Step()> &m_makeStep;
    std::atomic<std::size_t> m_next{0};
    std::atomic<std::size_t> m_done{0};
    std::atomic<bool> m_hasFailed{false};
    std::mutex m_mutex;
    std::exception_ptr m_failure;
};

/// Goes on with a work once, and queues up behind the other works for the rest.
class PoolTask final : public IlmThread::Task {
public:
    PoolTask(IlmThread::TaskGroup *group, Work &work, std::shared_ptr<Step> step)
        : Task(group)
        , m_work(work)
        , m_step(std::move(step))
    { }

    void execute() override
    {
        try {
            if (m_work.goOn(*m_step))
                IlmThread::ThreadPool::addGlobalTask(new PoolTask(group(), m_work, m_step));
        } catch (...) {
            m_work.fail(std::current_exception());
        }
    }

private:
    Work &m_work;
    std::shared_ptr<Step> m_step;
};

/// Has as many of the pool's threads take part as there are turns for.
void askPool(Work &work, const Steps &steps, IlmThread::TaskGroup &group)
{
    const auto turns = (steps.count + steps.atOnce - 1) / steps.atOnce;
    const auto threads = std::size_t(IlmThread::ThreadPool::globalThreadPool().numThreads());
    for (std::size_t i = 1; i < std::min(threads, turns); ++i)
        IlmThread::ThreadPool::addGlobalTask(new PoolTask(&group, work, std::make_shared<Step>()));
}

} // namespace

void shareWork(const Steps &steps, const std::function<Step()> &makeStep,
               const std::function<void(double)> &report)
{
    Work work(steps, makeStep);
    {
        // Waits at its end for the tasks.
        IlmThread::TaskGroup group;
        Step step;
        bool isShared = false;
        try {
            do {
                if (!isShared && !(steps.isAlone && steps.isAlone())) {
                    isShared = true;
                    askPool(work, steps, group);
                }
                report(work.fractionDone());
            } while (work.goOn(step));
        } catch (...) {
            work.fail(std::current_exception());
        }
    }
    work.rethrow();
}

} // namespace TImageLibrary
