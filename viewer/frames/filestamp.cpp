#include "filestamp.h"

#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>

FileStamp FileStamp::of(const std::string &path)
{
    const QFileInfo file(QString::fromStdString(path));
    if (!file.exists())
        return {};
    return {true, file.size(), file.lastModified().toMSecsSinceEpoch()};
}
