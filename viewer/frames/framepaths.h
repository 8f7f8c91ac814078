#pragma once

#include "framesequence.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Reads what a field was given: a path, a mask, a folder, a file: address, one of these in quotes, or several of them that there are, between
/// white space.
QStringList pathsIn(const QString &text);

/// Asks for the sequence that the first of the paths is one of, from the first of its frames among them, or that a folder
/// shows first; a folder without an image stays the path. Files beside it count where they are of the same sequence.
FramesRequest requestFor(const QStringList &paths);
