#include "framewatch.h"

#include <QtCore/QFileInfo>

#include <chrono>

namespace {

// A file that is being written changes with every block; one look at it per so much is enough.
constexpr auto kSettleTime = std::chrono::milliseconds(100);
constexpr auto kLookTime = std::chrono::seconds(2);
// Longer than any path that a system opens: nothing will ever be there.
constexpr qsizetype kLongestPath = 4096;

} // namespace

FrameWatch::FrameWatch(QObject *parent)
    : QObject(parent)
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(kSettleTime);
    m_look.setInterval(kLookTime);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FrameWatch::look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FrameWatch::look);
    connect(&m_look, &QTimer::timeout, this, &FrameWatch::look);
    connect(&m_settle, &QTimer::timeout, this, [this] {
        arm(); // the file may be another one by now, or its folder have come into being
        Q_EMIT mayBeThere();
    });
}

void FrameWatch::watch(const QString &file, const FileStamp &seen)
{
    m_seen = seen;
    if (file != m_file) {
        stop();
        if (file.size() > kLongestPath)
            return;
        m_file = file;
        arm();
        m_look.start();
    }
    look(); // what was written while it was read
}

void FrameWatch::look()
{
    // A folder above has come into being: what is below it is to be watched.
    if (!m_seen.exists)
        arm();
    if (!m_settle.isActive() && FileStamp::of(m_file.toStdString()) != m_seen)
        m_settle.start();
}

void FrameWatch::stop()
{
    m_file.clear();
    m_settle.stop();
    m_look.stop();
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    if (!watched.isEmpty())
        m_watcher.removePaths(watched);
}

void FrameWatch::arm()
{
    const QFileInfo file(m_file);
    QStringList wanted;
    if (file.exists())
        wanted += m_file;
    QString folder = file.absolutePath();
    while (!QFileInfo(folder).isDir() && folder != QFileInfo(folder).absolutePath())
        folder = QFileInfo(folder).absolutePath();
    wanted += folder;

    QStringList stale = m_watcher.files() + m_watcher.directories();
    for (const QString &path : std::as_const(wanted)) {
        if (!stale.removeOne(path))
            m_watcher.addPath(path);
    }
    if (!stale.isEmpty())
        m_watcher.removePaths(stale);
}
