#pragma once

#include <QtCore/QList>

class EventsList;
class NotifyEvent;
class QWidget;
class ViewerWindows;
struct Settings;

/// Opens what events brought: folders and frames, as the settings say. Outlived by all that it is given.
class EventActions final {
public:
    struct Place {
        const EventsList &events;
        const Settings &settings;
        ViewerWindows &viewers;
        QWidget &window; ///< in front of which errors show
    };

    explicit EventActions(const Place &place)
        : m_place(place)
    { }

    void openOutputs(const QList<quint64> &eventIds) const;
    void openFrames(const QList<quint64> &eventIds) const;
    void openFramesExternally(const QList<quint64> &eventIds) const;
    /// Opens the frames of the event, or its output folder where it has none.
    void openEvent(quint64 eventId) const;
    /// Opens the result of an event that has just come in.
    void openResult(const NotifyEvent &event) const;

private:
    Place m_place;
};
