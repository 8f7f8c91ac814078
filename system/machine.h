#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>

/// Asks the operating system about this machine. Every function gives an empty result when it does not tell.
namespace Machine {

/// Gives the user's own folder for settings: the home folder, %APPDATA% on Windows.
std::filesystem::path userSettingsFolder();
/// Gives the folder for the settings of all users: /etc, %PROGRAMDATA% on Windows.
std::filesystem::path sharedSettingsFolder();
/// Finds the running program's file.
std::filesystem::path executable();
/// Gives the user's own folder for what a program keeps of its runs, as logs: $XDG_STATE_HOME or ~/.local/state,
/// %LOCALAPPDATA% on Windows.
std::filesystem::path userStateFolder();
/// Gives the machine's name in the network, in UTF-8.
std::string hostName();
/// Gives the bytes of main memory that the machine has.
std::uint64_t memorySize();
/// Names the system as folders of compiled packages have it: "linux", "windows".
std::string platformName();

/// Has the system run the calling thread behind the program's others where there are not processors for all.
void giveWay();

/// Tells how long this machine has slept since it was started; zero where the system does not tell.
std::chrono::milliseconds timeAsleep();

} // namespace Machine
