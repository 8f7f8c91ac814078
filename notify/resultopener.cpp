#include "resultopener.h"

#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QApplication>

namespace {

bool openIfFolder(const QString &path)
{
    return QFileInfo(path).isDir() && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace

bool ResultOpener::openFolder(const QString &path)
{
    return openIfFolder(path) || openIfFolder(QFileInfo(path).absolutePath());
}

bool ResultOpener::startExternalViewer(const QString &application, const QString &frames)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const bool started = !application.isEmpty() && QProcess::startDetached(application, {frames});
    QApplication::restoreOverrideCursor();
    return started;
}
