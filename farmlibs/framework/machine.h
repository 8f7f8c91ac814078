#pragma once

#include <filesystem>
#include <string>

/// What only the operating system can tell. Every function gives an empty result when it does not.
namespace TFramework::Machine {

std::filesystem::path userSettingsFolder();
std::filesystem::path sharedSettingsFolder();
std::filesystem::path executable();
std::string hostName();

} // namespace TFramework::Machine
