#pragma once

#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>

/// Tells when a frame that is missing or broken may have become whole: the file, its folder, or the nearest folder above
/// that there is, has changed. Changes that come close together are told of once.
class FrameWatch final : public QObject {
    Q_OBJECT

public:
    explicit FrameWatch(QObject *parent = nullptr);

    /// In place of what was watched before.
    void watch(const QString &file);
    void stop();

Q_SIGNALS:
    void mayBeThere();

private:
    void arm();

    QString m_file; // empty when nothing is watched
    QFileSystemWatcher m_watcher;
    QTimer m_settle;
};
