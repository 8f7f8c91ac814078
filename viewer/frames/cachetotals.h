#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

#include <cstdint>

/// Bytes of frames in use and allowed, of all viewer windows together. Its owner fills in the budgets, without which
/// every frame is kept; it outlives every cache.
struct CacheTotals {
    Q_DECLARE_TR_FUNCTIONS(CacheTotals)

public:
    std::uint64_t videoMemoryUsed = 0;
    std::uint64_t mainMemoryUsed = 0;
    std::uint64_t videoMemoryBudget = UINT64_MAX;
    std::uint64_t mainMemoryBudget = UINT64_MAX;

    /// The viewer's status line: both uses in percent of their budgets.
    QString statusText() const;
};
