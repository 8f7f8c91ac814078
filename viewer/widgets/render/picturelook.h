#pragma once

#include "calibration.h"

#include <QtGui/QColor>

/// Says how the picture is shown, whatever the frame.
struct PictureLook {
    Calibration calibration;
    float sourceGamma = 1.0F;
    int channelViewMode = 0;
    bool checkerOn = true;
    bool alphaOn = true;
    bool hudOn = true;
    QColor background = Qt::black;
    QColor hud = Qt::white;
};
