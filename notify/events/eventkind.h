#pragma once

#include <notify/settings/settings.h>

#include <QtCore/QString>

class NotifyEvent;

/// How a new event is treated, by its type and by the status of the record that came with it.
struct EventHandling {
    bool Settings::*filter = nullptr; ///< the event is dropped while this is off; null: always kept
    QString Settings::*sound = nullptr; ///< null: no sound
    bool singleFrame = false; ///< a job that makes one frame completed, and says where the frame is
};

/// What the list shows of an event's kind; both empty for a kind without a name.
struct EventLook {
    QString typeText;
    QString iconPath;
};

/// Severity of what is pending, in rising order; also the index of the icon that the tray flashes.
/// Level 2 belongs to starts, which are never pending.
enum PendingLevel {
    NothingPending = 0,
    OtherPending = 1,
    SuccessPending = 3,
    WarningPending = 4,
    ErrorPending = 5
};

EventHandling handlingOf(const NotifyEvent &event);
EventLook lookOf(const NotifyEvent &event);
/// The level an event has while it is not acknowledged.
PendingLevel pendingLevelOf(const NotifyEvent &event);
