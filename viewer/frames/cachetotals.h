#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

#include <cstdint>

/// Bytes of frames in use and allowed, of all viewer windows together. Owned by the application's main object, which
/// takes the budgets from the settings; it outlives every cache.
struct CacheTotals {
    Q_DECLARE_TR_FUNCTIONS(CacheTotals)

public:
    std::uint64_t videoMemoryUsed = 0;
    std::uint64_t mainMemoryUsed = 0;
    std::uint64_t videoMemoryBudget = 1'000'000'000;
    std::uint64_t mainMemoryBudget = 2'000'000'000;

    /// The viewer's status line: both uses in percent of their budgets.
    QString statusText() const;
};
