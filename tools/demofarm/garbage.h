#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Bytes that a sound farm would not send.
struct Garbage {
    QString what;
    QByteArray bytes;
    bool breaksLink = false; ///< the client is to hang up on it; otherwise it goes on with the next frame
};

/// The kinds come in turns.
Garbage garbage(int turn);
/// Number of kinds.
int garbageKinds();
