#pragma once

#include <viewer/frames/filestamp.h>

#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>

/// Tells when a frame that is missing or broken may have become whole: its file has another size or time. It looks when the
/// system tells of a change of the file, its folder or the nearest folder above that there is, and every two seconds, since
/// network stores tell of nothing. Changes that come close together are told of once.
class FrameWatch final : public QObject {
    Q_OBJECT

public:
    explicit FrameWatch(QObject *parent = nullptr);

    /// In place of what was watched before. `seen` is the file as it was read.
    void watch(const QString &file, const FileStamp &seen);
    void stop();

Q_SIGNALS:
    void mayBeThere();

private:
    void arm();
    void look();

    QString m_file; // empty when nothing is watched
    QFileSystemWatcher m_watcher;
    FileStamp m_seen;
    QTimer m_settle;
    QTimer m_look;
};
