#pragma once

#include <cstddef>
#include <functional>

namespace TImageLibrary {

/// Does one step of a work, counted from 0. Holds what it needs for that; only one thread calls it at a time.
using Step = std::function<void(std::size_t)>;

/// Names the steps of a work.
struct Steps {
    std::size_t count = 0;
    std::size_t atOnce = 1; ///< done by a thread before it lets other works have its place
    std::function<bool()> isAlone = nullptr; ///< true keeps to this thread for now; none never does
};

/// Does all steps on this thread and in OpenEXR's pool, where works that are done at the same time take turns.
/// `makeStep` is called for each of the threads that take part, by itself; `report` is told the fraction done, on this
/// thread. Throws what a step or a report has thrown first; no more are begun then.
void shareWork(const Steps &steps, const std::function<Step()> &makeStep,
               const std::function<void(double)> &report);

} // namespace TImageLibrary
