#pragma once

#include <client_lib/tchunk.h>
#include <client_lib/tjob.h>

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>

/// One notification of the farm with the records it came with. Plain data, which whoever holds the event may fill; the
/// events list owns the events that are kept.
class NotifyEvent final : public QObject {
    Q_OBJECT

public:
    /// Empty when the event has no such value.
    QString text(const QString &key) const { return properties.value(key); }
    bool has(const QString &key) const { return !text(key).isEmpty(); }
    /// Whether the list shows it as news.
    bool standsOut() const { return !acknowledged || lingers; }
    void setText(const QString &key, const QString &value) { properties.insert(key, value); }

    qint64 eventType = 0; ///< an EventType of the link
    qint64 eventTime = 0; ///< Unix seconds, as the Dispatcher sent it
    quint64 eventId = 0; ///< unique within the run and rising
    QMap<QString, QString> properties;
    bool acknowledged = false;
    std::unique_ptr<TClientLib::TJob> job;
    std::unique_ptr<TClientLib::TChunk> chunk;
    bool lingers = false; ///< acknowledged as the list came up, and news until that hides
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
