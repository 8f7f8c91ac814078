#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Bytes that a sound farm would not send.
struct Garbage {
    /// What the client is to do about it: pass over it, maybe with what it has buffered, or hang up.
    enum class Effect { Ignored, BreaksLink };

    QString what;
    QByteArray bytes;
    Effect effect = Effect::Ignored;
};

/// Makes the garbage of this turn; the kinds take turns.
Garbage garbage(int turn);
/// Number of kinds.
int garbageKinds();
