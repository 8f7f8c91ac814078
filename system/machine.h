#pragma once

#include <filesystem>
#include <string>

/// Facts about this machine that only the operating system knows. Every function gives an empty result when it does not
/// tell.
namespace Machine {

/// The user's own folder for settings: the home folder, %APPDATA% on Windows.
std::filesystem::path userSettingsFolder();
/// The folder for the settings of all users: /etc, %PROGRAMDATA% on Windows.
std::filesystem::path sharedSettingsFolder();
/// The running program's file.
std::filesystem::path executable();
/// The machine's name in the network, in UTF-8.
std::string hostName();
/// The system's name as folders of compiled packages have it: "linux", "windows".
std::string platformName();

} // namespace Machine
