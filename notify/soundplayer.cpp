#include "soundplayer.h"

#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtMultimedia/QSoundEffect>

SoundPlayer::SoundPlayer(QObject *parent)
    : QObject(parent)
{ }

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
    for (const QString &path : std::exchange(m_waiting, {})) {
        QSoundEffect *&effect = m_effects[path];
        if (effect && effect->status() == QSoundEffect::Error)
            delete std::exchange(effect, nullptr);
        if (!effect && QFileInfo(path).isFile()) {
            effect = new QSoundEffect(this);
            effect->setSource(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
        }
        if (effect)
            effect->play();
    }
}

void SoundPlayer::clear()
{
    qDeleteAll(m_effects);
    m_effects.clear();
}
