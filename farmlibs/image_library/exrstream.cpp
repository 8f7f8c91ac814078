#include "exrstream.h"

#include "sourcefile.h"

#include <Iex.h>

#include <algorithm>
#include <cstring>

namespace TImageLibrary {

ExrStream::ExrStream(const SourceFile &file)
    : Imf::IStream(file.path().c_str())
    , m_file(file)
{ }

bool ExrStream::read(char bytes[], int count)
{
    std::size_t wanted = count > 0 ? std::size_t(count) : 0;
    while (wanted > 0) {
        std::size_t done = 0;
        if (m_place >= m_bufferPlace && m_place - m_bufferPlace < m_bufferSize) {
            const std::uint64_t begin = m_place - m_bufferPlace;
            done = std::min(wanted, m_bufferSize - std::size_t(begin));
            std::memcpy(bytes, m_buffer.data() + begin, done);
        } else if (wanted >= m_buffer.size()) {
            done = m_file.read(m_place, bytes, wanted);
        } else {
            m_bufferPlace = m_place;
            m_bufferSize = m_file.read(m_place, m_buffer.data(), m_buffer.size());
            if (m_bufferSize > 0)
                continue;
        }
        if (done == 0)
            throw Iex::InputExc("Unexpected end of file.");
        bytes += done;
        m_place += done;
        wanted -= done;
    }
    return m_place < m_file.size();
}

} // namespace TImageLibrary
