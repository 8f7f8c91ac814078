#pragma once

#include "cachetotals.h"
#include "framedisplay.h"
#include "imageframe.h"

#include <QtCore/QtGlobal>

#include <list>
#include <map>
#include <memory>
#include <string>

/// The decoded frames of one viewer window by their file path. A frame stays in video memory as textures or in main
/// memory as copies of its planes, within budgets that all windows share; the oldest frames leave first, however often
/// they were used. The budgets are soft by one frame: a frame of any size enters where less than the budget is in use, and
/// what is older leaves until that is so.
class FrameCache final {
public:
    /// Both must outlive the cache.
    FrameCache(CacheTotals &totals, FrameDisplay &display);
    ~FrameCache();
    Q_DISABLE_COPY_MOVE(FrameCache)

    bool contains(const std::string &path) const;
    /// Null when there is none. The frame is the cache's.
    ImageFrame *find(const std::string &path) const;

    /// Takes a frame whose planes are still there, in place of the one under that path, and decides which memory it
    /// stays in. Other frames may die.
    ImageFrame &insert(std::unique_ptr<ImageFrame> frame, const std::string &path);
    /// False when there is no such frame.
    bool remove(const std::string &path);
    /// Drops the oldest frames until the budgets hold, but for the one under `keptPath`. True when any went.
    bool trim(const std::string &keptPath);
    /// Empties the display first.
    void clear();

private:
    /// Paths, oldest first; they are the keys of the map.
    using Queue = std::list<const std::string *>;
    struct Entry {
        std::unique_ptr<ImageFrame> frame;
        Queue::iterator position;
    };
    using Frames = std::map<std::string, Entry>;

    void place(ImageFrame &frame);
    void destroy(Frames::iterator entry);
    Queue &queueOf(const ImageFrame &frame);
    std::uint64_t &usedBy(const ImageFrame &frame);

    CacheTotals &m_totals;
    FrameDisplay &m_display;
    Frames m_frames;
    Queue m_videoMemory;
    Queue m_mainMemory;
};
