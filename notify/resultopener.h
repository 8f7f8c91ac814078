#pragma once

#include <QtCore/QString>

/// Opens what a job made: folders in the platform's file browser, frames in the external viewer application. Paths come
/// from the farm: they are opened as local folders or passed as one argument, never run, read as a URL or given to a
/// shell.
namespace ResultOpener {

/// Opens the folder, or where the path is no folder that can be opened the one that contains it.
bool openFolder(const QString &path);

/// Starts the application detached with the frames' path or mask as its one argument.
bool startExternalViewer(const QString &application, const QString &frames);

} // namespace ResultOpener
