#include "settingscipher.h"

#include "inflate.h"

#include "settingslog.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QRandomGenerator>
#include <QtCore/QtEndian>

namespace {

constexpr char kVersion = 3;
constexpr qsizetype kHeaderSize = 2;
constexpr qsizetype kChecksumSize = sizeof(quint16);
constexpr qsizetype kHashSize = 20;
constexpr qsizetype kSizePrefix = sizeof(quint32);

enum Flag : quint8 { Compressed = 0x01, Checksum = 0x02, Hash = 0x04 };

QByteArray checksum(QByteArrayView bytes)
{
    const quint16 sum = qToBigEndian(qChecksum(bytes, Qt::ChecksumIso3309));
    return {reinterpret_cast<const char *>(&sum), kChecksumSize};
}

QByteArray hash(QByteArrayView bytes)
{
    return QCryptographicHash::hash(bytes.toByteArray(), QCryptographicHash::Sha1);
}

/// Takes the prefix off `bytes`; false when it is cut off or is not the digest of the rest.
bool strip(QByteArrayView &bytes, qsizetype size, QByteArray (*digest)(QByteArrayView))
{
    if (bytes.size() < size)
        return false;
    const QByteArrayView prefix = bytes.first(size);
    bytes = bytes.sliced(size);
    return prefix == digest(bytes);
}

/// Undoes qCompress without taking the announced size for more than an upper bound; empty when damaged.
QByteArray uncompress(QByteArrayView bytes)
{
    if (bytes.size() < kSizePrefix)
        return {};
    const auto announced = qFromBigEndian<quint32>(bytes.data());
    return inflateStream(bytes.sliced(kSizePrefix), announced).value_or(QByteArray());
}

} // namespace

SettingsCipher::SettingsCipher()
    : m_randomByte([] { return quint8(QRandomGenerator::global()->bounded(256)); })
{ }

void SettingsCipher::setKey(quint64 key)
{
    qToLittleEndian(key, m_key);
}

QString SettingsCipher::encipher(const QString &text) const
{
    QByteArray bytes = text.toUtf8();
    quint8 flags = Checksum;
    // What the reader would refuse to inflate stays as it is.
    if (bytes.size() <= kMaxInflatedSize) {
        const QByteArray compressed = qCompress(bytes, 9);
        if (compressed.size() < bytes.size()) {
            bytes = compressed;
            flags |= Compressed;
        }
    }
    bytes.prepend(checksum(bytes));
    bytes.prepend(char(m_randomByte()));
    chain(bytes);
    bytes.prepend(char(flags));
    bytes.prepend(kVersion);
    return QString::fromLatin1(bytes.toBase64());
}

QString SettingsCipher::decipher(const QString &cipherText) const
{
    QByteArray bytes = QByteArray::fromBase64(cipherText.toLatin1());
    if (bytes.size() <= kHeaderSize || bytes[0] != kVersion) {
        qCDebug(lcSettings, "Invalid version or not a cyphertext.");
        return {};
    }
    const auto flags = quint8(bytes[1]);
    bytes.remove(0, kHeaderSize);
    unchain(bytes);
    auto text = QByteArrayView(bytes).sliced(1); // without the random byte
    if ((flags & Checksum) && !strip(text, kChecksumSize, checksum))
        return {};
    if ((flags & Hash) && !strip(text, kHashSize, hash))
        return {};
    return QString::fromUtf8(flags & Compressed ? uncompress(text) : text.toByteArray());
}

void SettingsCipher::chain(QByteArray &bytes) const
{
    quint8 previous = 0;
    for (qsizetype p = 0; p < bytes.size(); ++p) {
        previous = quint8(bytes[p]) ^ m_key[p % 8] ^ previous;
        bytes[p] = char(previous);
    }
}

void SettingsCipher::unchain(QByteArray &bytes) const
{
    quint8 previous = 0;
    for (qsizetype p = 0; p < bytes.size(); ++p) {
        const auto enciphered = quint8(bytes[p]);
        bytes[p] = char(enciphered ^ m_key[p % 8] ^ previous);
        previous = enciphered;
    }
}
