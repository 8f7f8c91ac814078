#include "packets.h"

#include <array>

namespace {

/// The first N fields of a payload, or null when it has fewer; a field may be followed by more of them. The rest is
/// not looked at, so that a payload of nothing but separators costs nothing.
template <std::size_t N>
std::optional<std::array<QByteArrayView, N>> firstFields(QByteArrayView payload)
{
    const qsizetype zero = payload.indexOf('\0');
    QByteArrayView rest = zero < 0 ? payload : payload.first(zero);
    std::array<QByteArrayView, N> fields;
    for (std::size_t i = 0; i < N; ++i) {
        const qsizetype end = rest.indexOf('\n');
        if (end < 0 && i + 1 < N)
            return std::nullopt;
        fields[i] = end < 0 ? rest : rest.first(end);
        rest = end < 0 ? QByteArrayView{} : rest.sliced(end + 1);
    }
    return fields;
}

QByteArray field(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    bytes.replace('\n', ' ');
    bytes.replace('\0', ' ');
    return bytes;
}

QByteArray encodedTwice(const QString &text)
{
    return field(QString::fromLatin1(text.toUtf8()));
}

QString decodedTwice(QByteArrayView bytes)
{
    return QString::fromUtf8(QString::fromUtf8(bytes).toLatin1());
}

} // namespace

QByteArray encodeLogin(const LoginPacket &login)
{
    return encodedTwice(login.user) + '\n' + encodedTwice(login.password) + "\n1\n"
        + (login.skipDirectoryAuthentication ? '1' : '0') + '\n' + field(login.hostName) + '\n';
}

std::optional<LoginPacket> decodeLogin(QByteArrayView payload)
{
    const auto fields = firstFields<5>(payload);
    if (!fields)
        return std::nullopt;
    const auto &[user, password, constant, skip, host] = *fields;
    Q_UNUSED(constant);
    return LoginPacket{decodedTwice(user), decodedTwice(password), skip == "1", QString::fromUtf8(host)};
}

QByteArray encodeNotification(const NotificationPacket &notification)
{
    return field(notification.message) + '\n' + QByteArray::number(notification.eventType) + '\n'
        + QByteArray::number(notification.eventTime) + '\n' + field(notification.user) + '\n'
        + notification.job + '\n' + notification.chunk + '\n';
}

std::optional<NotificationPacket> decodeNotification(QByteArrayView payload)
{
    const auto fields = firstFields<7>(payload);
    if (!fields)
        return std::nullopt;
    const auto &[message, type, time, user, job, chunk, unread] = *fields;
    Q_UNUSED(unread);
    NotificationPacket notification;
    notification.message = QString::fromUtf8(message);
    // The farm's event types are 32-bit numbers: a wider one is cut and keeps the sign of what is left.
    notification.eventType = qint32(quint32(type.toByteArray().toULongLong()));
    notification.eventTime = time.toByteArray().toLongLong();
    notification.user = QString::fromUtf8(user);
    notification.job = job.toByteArray();
    notification.chunk = chunk.toByteArray();
    return notification;
}

QByteArray encodeCustomMessage(const CustomMessagePacket &message)
{
    return QByteArray::number(message.templateId) + '\n' + message.message.toBase64();
}

std::optional<CustomMessagePacket> decodeCustomMessage(QByteArrayView payload)
{
    const auto fields = firstFields<2>(payload);
    if (!fields)
        return std::nullopt;
    const auto &[id, message] = *fields;
    return CustomMessagePacket{id.toByteArray().toInt(), QByteArray::fromBase64(message.toByteArray())};
}
