#pragma once

#include "scenario.h"

#include <net/protocol/packets.h>
#include <notify/settings/linksettings.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <chrono>
#include <optional>

/// What the command line asks of the demo farm.
struct FarmOptions {
    quint16 port = kDispatcherPort; ///< 0: any free one
    ScenarioSettings night;
    int burst = 0; ///< events to send as fast as they are taken, in place of a night; 0: a night
    QList<CustomMessagePacket> customMessages; ///< for the templates of each client that logs in
    bool compress = false;
    int fragmentSize = 0; ///< bytes written at a time; 0: whole frames
    bool denyLogin = false;
    std::optional<std::chrono::milliseconds> dropAfter; ///< how long a client stays logged in
    bool garbage = false;
    bool once = false;
    bool renders = true; ///< writes the frames of the night
    QString framesIn; ///< where the run's folder of frames is made; empty: the user's temporary folder
    bool keepFrames = false;
    bool halfFrames = false; ///< the first frame of a chunk at work grows bit by bit
};

/// The options, or without them the text to show and the status to end with.
struct FarmCommandLine {
    std::optional<FarmOptions> options;
    QString text;
    int exitCode = 0;
};

/// Reads the whole argument list, the program's name first.
FarmCommandLine parseFarmCommandLine(const QStringList &arguments);
