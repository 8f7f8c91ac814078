#pragma once

#include <memory>

#include <QtCore/qglobal.h>

class NotifyEvent;
struct NotificationPacket;

/// The event that a notification tells of, with its records decoded and its named values filled. A record that cannot
/// be read counts as an empty one.
std::unique_ptr<NotifyEvent> buildEvent(const NotificationPacket &packet, quint64 eventId);
