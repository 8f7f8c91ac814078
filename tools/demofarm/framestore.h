#pragma once

#include "farmevent.h"
#include "framewriter.h"

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

/// Renders the frames of the night's jobs into a folder of its own, and removes that at its end unless told to keep it.
/// Keeps the last jobs' frames alone, so that a night without an end does not fill the disk. Logs what it cannot write.
class FrameStore final {
public:
    static constexpr std::size_t kJobsKept = 12;

    /// Makes the folder in `parent`, empty for the user's temporary folder.
    FrameStore(const QString &parent, bool keep, bool halfFrames);

    /// False when the folder could not be made.
    bool isUsable() const { return m_folder.isValid(); }
    QString folder() const { return m_folder.path(); }

    /// Leaves out the middle frame of a chunk that failed, and cuts that of one with warnings short. Of a chunk at work the
    /// first frame grows, where that is wanted.
    void render(const RenderOrder &order);

private:
    void grow();
    void openFolder(const std::string &folder);

    QTemporaryDir m_folder;
    const bool m_halfFrames;
    std::deque<std::string> m_jobFolders; ///< the oldest first
    std::vector<std::unique_ptr<FrameInTheMaking>> m_inTheMaking;
    QTimer m_growth;
};
