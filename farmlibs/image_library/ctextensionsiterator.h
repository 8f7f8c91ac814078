#pragma once

#include <string>
#include <vector>

namespace TImageLibrary {

/// Walks over the extensions that the loaders read, in lower case without a dot; valid until the program ends.
class CTExtensionsIterator final {
public:
    explicit CTExtensionsIterator(std::vector<std::string>::const_iterator position)
        : m_position(position)
    { }

    const std::string &extension() const { return *m_position; }
    CTExtensionsIterator &operator++()
    {
        ++m_position;
        return *this;
    }
    bool operator==(const CTExtensionsIterator &other) const = default;

private:
    std::vector<std::string>::const_iterator m_position;
};

} // namespace TImageLibrary
