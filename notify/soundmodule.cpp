#include "soundeffects.h"

#include <system/moduleexport.h>

#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtMultimedia/QSoundEffect>

#include <map>
#include <memory>

namespace {

class ToolkitEffects final : public SoundEffects {
public:
    void play(const QString &path) override
    {
        std::unique_ptr<QSoundEffect> &effect = m_effects[path];
        if (effect && effect->status() == QSoundEffect::Error)
            effect.reset();
        if (!effect && QFileInfo(path).isFile()) {
            effect = std::make_unique<QSoundEffect>();
            effect->setSource(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
        }
        if (effect)
            effect->play();
    }

    void clear() override { m_effects.clear(); }

private:
    std::map<QString, std::unique_ptr<QSoundEffect>> m_effects; // by path
};

} // namespace

/// The caller owns what it gets.
TARROW_MODULE_FUNCTION SoundEffects *tarrowSoundEffects()
{
    return new ToolkitEffects;
}
