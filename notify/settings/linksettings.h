#pragma once

#include <QtCore/QString>

/// TCP port of a Dispatcher that was given no other.
inline constexpr int kDispatcherPort = 9883;

/// Where the Dispatcher is and who logs in.
struct LinkSettings {
    QString address;
    qint32 port = 0; ///< only the low 16 bits are used
    QString user;
    QString password;
    bool skipDirectoryAuthentication = false;

    bool operator==(const LinkSettings &) const = default;
};
