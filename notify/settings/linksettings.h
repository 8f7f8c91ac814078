#pragma once

#include <QtCore/QString>

/// Where the Dispatcher is and who logs in.
struct LinkSettings {
    QString address = QStringLiteral("127.0.0.1");
    qint32 port = 9883; ///< only the low 16 bits are used
    QString user = QStringLiteral("admin");
    QString password;
    bool skipDirectoryAuthentication = false;

    bool operator==(const LinkSettings &) const = default;
};
