#pragma once

#include <QtCore/QString>

/// Writes one line to standard output at once, so that a script reading a pipe or a file sees it.
void farmLog(const QString &line);
