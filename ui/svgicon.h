#pragma once

#include <QtGui/QIcon>

/// An icon drawn from an SVG file or resource, whose name needs no suffix, crisp at the usual icon sizes from 16 to
/// 128 pixels and at the scale factors 1, 1.5 and 2. Null, with one line in the warning log, when it cannot be read.
QIcon svgIcon(const QString &path);
