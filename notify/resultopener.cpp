#include "resultopener.h"

#include "messages.h"

#include <notify/events/notifyevent.h>
#include <system/tdesktop.h>
#include <ui/plaintext.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QApplication>

namespace {

bool openByDefault(const QString &path)
{
    switch (TDesktop::OpenPath(path.toStdString())) {
    case TDesktop::Opened::Yes:
        return true;
    case TDesktop::Opened::No:
        return false;
    case TDesktop::Opened::NotHere:
        break;
    }
    // Folders alone: a file's default action may well be to run it.
    return QFileInfo(path).isDir() && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

/// The folder, or where the path is no folder that can be opened the one that contains it.
bool openFolder(const QString &path)
{
    return openByDefault(path) || openByDefault(QFileInfo(path).absolutePath());
}

/// The paths alone: an error's message box runs an event loop, in which events may go.
QStringList pathsOf(const QList<const NotifyEvent *> &events, QString (*pathOf)(const NotifyEvent &event))
{
    QStringList paths;
    for (const NotifyEvent *event : events)
        paths += pathOf(*event);
    paths.removeAll(QString());
    return paths;
}

} // namespace

void ResultOpener::openOutputs(const QList<const NotifyEvent *> &events, QWidget *parent)
{
    const QStringList folders =
        pathsOf(events, [](const NotifyEvent &event) { return event.text(EventKey::kFramesPath); });
    for (const QString &folder : folders) {
        if (!openFolder(folder))
            Messages::showError(parent,
                                QCoreApplication::translate("ResultOpener", "Cannot open output folder %1")
                                    .arg(shortened(folder)));
    }
}

void ResultOpener::openFramesExternally(const QList<const NotifyEvent *> &events, const QString &application,
                                        QWidget *parent)
{
    const QStringList files = pathsOf(events, [](const NotifyEvent &event) {
        return event.text(event.has(EventKey::kFramesFilePath) ? EventKey::kFramesFilePath
                                                               : EventKey::kFramesMask);
    });
    for (const QString &file : files) {
        if (!startExternalViewer(application, file))
            Messages::showError(parent,
                                QCoreApplication::translate(
                                    "ResultOpener", "Cannot launch image viewer to shown selected frame"));
    }
}

bool ResultOpener::startExternalViewer(const QString &application, const QString &frames)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    // What the farm names as frames must not pass for an option.
    const QString path = frames.startsWith(QLatin1Char('-')) ? QStringLiteral("./") + frames : frames;
    const bool started = !application.isEmpty() && QProcess::startDetached(application, {path});
    QApplication::restoreOverrideCursor();
    return started;
}
