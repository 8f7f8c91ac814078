#include "reporttext.h"

#include <QtCore/QJsonArray>

namespace {

QString number(double value)
{
    return QString::number(value, 'g', 6);
}

QString lineOf(const LayerReport &layer, const ChannelReport &channel)
{
    // A channel of its layer's name adds nothing.
    QString name = layer.name.isEmpty() ? QStringLiteral("Default") : layer.name;
    if (channel.name != layer.name && !channel.name.isEmpty())
        name += QLatin1Char('/') + channel.name;
    QString line = QStringLiteral("  %1  %2x%3  %4 x %5  min %6  mean %7  max %8")
                       .arg(name, QString::number(channel.width), QString::number(channel.height),
                            QString::number(channel.samples), channel.type, number(channel.minimum),
                            number(channel.mean), number(channel.maximum));
    if (channel.nonFinite > 0)
        line += QStringLiteral("  not finite %1").arg(channel.nonFinite);
    return line + QLatin1Char('\n');
}

QJsonObject toJson(const ChannelReport &channel)
{
    return {
        {QStringLiteral("name"), channel.name},
        {QStringLiteral("width"), channel.width},
        {QStringLiteral("height"), channel.height},
        {QStringLiteral("type"), channel.type},
        {QStringLiteral("samples"), channel.samples},
        {QStringLiteral("min"), channel.minimum},
        {QStringLiteral("mean"), channel.mean},
        {QStringLiteral("max"), channel.maximum},
        {QStringLiteral("nonFinite"), qint64(channel.nonFinite)},
    };
}

} // namespace

QString toText(const QString &path, const ImageReport &report)
{
    const QString deep = report.deep ? QStringLiteral(", deep") : QString();
    QString text = QStringLiteral("%1: %2%3, %4x%5, layers: %6\n")
                       .arg(path, report.format, deep, QString::number(report.width),
                            QString::number(report.height), QString::number(report.layers.size()));
    for (const LayerReport &layer : report.layers) {
        for (const ChannelReport &channel : layer.channels)
            text += lineOf(layer, channel);
    }
    return text;
}

QJsonObject toJson(const QString &path, const ImageReport &report)
{
    QJsonArray layers;
    for (const LayerReport &layer : report.layers) {
        QJsonArray channels;
        for (const ChannelReport &channel : layer.channels)
            channels.append(toJson(channel));
        layers.append(
            QJsonObject{{QStringLiteral("name"), layer.name}, {QStringLiteral("channels"), channels}});
    }
    return {
        {QStringLiteral("file"), path},
        {QStringLiteral("format"), report.format},
        {QStringLiteral("width"), report.width},
        {QStringLiteral("height"), report.height},
        {QStringLiteral("premultiplied"), report.premultiplied},
        {QStringLiteral("deep"), report.deep},
        {QStringLiteral("layers"), layers},
    };
}
