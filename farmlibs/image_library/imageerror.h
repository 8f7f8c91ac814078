#pragma once

#include "tloadfailure.h"

#include <stdexcept>

namespace TImageLibrary {

/// Ends a load whose reason is known. Whatever else a decoder throws counts as damage.
class ImageError final : public std::runtime_error {
public:
    ImageError(TLoadFailure::Kind kind, const std::string &reason)
        : std::runtime_error(reason)
        , m_kind(kind)
    { }

    TLoadFailure::Kind kind() const { return m_kind; }

private:
    TLoadFailure::Kind m_kind;
};

} // namespace TImageLibrary
