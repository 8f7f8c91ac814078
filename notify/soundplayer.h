#pragma once

#include "soundeffects.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <memory>

/// Plays sound files, fire and forget; one that cannot be played is left out, and told by a signal. A sound that is asked
/// for again while it plays starts anew. What it takes to play is loaded with the first sound.
class SoundPlayer final : public QObject {
    Q_OBJECT

public:
    explicit SoundPlayer(QObject *parent = nullptr);
    ~SoundPlayer() override;

    /// Path of a ".wav" file; an empty one plays nothing.
    void play(const QString &path);
    /// Forgets the files played so far, so that changed ones are read again.
    void clear();

Q_SIGNALS:
    void failed(const QString &path, SoundFault fault);

private:
    void startWaiting();

    std::unique_ptr<SoundEffects> m_effects; // null until the first sound, and where there are none to be had
    bool m_asked = false;
    QStringList m_waiting; // to be started when control returns to the event loop
};
