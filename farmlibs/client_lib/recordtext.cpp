#include "recordtext.h"

#include <algorithm>
#include <charconv>

namespace TClientLib {

namespace {

std::string unescaped(const std::string &value)
{
    std::string text;
    text.reserve(value.size());
    for (std::size_t i = 0; i < value.size(); ++i) {
        const char next = value[i] == '\\' && i + 1 < value.size() ? value[i + 1] : '\0';
        if (next == 'n' || next == '\\')
            ++i;
        text += next == 'n' ? '\n' : value[i];
    }
    return text;
}

template <typename Integer>
Integer parsed(const std::string &value)
{
    Integer number = 0;
    const char *end = value.data() + value.size();
    const auto result = std::from_chars(value.data(), end, number);
    return result.ec == std::errc() && result.ptr == end ? number : 0;
}

} // namespace

void TRecordWriter::add(std::string_view value)
{
    if (!m_first)
        m_text += '\n';
    m_first = false;
    for (const char c : value) {
        if (c == '\n')
            m_text += "\\n";
        else if (c == '\\')
            m_text += "\\\\";
        else
            m_text += c;
    }
}

void TRecordWriter::add(std::int64_t value)
{
    add(std::string_view(std::to_string(value)));
}

TRecordReader::TRecordReader(const std::vector<std::string> &values)
    : m_values(values)
{ }

std::string TRecordReader::text()
{
    return remaining() > 0 ? unescaped(m_values[m_next++]) : std::string();
}

template <typename Integer>
Integer TRecordReader::number()
{
    return remaining() > 0 ? parsed<Integer>(m_values[m_next++]) : 0;
}

std::int64_t TRecordReader::integer()
{
    return number<std::int64_t>();
}

std::int32_t TRecordReader::integer32()
{
    return number<std::int32_t>();
}

std::uint32_t TRecordReader::unsigned32()
{
    return number<std::uint32_t>();
}

std::size_t TRecordReader::count(std::size_t valuesEach)
{
    const auto announced = static_cast<std::uint64_t>(std::max<std::int64_t>(0, integer()));
    return static_cast<std::size_t>(std::min<std::uint64_t>(announced, remaining() / valuesEach));
}

} // namespace TClientLib
