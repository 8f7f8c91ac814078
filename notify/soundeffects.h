#pragma once

#include <QtCore/QString>

/// The toolkit's sound effects, kept in a module of their own.
class SoundEffects {
public:
    SoundEffects() = default;
    virtual ~SoundEffects() = default;
    Q_DISABLE_COPY_MOVE(SoundEffects)

    /// Starts a ".wav" file, from its beginning when it plays already; one that cannot be played is left out.
    virtual void play(const QString &path) = 0;
    /// Forgets the files played so far, so that changed ones are read again.
    virtual void clear() = 0;
};
