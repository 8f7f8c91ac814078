#pragma once

#include <QtCore/QString>

/// TCP port of a Dispatcher that was given no other.
inline constexpr int kDispatcherPort = 9883;

/// Where the Dispatcher is and who logs in.
struct LinkSettings {
    QString address; ///< as typed: a name or an address, also "name:port", "[::1]" or "[::1]:port"
    qint32 port = 0; ///< only the low 16 bits are used
    QString user;
    QString password;
    bool skipDirectoryAuthentication = false;

    /// The address without blanks, brackets and port.
    QString host() const;
    /// The port that stands in the address, else the port's low 16 bits.
    quint16 tcpPort() const;

    bool operator==(const LinkSettings &) const = default;
};
