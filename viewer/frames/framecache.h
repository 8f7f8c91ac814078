#pragma once

#include "cachetotals.h"
#include "framedisplay.h"
#include "imageframe.h"

#include <QtCore/QtGlobal>

#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <optional>
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
    enum class Memory { Video, Main };
    /// Says which frames stay; none keeps all.
    using Keep = std::function<bool(const std::string &path)>;
    /// How many frames of a size fit within the budgets, each whole, when all go that are not kept.
    std::uint64_t roomFor(std::uint64_t bytes, const Keep &isKept) const;
    /// Drops the oldest frames that are not kept until one of a size fits within a budget, which it names; where that cannot
    /// be, it drops none.
    std::optional<Memory> makeRoom(std::uint64_t bytes, const Keep &isKept);
    /// Takes a frame as above, into the memory where there is room for it; false where the system has none. Others stay.
    bool insert(std::unique_ptr<ImageFrame> frame, const std::string &path, Memory memory);
    /// Another number after each change.
    std::uint64_t version() const { return m_version; }

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
    ImageFrame &keep(std::unique_ptr<ImageFrame> frame, const std::string &path);
    std::uint64_t kept(const Queue &queue, const Keep &isKept) const;
    void destroy(Frames::iterator entry);
    Queue &queueOf(const ImageFrame &frame);
    std::uint64_t &usedBy(const ImageFrame &frame);

    CacheTotals &m_totals;
    FrameDisplay &m_display;
    Frames m_frames;
    Queue m_videoMemory;
    Queue m_mainMemory;
    std::uint64_t m_version = 0;
};
