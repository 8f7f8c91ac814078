#include "splash.h"

#include <ui/plaintext.h>
#include <ui/product.h>
#include <ui/windowshadow.h>

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtWidgets/QLabel>

#include <chrono>

namespace {

// A desktop that does not show it by then is not waited for.
constexpr auto kPatience = std::chrono::milliseconds(200);

} // namespace

Splash::Splash()
{
    auto *version = new QLabel(
        tr("%1 - Release Build %2 %3").arg(product::kVersion, product::kBuildNumber, product::kBuildDate),
        this);
    version->setStyleSheet(QStringLiteral("* { color: white; }"));
    version->setGeometry(QRect(QPoint(0, 260), QPoint(595, 289)));
    version->setAlignment(Qt::AlignCenter);
}

void Splash::appear()
{
    if (isVisible())
        return;
    setPixmap(QPixmap(QStringLiteral(":/") + QStringLiteral("Misc/") + QStringLiteral("Resources/")
                      + QStringLiteral("splash.png")));
    create();
    addDropShadow(this);
    QEventLoop loop;
    connect(this, &Splash::painted, &loop, &QEventLoop::quit);
    QTimer::singleShot(kPatience, &loop, &QEventLoop::quit);
    show();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void Splash::say(const QString &what)
{
    showMessage(keptPlain(shortened(what)), Qt::AlignLeft | Qt::AlignBottom, Qt::white);
}

void Splash::drawContents(QPainter *painter)
{
    QSplashScreen::drawContents(painter);
    // Into a back store, which reaches the screen when this paint event is done.
    QMetaObject::invokeMethod(this, &Splash::painted, Qt::QueuedConnection);
}
