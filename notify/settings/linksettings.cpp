#include "linksettings.h"

#include <QtCore/QRegularExpression>

namespace {

/// Takes a typed address apart: the host, or what stands in brackets, and a port if one stands behind a colon. An address
/// of IPv6 without brackets has several colons and no port.
QRegularExpressionMatch parts(const QString &address)
{
    static const QRegularExpression form(
        QStringLiteral(R"(^(?:\[(?<bracketed>[^\]]*)\]|(?<name>[^:]*))(?::(?<port>\d{1,5}))?$)"));
    return form.match(address.trimmed());
}

} // namespace

QString LinkSettings::host() const
{
    const QRegularExpressionMatch match = parts(address);
    if (!match.hasMatch())
        return address.trimmed();
    const QString bracketed = match.captured(QStringLiteral("bracketed"));
    return (bracketed.isEmpty() ? match.captured(QStringLiteral("name")) : bracketed).trimmed();
}

quint16 LinkSettings::tcpPort() const
{
    const int own = parts(address).captured(QStringLiteral("port")).toInt();
    return quint16((own > 0 && own <= 0xFFFF ? own : port) & 0xFFFF);
}
