#include "soundplayer.h"

#include <system/module.h>

#include <utility>

SoundPlayer::SoundPlayer(QObject *parent)
    : QObject(parent)
{ }

SoundPlayer::~SoundPlayer() = default;

void SoundPlayer::play(const QString &path)
{
    if (path.isEmpty() || m_waiting.contains(path))
        return;
    // A burst of events asks for the same sound many times in one go; the last start is the one that is heard.
    if (m_waiting.isEmpty())
        QMetaObject::invokeMethod(this, &SoundPlayer::startWaiting, Qt::QueuedConnection);
    m_waiting += path;
}

void SoundPlayer::startWaiting()
{
    const QStringList waiting = std::exchange(m_waiting, {});
    if (!std::exchange(m_asked, true)) {
        using Entry = SoundEffects *();
        const Module::Function entry = Module::function("tarrowsound", "tarrowSoundEffects");
        m_effects.reset(entry ? reinterpret_cast<Entry *>(entry)() : nullptr);
        if (m_effects)
            m_effects->setFaultHandler(
                [this](const QString &path, SoundFault fault) { Q_EMIT failed(path, fault); });
    }
    for (const QString &path : waiting) {
        if (m_effects)
            m_effects->play(path);
        else
            Q_EMIT failed(path, SoundFault::NoModule);
    }
}

void SoundPlayer::clear()
{
    if (m_effects)
        m_effects->clear();
}
