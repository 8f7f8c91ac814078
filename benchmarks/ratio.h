#pragma once

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

/// Processor time of the calling thread, in milliseconds.
inline double threadMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return 1e3 * double(now.tv_sec) + 1e-6 * double(now.tv_nsec);
}

inline double threadMilliseconds(const std::function<void()> &work)
{
    const double start = threadMilliseconds();
    work();
    return threadMilliseconds() - start;
}

/// Prints what was measured beside its baseline, and their ratio beside the one that is promised at most, as scripts/bench.sh
/// reads it: "promise | what | figure | baseline | ratio | promised". A limit is a baseline with the promise 1.
inline void printPromise(const char *what, double figure, double baseline, double promise)
{
    std::printf("promise | %s | %.3f | %.3f | %.2f | %.2f\n", what, figure, baseline, figure / baseline,
                promise);
    std::fflush(stdout);
}

/// Runs a piece of work and its baseline in turn, so that a slow moment of the machine meets both, and prints the medians
/// of what they return as a promise.
inline void printRatio(const char *what, const std::function<double()> &work,
                       const std::function<double()> &baseline, double promise, int rounds = 11)
{
    std::vector<double> measured;
    std::vector<double> bare;
    for (int round = 0; round < rounds; ++round) {
        measured.push_back(work());
        bare.push_back(baseline());
    }
    const auto median = [](std::vector<double> &values) {
        std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
        return values[values.size() / 2];
    };
    printPromise(what, median(measured), median(bare), promise);
}
