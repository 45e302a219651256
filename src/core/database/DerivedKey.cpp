#include "core/database/DerivedKey.h"

#include <QFile>
#include <QRandomGenerator>

#include <array>
#include <nettle/pbkdf2.h>

using namespace Qt::StringLiterals;

namespace {

// Those of the file format, that of SQLCipher 3.
constexpr qsizetype saltSize = 16;
constexpr qsizetype keySize = 32;
constexpr unsigned rounds = 64000;

QByteArray SaltOf(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    if (file.size() > 0) {
        return file.read(saltSize);
    }
    std::array<quint32, saltSize / sizeof(quint32)> numbers{};
    QRandomGenerator::system()->fillRange(numbers.data(), std::ssize(numbers));
    return {reinterpret_cast<const char *>(numbers.data()), saltSize};
}

} // namespace

QByteArray DerivedKey(const QByteArray &textKey, const QString &path) {
    const QByteArray salt = SaltOf(path);
    if (salt.size() != saltSize) {
        return {};
    }
    QByteArray key(keySize, '\0');
    pbkdf2_hmac_sha1(static_cast<size_t>(textKey.size()),
                     reinterpret_cast<const uint8_t *>(textKey.constData()), rounds, saltSize,
                     reinterpret_cast<const uint8_t *>(salt.constData()), keySize,
                     reinterpret_cast<uint8_t *>(key.data()));
    QByteArray digits = key.toHex();
    QByteArray notation = "x'"_ba;
    notation.reserve(2 * (keySize + saltSize) + 3); // It leaves no copy behind while it grows.
    notation.append(digits).append(salt.toHex()).append('\'');
    key.fill('\0');
    digits.fill('\0');
    return notation;
}
