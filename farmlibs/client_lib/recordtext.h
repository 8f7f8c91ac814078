#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace TClientLib {

/// Writes a record's values, one per line; within a value '\' becomes "\\" and a line feed "\n".
class TRecordWriter {
public:
    void add(std::string_view value);
    void add(std::int64_t value);
    const std::string &text() const { return m_text; }

private:
    std::string m_text;
    bool m_first = true;
};

/// Takes a record's values one after the other; what is missing reads as empty or 0, a number that does not parse or
/// does not fit as 0, a '\' before any other character as itself. The list must outlive the reader.
class TRecordReader {
public:
    explicit TRecordReader(const std::vector<std::string> &values);

    std::size_t remaining() const { return m_values.size() - m_next; }
    std::string text();
    std::int64_t integer();
    std::int32_t integer32();
    std::uint32_t unsigned32();
    /// Takes a count of groups of `valuesEach` (at least 1) values, never more than the values left can fill.
    std::size_t count(std::size_t valuesEach);

private:
    template <typename Integer>
    Integer number();

    const std::vector<std::string> &m_values;
    std::size_t m_next = 0;
};

} // namespace TClientLib
