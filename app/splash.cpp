#include "splash.h"

#include <ui/plaintext.h>
#include <ui/product.h>
#include <ui/windowshadow.h>

#include <QtWidgets/QLabel>

Splash::Splash()
    : QSplashScreen(QPixmap(QStringLiteral(":/") + QStringLiteral("Misc/") + QStringLiteral("Resources/")
                            + QStringLiteral("splash.png")))
{
    create();
    addDropShadow(this);
    auto *version = new QLabel(
        tr("%1 - Release Build %2 %3").arg(product::kVersion, product::kBuildNumber, product::kBuildDate),
        this);
    version->setStyleSheet(QStringLiteral("* { color: white; }"));
    version->setGeometry(QRect(QPoint(0, 260), QPoint(595, 289)));
    version->setAlignment(Qt::AlignCenter);
}

void Splash::say(const QString &what)
{
    showMessage(keptPlain(shortened(what)), Qt::AlignLeft, Qt::white);
}
