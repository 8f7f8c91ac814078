#include "framepaths.h"

#include "framesondisk.h"

#include <framework/filesystem.h>

#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>

#include <algorithm>
#include <utility>

namespace {

QString localPath(const QString &text)
{
    if (!text.startsWith(QLatin1String("file:/"), Qt::CaseInsensitive))
        return text;
    QUrl url(text);
    if (url.host() == QLatin1String("localhost"))
        url.setHost({});
    const QString path = url.toLocalFile();
    return path.isEmpty() ? text : path;
}

/// As it is pasted from a shell.
QString unquoted(const QString &text)
{
    const QString inner = text.trimmed();
    const bool isQuoted = inner.size() > 2 && (inner.front() == u'"' || inner.front() == u'\'')
        && inner.back() == inner.front() && inner.count(inner.front()) == 2;
    return isQuoted ? inner.sliced(1, inner.size() - 2) : inner;
}

/// Of the files that are of the first one's sequence the first frame, else the first itself.
QString firstFrameAmong(const QStringList &paths)
{
    std::int32_t frame = 0;
    const std::string mask =
        TFramework::TFileSystem::GetSequenceMask(paths.first().toStdString(), true, frame);
    QString first = paths.first();
    for (const QString &path : paths) {
        if (frameOf(path.toStdString(), mask) && comesBefore(path.toStdString(), first.toStdString()))
            first = path;
    }
    return first;
}

} // namespace

QStringList pathsIn(const QString &text)
{
    static const QRegularExpression between(QStringLiteral(R"(\s+(?=/|[Ff][Ii][Ll][Ee]:/|[A-Za-z]:[/\\]))"));
    const QString whole = unquoted(text);
    QStringList parts = whole.split(between, Qt::SkipEmptyParts);
    std::transform(parts.begin(), parts.end(), parts.begin(), localPath);
    // A name may hold what looks like the beginning of another.
    const bool several =
        std::all_of(parts.begin(), parts.end(), [](const QString &path) { return QFileInfo::exists(path); });
    return parts.size() > 1 && !several ? QStringList(localPath(whole)) : parts;
}

FramesRequest requestFor(const QStringList &paths)
{
    FramesRequest request{.path = {}, .maskIsSequence = true};
    if (paths.isEmpty())
        return request;
    for (const QString &path : paths)
        request.others.push_back(path.toStdString());
    request.path = firstFrameAmong(paths).toStdString();
    if (QFileInfo(paths.first()).isDir()) {
        std::string image = firstImageOf(request.path);
        if (!image.empty())
            request.path = std::move(image);
    }
    return request;
}
