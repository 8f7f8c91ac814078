#pragma once

#include "linksettings.h"

#include <QtCore/QString>

#include <optional>

/// Every persistent option of the program, named as in the settings store; the initial values are the defaults.
struct Settings {
    QString dispatcherAddress = QStringLiteral("127.0.0.1");
    QString authenticationUser = QStringLiteral("admin");
    QString authenticationPassword; ///< in clear; enciphered in the store
    int dispatcherPort = kDispatcherPort;
    bool skipDirectoryAuthentication = false;

    bool filterServiceActivities = true;
    bool filterJobStart = true;
    bool filterJobCompletedWithErrors = true;
    bool filterJobCompletedWithWarnings = true;
    bool filterJobCompletedWithSuccess = true;
    bool filterChunkStart = true;
    bool filterChunkCompletedWithErrors = true;
    bool filterChunkCompletedWithWarnings = true;
    bool filterChunkCompletedWithSuccess = true;
    bool showBubble = true;
    bool autoAckOnRaise = true;
    bool keepAbove = true;
    bool playErrorSound = false;
    bool playWarningSound = false;
    bool playSuccessSound = false;
    bool playStartSound = false;
    bool playServiceSound = false;
    QString errorSound;
    QString warningSound;
    QString successSound;
    QString startSound;
    QString serviceSound;

    quint64 imageViewerMaxGPUCache = 1'000'000'000; ///< bytes
    quint64 imageViewerMaxRAMCache = 2'000'000'000; ///< bytes
    float imageViewerExrImportGamma = 2.2F;
    float imageViewerDefaultImportGamma = 1.0F;
    int imageViewerMode = 0; ///< 0 integrated viewer, 1 external application
    QString imageViewer;
    bool launchImageViewer = false;
    bool viewerShowIncompleteFrames = true;
    bool viewerReadAhead = true;

    bool operator==(const Settings &) const = default;

    LinkSettings link() const;
    void setLink(const LinkSettings &link);
};

/// Values given on the command line; they stand in for the stored ones until the program ends.
struct CommandLineOverrides {
    std::optional<QString> server;
    std::optional<QString> user;
    std::optional<QString> password;
    std::optional<int> port;

    bool any() const { return server || user || password || port; }
    void applyTo(Settings &settings) const;
};

/// Reads every key from the default settings store. A key that is missing, or whose value is not of its type, has its
/// default; all that could not be read is reported in one warning.
Settings loadSettings();
/// False where the program was never configured, neither by the user nor for all users.
bool anySettingStored();
/// As loadSettings() for the keys of the groups "imageViewer" and "viewer" alone: needs no cipher.
Settings loadImageViewerSettings();

/// Writes every key. False, with one warning, when the store cannot be written.
bool saveSettings(const Settings &settings);

/// Seconds of silence before a heartbeat; a key that is read and never written.
int loadHeartbeatResolution();
