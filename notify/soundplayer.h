#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>

class QSoundEffect;

/// Plays sound files, fire and forget; one that cannot be played is silently left out. A sound that is asked for again
/// while it plays starts anew.
class SoundPlayer final : public QObject {
    Q_OBJECT

public:
    explicit SoundPlayer(QObject *parent = nullptr);

    /// Path of a ".wav" file; an empty one plays nothing.
    void play(const QString &path);
    /// Forgets the files played so far, so that changed ones are read again.
    void clear();

private:
    void startWaiting();

    QHash<QString, QSoundEffect *> m_effects; // children, by path
    QStringList m_waiting; // to be started when control returns to the event loop
};
