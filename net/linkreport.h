#pragma once

#include <QtCore/QString>

/// How the link to the Dispatcher stands, and why it does not.
struct LinkReport {
    enum class State {
        Idle, ///< no attempt was made, or none is to be made
        LookingUp, ///< the Dispatcher's name
        Connecting,
        Connected, ///< and logged in
        Closing,
        Waiting, ///< for the next attempt
        Refused, ///< by the Dispatcher; there is no next attempt until the user asks for one
    };
    enum class Reason {
        None,
        System, ///< `detail` is what the system says, as "Connection refused"
        Foreign, ///< `detail` is the first word of the server that is no Dispatcher
        BrokenStream,
    };

    State state = State::Idle;
    QString address; ///< as connected to, without a port
    quint16 port = 0;
    QString user;
    Reason reason = Reason::None; ///< of the last attempt that failed or link that ended
    QString detail;

    bool operator==(const LinkReport &) const = default;
};
