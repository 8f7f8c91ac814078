#include "fuzzing.h"

#include <notify/settings/settingscipher.h>

#include <QtCore/QLoggingCategory>

#include <cstring>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    return 0;
}

/// Eight bytes of a key and the random byte, then what stands in the settings, or a text to be kept there.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    quint64 key = 0;
    if (size < sizeof key + 1)
        return 0;
    std::memcpy(&key, data, sizeof key);
    SettingsCipher cipher;
    cipher.setKey(key);
    cipher.setRandomByte([byte = data[sizeof key]] { return byte; });
    const QByteArray bytes(reinterpret_cast<const char *>(data + sizeof key + 1),
                           qsizetype(size - sizeof key - 1));

    // As it stands, and as any bytes that base64 can stand for.
    cipher.decipher(QString::fromLatin1(bytes));
    cipher.decipher(QString::fromLatin1(bytes.toBase64()));
    const QString text = QString::fromUtf8(bytes);
    require(cipher.decipher(cipher.encipher(text)) == text);
    return 0;
}
