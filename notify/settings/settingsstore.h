#pragma once

#include "settings.h"

#include <QtCore/QVariant>

#include <initializer_list>
#include <span>
#include <variant>

/// A text that is kept enciphered in the store. The rows name the cipher, so that a program without a secret among
/// its rows links none.
struct SecretText {
    QString Settings::*member;
    QString (*encipher)(const QString &text);
    QString (*decipher)(const QString &cipherText);
};

/// One key of the store and the member that it fills.
struct SettingsRow {
    const char *key;
    std::variant<bool Settings::*, int Settings::*, quint64 Settings::*, float Settings::*,
                 QString Settings::*, SecretText>
        member;
};

using SettingsRows = std::span<const SettingsRow>;

/// The group "imageViewer", which a viewer without the farm reads alone; every other row is in the table of settings.cpp.
extern const SettingsRows kImageViewerRows;

/// As loadSettings(), anySettingStored() and saveSettings(), for these rows alone.
Settings loadRows(std::initializer_list<SettingsRows> tables);
bool anyRowStored(std::initializer_list<SettingsRows> tables);
bool saveRows(std::initializer_list<SettingsRows> tables, const Settings &settings);

/// Writes one value that is no setting of the user's, such as where a window was, with the care of saveRows(); leaves the
/// file alone where it holds the value already.
void saveAside(const QString &key, const QVariant &value);
