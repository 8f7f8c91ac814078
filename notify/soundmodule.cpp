#include "soundeffects.h"

#include <system/moduleexport.h>

#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtMultimedia/QAudioDevice>
#include <QtMultimedia/QMediaDevices>
#include <QtMultimedia/QSoundEffect>

#include <map>
#include <memory>

namespace {

/// A header. The toolkit waits for one without an end, and without a word.
constexpr qint64 kSmallestFile = 44;

class ToolkitEffects final : public SoundEffects {
public:
    void play(const QString &path) override
    {
        std::unique_ptr<QSoundEffect> &effect = m_effects[path];
        if (effect && effect->status() == QSoundEffect::Error)
            effect.reset();
        const QFileInfo file(path);
        if (!effect && file.isFile() && file.size() >= kSmallestFile)
            effect = load(path);
        if (!effect)
            return report(path, file.isFile() ? SoundFault::NotPlayable : SoundFault::NoFile);
        // Started all the same: what the system lists may lag behind what it plays on.
        if (QMediaDevices::audioOutputs().isEmpty())
            report(path, SoundFault::NoDevice);
        effect->play();
    }

    void clear() override { m_effects.clear(); }

private:
    std::unique_ptr<QSoundEffect> load(const QString &path)
    {
        auto effect = std::make_unique<QSoundEffect>();
        const QSoundEffect *loaded = effect.get();
        QObject::connect(loaded, &QSoundEffect::statusChanged, loaded, [this, path, loaded] {
            if (loaded->status() == QSoundEffect::Error)
                report(path, SoundFault::NotPlayable);
        });
        effect->setSource(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
        return effect;
    }

    std::map<QString, std::unique_ptr<QSoundEffect>> m_effects; // by path
};

} // namespace

/// The caller owns what it gets.
TARROW_MODULE_FUNCTION SoundEffects *tarrowSoundEffects()
{
    return new ToolkitEffects;
}
