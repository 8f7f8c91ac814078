#pragma once

#include <string>
#include <vector>

namespace FarmHelpers {

/// Lists a folder's bare names in order, without "." and ".."; empty when it cannot be read.
std::vector<std::string> listDirectory(const std::string &folder);

} // namespace FarmHelpers
