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

/// Runs a piece of work and its baseline in turn, so that a slow moment of the machine meets both, and prints the ratio
/// of the medians of what they return beside what is promised: "name: ratio 1.23 (promise 1.5)".
inline void printRatio(const char *name, const std::function<double()> &work,
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
    const double ours = median(measured);
    const double theirs = median(bare);
    std::printf("%s: %.3f against %.3f, ratio %.2f (promise %.2f)\n", name, ours, theirs, ours / theirs,
                promise);
}
