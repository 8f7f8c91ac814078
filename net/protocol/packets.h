#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <optional>

/// Command numbers of the Dispatcher link.
enum Command : uint {
    CMD_LOGIN = 401,
    CMD_HEARTBEAT = 402,
    CMD_NOTIFICATION = 601,
    CMD_IGNORED = 602,
    CMD_LOGIN_DENIED = 603,
    CMD_CUSTOM_MESSAGE = 604,
};

// The payloads: UTF-8 fields separated by line feeds, ended by a zero byte or the end of the bytes. A text that is
// encoded has its line feeds turned into blanks, since they cannot be told from separators.

/// Log-in of the client (401).
struct LoginPacket {
    QString user;
    QString password;
    bool skipDirectoryAuthentication = false;
    QString hostName;

    bool operator==(const LoginPacket &) const = default;
};

/// User and password travel encoded twice: their UTF-8 bytes are read as Latin-1 and encoded again.
QByteArray encodeLogin(const LoginPacket &login);
/// Null with fewer than five fields.
std::optional<LoginPacket> decodeLogin(QByteArrayView payload);

/// What an event tells of, as the farm numbers it; other values may come from newer farms.
enum EventType : qint64 {
    JobCompleted = 1,
    ChunkCompleted = 2,
    JobStarted = 4,
    ChunkStarted = 8,
    ServiceActivity = 512,
    Alert = 1024,
    ServiceActivityDetail = 2048,
    AlertDetail = 4096,
};

/// One event of the farm (601).
struct NotificationPacket {
    QString message;
    qint64 eventType = 0;
    qint64 eventTime = 0; ///< Unix seconds
    QString user;
    QByteArray job; ///< marshalled job record, base64; may be empty
    QByteArray chunk; ///< marshalled chunk record, base64; may be empty

    bool operator==(const NotificationPacket &) const = default;
};

QByteArray encodeNotification(const NotificationPacket &notification);
/// Null with fewer than seven fields. Numbers that do not parse read as 0.
std::optional<NotificationPacket> decodeNotification(QByteArrayView payload);

/// Message of the Dispatcher for the templates (604).
struct CustomMessagePacket {
    int templateId = 0; ///< 0 or less addresses the global template alone
    QByteArray message;

    bool operator==(const CustomMessagePacket &) const = default;
};

QByteArray encodeCustomMessage(const CustomMessagePacket &message);
/// Null with fewer than two fields.
std::optional<CustomMessagePacket> decodeCustomMessage(QByteArrayView payload);
