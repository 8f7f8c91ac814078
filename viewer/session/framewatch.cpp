#include "framewatch.h"

#include <QtCore/QFileInfo>

#include <chrono>

namespace {

// A file that is being written changes with every block; one look at it per so much is enough.
constexpr auto kSettleTime = std::chrono::milliseconds(100);
// Longer than any path that a system opens: nothing will ever be there.
constexpr qsizetype kLongestPath = 4096;

} // namespace

FrameWatch::FrameWatch(QObject *parent)
    : QObject(parent)
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(kSettleTime);
    const auto changed = [this] {
        if (!m_settle.isActive())
            m_settle.start();
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, changed);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, changed);
    connect(&m_settle, &QTimer::timeout, this, [this] {
        arm(); // the file may be another one by now, or its folder have come into being
        Q_EMIT mayBeThere();
    });
}

void FrameWatch::watch(const QString &file)
{
    if (file == m_file)
        return;
    stop();
    if (file.size() > kLongestPath)
        return;
    m_file = file;
    arm();
}

void FrameWatch::stop()
{
    m_file.clear();
    m_settle.stop();
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
