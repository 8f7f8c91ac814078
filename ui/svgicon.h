#pragma once

#include <QtGui/QIcon>

/// An icon drawn from an SVG file or resource, whose name needs no suffix, crisp at every size. Null, with one
/// line in the warning log, when it cannot be read.
QIcon svgIcon(const QString &path);
