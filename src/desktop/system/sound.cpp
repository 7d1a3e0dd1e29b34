#include "desktop/system/sound.h"

#ifdef VERNACLE_WITH_MULTIMEDIA

#include <QCoreApplication>
#include <QSoundEffect>
#include <QUrl>

namespace vernacle {

namespace {

// The effect must outlive the call that starts it, and goes when it has been heard or cannot be.
void DeleteWhenDone(QSoundEffect* effect) {
    QObject::connect(effect, &QSoundEffect::playingChanged, effect, [effect] {
        if (!effect->isPlaying()) {
            effect->deleteLater();
        }
    });
    QObject::connect(effect, &QSoundEffect::statusChanged, effect, [effect] {
        if (effect->status() == QSoundEffect::Error) {
            effect->deleteLater();
        }
    });
}

} // namespace

void PlaySound(const std::string& file) {
    auto* effect = new QSoundEffect(QCoreApplication::instance());
    DeleteWhenDone(effect);
    effect->setSource(QUrl(QStringLiteral("qrc:/sounds/") + QString::fromStdString(file)));
    effect->play();
}

} // namespace vernacle

#else

namespace vernacle {

void PlaySound(const std::string& /*file*/) {}

} // namespace vernacle

#endif
