#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Bytes that a sound farm would not send.
struct Garbage {
    /// What the client is to do about it: pass over it, drop what it has buffered along with it, or hang up.
    enum class Effect { Ignored, DropsBuffers, BreaksLink };

    QString what;
    QByteArray bytes;
    Effect effect = Effect::Ignored;
};

/// Makes the garbage of this turn; the kinds take turns.
Garbage garbage(int turn);
/// Number of kinds.
int garbageKinds();
