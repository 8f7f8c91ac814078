#include "framepatterns.h"

QBrush framePattern(FrameState state)
{
    switch (state) {
    case FrameState::InTheMaking:
        return QBrush(QColor(90, 160, 255), Qt::BDiagPattern);
    case FrameState::Missing:
        return QBrush(QColor(100, 100, 100), Qt::Dense3Pattern);
    case FrameState::Broken:
        return QBrush(QColor(255, 110, 90), Qt::DiagCrossPattern);
    default:
        return {};
    }
}
