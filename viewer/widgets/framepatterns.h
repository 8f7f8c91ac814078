#pragma once

#include <viewer/frames/framestates.h>

#include <QtGui/QBrush>

/// How frames that are not shown whole look on the timeline and the strips: each kind by a pattern of its own, for those who
/// do not see the colours apart. Nothing for whole ones.
QBrush framePattern(FrameState state);
