#pragma once

#include <QtWidgets/QSplashScreen>

/// The picture shown while the program starts, with the version on it and what is being done below.
class Splash final : public QSplashScreen {
    Q_OBJECT

public:
    Splash();

    /// Shows what is being done, at once: no event loop runs yet.
    void say(const QString &what);
};
