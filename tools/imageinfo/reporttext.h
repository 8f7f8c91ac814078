#pragma once

#include "imagereport.h"

#include <QtCore/QJsonObject>

/// Writes the report for people, a line for the file and one for each channel, each ended by a line feed.
QString toText(const QString &path, const ImageReport &report);
/// Writes the report for scripts.
QJsonObject toJson(const QString &path, const ImageReport &report);
