#include "incompletetext.h"

#include <QtCore/QCoreApplication>

namespace {

struct IncompleteFrame {
    Q_DECLARE_TR_FUNCTIONS(IncompleteFrame)
};

} // namespace

QString incompleteText(const FarmHelpers::PartialLoad &partial)
{
    const QString damaged =
        IncompleteFrame::tr("%1 of %2 chunks are damaged").arg(partial.damaged).arg(partial.chunks);
    if (!partial.isInTheMaking())
        return damaged;
    const QString written = IncompleteFrame::tr("%1 % written").arg(partial.percentWritten());
    return partial.damaged == 0 ? written : IncompleteFrame::tr("%1, %2").arg(written, damaged);
}
