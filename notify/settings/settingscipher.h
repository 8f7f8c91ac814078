#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <functional>
#include <utility>

/// Enciphers texts for the settings store: hides a password from a casual look, and from nobody who has the program.
///
/// Base64 of: version byte 3, flags byte, then chained XOR over one random byte, the integrity prefix and the text's
/// UTF-8 bytes, compressed where that is shorter.
class SettingsCipher {
public:
    using RandomByte = std::function<quint8()>;

    SettingsCipher();

    void setKey(quint64 key);
    /// Sets the source of the one random byte of each text.
    void setRandomByte(RandomByte source) { m_randomByte = std::move(source); }

    QString encipher(const QString &text) const;
    /// Empty when the text is damaged or was enciphered under another key.
    QString decipher(const QString &cipherText) const;

private:
    void chain(QByteArray &bytes) const;
    void unchain(QByteArray &bytes) const;

    quint8 m_key[8] = {};
    RandomByte m_randomByte;
};
