#include "cachetotals.h"

#include <QtCore/QLocale>

namespace {

/// A budget of 0 is full with the first byte.
QString percentText(std::uint64_t used, std::uint64_t budget)
{
    double percent = used > 0 ? 100.0 : 0.0;
    if (budget > 0)
        percent = static_cast<double>(used) / static_cast<double>(budget) * 100.0;
    return QLocale().toString(percent, 'f', 2);
}

} // namespace

QString CacheTotals::statusText() const
{
    return tr("VRAM Cache Usage: %1% RAM Cache Usage: %2% ")
        .arg(percentText(videoMemoryUsed, videoMemoryBudget), percentText(mainMemoryUsed, mainMemoryBudget));
}
