#pragma once

#include "farmevent.h"

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <cstdint>
#include <deque>
#include <filesystem>

/// Renders the frames of the night's jobs into a folder of its own, which goes with it unless it is to be kept. Only the
/// last jobs' frames stay: a night without an end does not fill the disk. What cannot be written is told in the log.
class FrameStore final {
public:
    static constexpr std::size_t kJobsKept = 12;

    /// The folder is made in `parent`, empty for the user's temporary folder.
    FrameStore(const QString &parent, bool keep, bool halfFrames);

    /// False when the folder could not be made.
    bool isUsable() const { return m_folder.isValid(); }
    QString folder() const { return m_folder.path(); }

    /// A chunk that failed lacks the frame in its middle, of one with warnings that frame is cut short.
    void render(const RenderOrder &order);

private:
    void openFolder(const std::string &folder);

    QTemporaryDir m_folder;
    const bool m_halfFrames;
    std::deque<std::string> m_jobFolders; ///< the oldest first
};
