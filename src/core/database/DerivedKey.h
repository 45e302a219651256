#pragma once

#include <QByteArray>
#include <QString>

/// What opens a file in place of its text key: the key that the library would derive from that and
/// from the salt, the first 16 bytes of the file, in the library's notation, x'...'. A file that is
/// still empty gets a salt of its own.
///
/// Empty for a file that can't be read or has no whole salt. The file is opened and closed on the
/// way, so this comes before the library opens it: closing would let go of its lock. The text opens
/// the file as well as the key does; wipe it after use.
QByteArray DerivedKey(const QByteArray &textKey, const QString &path);
