#pragma once

#include <tchunk.h>
#include <tjob.h>

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>

/// One notification of the farm with the records it came with. A record of data: whoever holds the event may read and
/// fill it; the events list owns those that are kept.
class NotifyEvent final : public QObject {
    Q_OBJECT

public:
    /// What the farm reports; other values may come from newer farms.
    enum Type : qint64 {
        JobCompleted = 1,
        ChunkCompleted = 2,
        JobStarted = 4,
        ChunkStarted = 8,
        ServiceActivity = 512,
        Alert = 1024,
        ServiceActivity2 = 2048,
        Alert2 = 4096,
    };

    /// Empty when the event has no such value.
    QString text(const QString &key) const { return properties.value(key); }
    void setText(const QString &key, const QString &value) { properties.insert(key, value); }

    qint64 eventType = 0;
    qint64 eventTime = 0; ///< Unix seconds, as the Dispatcher sent it
    quint64 eventId = 0; ///< unique within the run and rising
    QMap<QString, QString> properties;
    bool acknowledged = false;
    std::unique_ptr<TClientLib::TJob> job;
    std::unique_ptr<TClientLib::TChunk> chunk;
};

/// Keys of NotifyEvent::properties.
namespace EventKey {
inline const QString kMessage = QStringLiteral("message");
inline const QString kUser = QStringLiteral("user");
inline const QString kSubmitter = QStringLiteral("submitter");
inline const QString kPacketType = QStringLiteral("packetType");
inline const QString kTasksMask = QStringLiteral("tasksMask");
inline const QString kFramesPath = QStringLiteral("framesPath");
inline const QString kFramesMask = QStringLiteral("framesMask");
inline const QString kFramesFilePath = QStringLiteral("framesFilePath");
} // namespace EventKey
