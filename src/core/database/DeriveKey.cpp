#include "core/database/DeriveKey.h"

#include <QFile>
#include <QRandomGenerator>

#include <array>
#include <nettle/pbkdf2.h>

using namespace Qt::StringLiterals;

namespace {

// Parameters of the SQLCipher 3 file format.
constexpr qsizetype saltSize = 16;
constexpr qsizetype keySize = 32;
constexpr unsigned iterations = 64000;

/// Returns the salt of the file, a random one if the file is empty.
QByteArray ReadOrCreateSalt(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    if (file.size() > 0) {
        return file.read(saltSize);
    }
    std::array<quint32, saltSize / sizeof(quint32)> words{};
    QRandomGenerator::system()->fillRange(words.data(), std::ssize(words));
    return {reinterpret_cast<const char *>(words.data()), saltSize};
}

} // namespace

QByteArray DeriveKey(const QByteArray &textKey, const QString &path) {
    const QByteArray salt = ReadOrCreateSalt(path);
    if (salt.size() != saltSize) {
        return {};
    }
    QByteArray key(keySize, '\0');
    pbkdf2_hmac_sha1(static_cast<size_t>(textKey.size()),
                     reinterpret_cast<const uint8_t *>(textKey.constData()), iterations, saltSize,
                     reinterpret_cast<const uint8_t *>(salt.constData()), keySize,
                     reinterpret_cast<uint8_t *>(key.data()));
    QByteArray hexKey = key.toHex();
    QByteArray keyLiteral = "x'"_ba;
    // Without this, a reallocation would leave a copy of the key in memory.
    keyLiteral.reserve(2 * (keySize + saltSize) + 3);
    keyLiteral.append(hexKey).append(salt.toHex()).append('\'');
    key.fill('\0');
    hexKey.fill('\0');
    return keyLiteral;
}
