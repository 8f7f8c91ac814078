#pragma once

#include <QtCore/QString>

#include <functional>
#include <utility>

/// Why a sound is not heard.
enum class SoundFault {
    NoFile,
    NotPlayable, ///< what is in the file
    NoDevice,
    NoModule, ///< what plays sounds is not installed
};

/// The toolkit's sound effects, kept in a module of their own.
class SoundEffects {
public:
    using FaultHandler = std::function<void(const QString &path, SoundFault fault)>;

    SoundEffects() = default;
    virtual ~SoundEffects() = default;
    Q_DISABLE_COPY_MOVE(SoundEffects)

    /// Sets who hears of sounds that cannot be played, which may be a while after they were started.
    void setFaultHandler(FaultHandler handler) { m_faultHandler = std::move(handler); }

    /// Starts a ".wav" file, from its beginning when it plays already; one that cannot be played is left out.
    virtual void play(const QString &path) = 0;
    /// Forgets the files played so far, so that changed ones are read again.
    virtual void clear() = 0;

protected:
    void report(const QString &path, SoundFault fault) const
    {
        if (m_faultHandler)
            m_faultHandler(path, fault);
    }

private:
    FaultHandler m_faultHandler;
};
