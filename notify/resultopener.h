#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

class NotifyEvent;
class QWidget;

/// Opens what a job made: folders in the platform's file browser, frames in the external viewer application. Paths come
/// from the farm: they are opened as local folders or passed as one argument, never run, read as a URL or given to a
/// shell.
namespace ResultOpener {

/// Opens the output folders of the events that have one; shows an error for each that cannot be opened.
void openOutputs(const QList<const NotifyEvent *> &events, QWidget *parent);

/// Starts the application on the first frame of each event that has frames, or on its mask where no file is named; shows
/// an error for each failure.
void openFramesExternally(const QList<const NotifyEvent *> &events, const QString &application,
                          QWidget *parent);

/// Starts the application detached with the frames' path or mask as its one argument.
bool startExternalViewer(const QString &application, const QString &frames);

} // namespace ResultOpener
