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

bool FileStamp::isFresh() const
{
    constexpr std::int64_t kTick = 100; // milliseconds
    const std::int64_t age = QDateTime::currentMSecsSinceEpoch() - modified;
    return exists && age >= 0 && age < kTick;
}
