#pragma once

#include <QtWidgets/QProxyStyle>

/// The application style: Fusion underneath, so that the look is the same on every desktop and the style sheets
/// start from known ground. The hook for drawing a control differently is drawControl.
class QTarrowStyle final : public QProxyStyle {
    Q_OBJECT

public:
    QTarrowStyle();

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
};
