#include "framepaths.h"

#include "framesondisk.h"

#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>

#include <algorithm>
#include <utility>

namespace {

QString localPath(const QString &text)
{
    if (!text.startsWith(QLatin1String("file://")))
        return text;
    const QString path = QUrl(text).toLocalFile();
    return path.isEmpty() ? text : path;
}

} // namespace

QStringList pathsIn(const QString &text)
{
    static const QRegularExpression between(QStringLiteral(R"(\s+(?=/|file://|[A-Za-z]:[/\\]))"));
    QStringList parts = text.trimmed().split(between, Qt::SkipEmptyParts);
    std::transform(parts.begin(), parts.end(), parts.begin(), localPath);
    // A name may hold what looks like the beginning of another.
    const bool several =
        std::all_of(parts.begin(), parts.end(), [](const QString &path) { return QFileInfo::exists(path); });
    return parts.size() > 1 && !several ? QStringList(localPath(text.trimmed())) : parts;
}

FramesRequest requestFor(QStringList paths)
{
    FramesRequest request{.path = {}, .maskIsSequence = true};
    std::sort(paths.begin(), paths.end(), [](const QString &path, const QString &other) {
        return comesBefore(path.toStdString(), other.toStdString());
    });
    for (const QString &path : std::as_const(paths))
        request.others.push_back(path.toStdString());
    if (paths.isEmpty())
        return request;
    request.path = request.others.front();
    if (QFileInfo(paths.first()).isDir()) {
        std::string image = firstImageOf(request.path);
        if (!image.empty())
            request.path = std::move(image);
    }
    return request;
}
