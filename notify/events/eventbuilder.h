#pragma once

#include <memory>

#include <QtCore/qglobal.h>

class NotifyEvent;
struct NotificationPacket;

/// Builds the event of a notification: decodes its records and fills its named values. Takes a record that cannot be
/// read for an empty one.
std::unique_ptr<NotifyEvent> buildEvent(const NotificationPacket &packet, quint64 eventId);
