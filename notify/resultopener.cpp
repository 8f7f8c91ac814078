#include "resultopener.h"

#include <system/tdesktop.h>

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

} // namespace

bool ResultOpener::openFolder(const QString &path)
{
    return openByDefault(path) || openByDefault(QFileInfo(path).absolutePath());
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
