#pragma once

#include <QtWidgets/QSplashScreen>

/// The picture shown while templates are loaded, with the version on it and what is being done in the band below.
class Splash final : public QSplashScreen {
    Q_OBJECT

public:
    Splash();

    /// Brings it onto the screen, painted; until then it costs next to nothing.
    void appear();
    /// Shows what is being done, at once: no event loop runs yet.
    void say(const QString &what);

Q_SIGNALS:
    void painted();

protected:
    void drawContents(QPainter *painter) override;
};
