#include "framestore.h"

#include "farmlog.h"
#include "framewriter.h"

#include <framework/filesystem.h>

#include <QtCore/QDir>

#include <algorithm>
#include <chrono>
#include <string_view>

namespace {

constexpr std::chrono::milliseconds kGrowthTime(200);

std::string fileOf(const RenderOrder &order, std::int64_t frame)
{
    const std::string numbered = TFramework::TFileSystem::GetFileFromMask(order.path, frame);
    return numbered.empty() ? order.path : numbered;
}

std::filesystem::path nativePath(const std::string &utf8)
{
    return QDir::toNativeSeparators(QString::fromStdString(utf8)).toStdU16String();
}

void note(bool written, const std::string &file)
{
    if (!written)
        farmLog(QStringLiteral("cannot write %1").arg(QString::fromStdString(file)));
}

} // namespace

FrameStore::FrameStore(const QString &parent, bool keep, bool halfFrames)
    : m_folder((parent.isEmpty() ? QDir::tempPath() : QDir(parent).absolutePath())
               + QStringLiteral("/tarrow-demofarm-XXXXXX"))
    , m_halfFrames(halfFrames)
{
    m_folder.setAutoRemove(!keep);
    QObject::connect(&m_growth, &QTimer::timeout, &m_growth, [this] { grow(); });
    if (isUsable())
        farmLog(QStringLiteral("frames in %1").arg(folder()));
    else
        farmLog(QStringLiteral("cannot make a folder for the frames: %1").arg(m_folder.errorString()));
}

void FrameStore::render(const RenderOrder &order)
{
    if (!order.outcome && !m_halfFrames)
        return;
    openFolder(order.folder);
    const std::int64_t middle =
        order.frames.start + std::int64_t(order.frames.FrameCount() / 2) * order.frames.step;
    for (std::int64_t frame = order.frames.start; frame <= order.frames.end; frame += order.frames.step) {
        const std::string file = fileOf(order, frame);
        std::erase_if(m_inTheMaking,
                      [&file](const auto &making) { return making->path() == nativePath(file); });
        if (order.outcome == Outcome::Errors && frame == middle)
            continue;
        if (!order.outcome) {
            m_inTheMaking.push_back(
                std::make_unique<FrameInTheMaking>(nativePath(file), paintFrame(order.jobId, frame)));
            grow();
            m_growth.start(kGrowthTime);
            return;
        }
        const std::string bytes = encodeExr(paintFrame(order.jobId, frame));
        const std::string_view firstHalf = std::string_view(bytes).substr(0, bytes.size() / 2);
        const bool isDamaged = order.outcome == Outcome::Warnings && frame == middle;
        note(writeWhole(nativePath(file), isDamaged ? firstHalf : bytes), file);
    }
}

void FrameStore::grow()
{
    std::erase_if(m_inTheMaking, [](const auto &making) { return !making->writeMore(); });
    if (m_inTheMaking.empty())
        m_growth.stop();
}

void FrameStore::openFolder(const std::string &folder)
{
    std::erase(m_jobFolders, folder);
    m_jobFolders.push_back(folder);
    QDir().mkpath(QString::fromStdString(folder));
    while (m_jobFolders.size() > kJobsKept) {
        QDir(QString::fromStdString(m_jobFolders.front())).removeRecursively();
        m_jobFolders.pop_front();
    }
}
