#pragma once

#include "farmevent.h"

#include <client_lib/tchunk.h>
#include <client_lib/tjob.h>

#include <QtCore/QString>

#include <cstddef>
#include <vector>

/// A job on its way through the farm: its chunks start in order and complete in any.
class FarmJob {
public:
    FarmJob(TClientLib::TJob record, std::vector<TClientLib::TChunk> chunks);

    const TClientLib::TJob &record() const { return m_record; }
    QString name() const { return QString::fromStdString(m_record.getName()); }
    QString owner() const { return QString::fromStdString(m_record.getOwner()); }
    /// A final file, of which the chunks are tiles, in place of a frame sequence.
    bool hasFinalFile() const { return !m_record.attributeGetString("final_filename").empty(); }
    std::size_t runningChunks() const { return m_running.size(); }
    bool hasWaitingChunk() const { return m_nextChunk < m_chunks.size(); }
    bool isFinished() const { return !hasWaitingChunk() && m_running.empty(); }

    /// Needs a waiting chunk.
    TClientLib::TChunk startChunk();
    /// Completes the running chunk at `index`, counted in the order of their starts.
    TClientLib::TChunk finishChunk(std::size_t index, Outcome outcome);
    /// Gives the record its final status. Needs a finished job.
    Outcome complete();

private:
    TClientLib::TJob m_record;
    std::vector<TClientLib::TChunk> m_chunks;
    std::vector<std::size_t> m_running; // places in m_chunks
    std::size_t m_nextChunk = 0;
    Outcome m_worst = Outcome::Success;
};
