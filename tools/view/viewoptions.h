#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QColor>

#include <optional>
#include <utility>

/// What the command line of tarrow-view asks for.
struct ViewOptions {
    QStringList paths; ///< files, masks, folders, file:// addresses; none opens an empty viewer
    std::optional<int> frame;
    QString layer; ///< as the layer selector names it; empty leaves the first
    bool forceGl2 = false;
    QList<std::pair<QString, float>> calibration; ///< names and values, all known
    int channelViewMode = 0;
    bool composite = true;
    bool checker = true;
    bool premultiplied = true;
    QColor background; ///< invalid where none is asked for
    std::optional<float> zoom;
    QString grab; ///< PNG file to write; empty shows the window
    bool incomplete = false; ///< grabs what there is of a frame, too

    bool help = false;
    QString error; ///< what is wrong with the command line; empty when it can be followed
    QString helpText;

    static ViewOptions parse(const QStringList &arguments);
};
